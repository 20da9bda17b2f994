#include "check/Source.h"

#include "check/Words.h"

#include <algorithm>

namespace {

using ProfileLines::LineKind;

bool IsPlain(std::string_view header, std::string_view name) {
  return header.size() == name.size() + 2 && header.front() == '[' && header.back() == ']';
}

}  // namespace

Source::Source(Kind ofKind, Text ofPath, Text shortName, std::shared_ptr<const ProfileFile> file)
    : kind(ofKind), path(std::move(ofPath)), name(std::move(shortName)), file_(std::move(file)) {
  ReadLines();
  CloseSections();
}

void Source::AddLine(const ProfileLines::Line& text, size_t section, size_t listedIn) {
  const auto listed = text.ListedKey();
  lines_.push_back(
      {text, text.AsEntry(), listed.has_value(), listed.value_or(""), section, listedIn});
}

void Source::ReadLines() {
  for (const ProfileLines::Line& text : file_->LinesBefore())
    AddLine(text, None, None);
  size_t listedIn = None;
  for (const ProfileFile::Section& section : file_->Sections()) {
    const size_t number = sections_.size();
    const bool endsList = section.header.starts_with('[');
    const size_t headerEnd = Offset(section.header) + section.header.size();
    const ProfileLines::Line header{section.header,
                                    Bytes().substr(headerEnd, Offset(section.body) - headerEnd)};
    AddLine(header, number, listedIn);
    // An indented header is a name of the list above it.
    lines_.back().isListed &= !endsList;
    listedIn = endsList ? number : listedIn;
    sections_.push_back({section.name, section.header, lines_.size() - 1, 0, 0,
                         IsPlain(section.header, section.name), false, false});
    for (const ProfileLines::Line& text : ProfileFile::Lines(section))
      AddLine(text, number, listedIn);
  }
}

size_t Source::EntryCount() const {
  return static_cast<size_t>(std::ranges::count_if(lines_, [](const Line& line) {
    return line.entry.kind == ProfileLines::LineKind::KeyWithValue;
  }));
}

void Source::CloseSections() {
  size_t end = lines_.size();
  size_t listEnd = end;
  for (auto section = sections_.rbegin(); section != sections_.rend(); ++section) {
    section->end = end;
    section->listEnd = listEnd;
    end = section->line;
    if (section->header.starts_with('['))
      listEnd = section->line;
  }
  size_t number = 0;
  for (Section& section : sections_) {
    section.found = names_.emplace(Words::Folded(section.name), number).second;
    section.listed = headers_.emplace(section.header, number).second;
    ++number;
  }
}

size_t Source::FindSection(std::string_view wanted) const {
  const auto found = names_.find(Words::Folded(wanted));
  return found == names_.end() ? None : found->second;
}

size_t Source::FindListed(std::string_view wanted) const {
  const auto found = headers_.find('[' + std::string(wanted) + ']');
  return found == headers_.end() ? None : found->second;
}

Place Source::PlaceOf(size_t offset) const {
  return file_->PlaceOf(Bytes().substr(offset, 0)).value_or(Place{});
}

std::string_view Source::LineAt(size_t offset) const {
  const size_t line = PlaceOf(offset).line;
  return line <= lines_.size() ? lines_[line - 1].text.raw : std::string_view();
}
