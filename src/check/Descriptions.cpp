#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "mapdata/world/InfoFile.h"

#include <algorithm>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Words::Count;
using Words::Decoded;
using Words::Quoted;

namespace {

using InfoFile::Section;

class InfoCheck {
 public:
  // `language` is null for the German descriptions.
  InfoCheck(Index& index, Findings& findings, const Source& source, Index::Language* language)
      : index_(index), findings_(findings), source_(source), language_(language) {}

  void Check() {
    if (source_.Bytes().empty())
      return;
    const size_t number = source_.FindSection(Section);
    if (number == Source::None)
      return findings_.AddNoSection(Id::I06, source_, u"info");
    section_ = &source_.Sections()[number];
    CheckRedirects();
    for (size_t line = section_->line + 1; line < section_->end; ++line)
      CheckLine(source_.Lines()[line], line);
    if (number + 1 < source_.Sections().size())
      CheckBroken(source_.Sections()[number + 1]);
    CheckCoverage();
  }

 private:
  Finding& Tell(Id rule, const Source::Line& line, std::string_view words, Text message) {
    Finding& finding = findings_.Add(rule, source_, words);
    finding.section = u"info";
    finding.key = Decoded(line.entry.key);
    finding.message = std::move(message);
    return finding;
  }

  // A key as look-ups take it.
  [[nodiscard]] static std::string_view Trimmed(std::string_view key) {
    return ProfileLines::Strip(key, " ");
  }

  void CheckRedirects() {
    for (size_t number = section_->line + 1; number < section_->end; ++number) {
      const Source::Line& line = source_.Lines()[number];
      const std::string_view text = ProfileLines::Unquoted(line.entry.value);
      if (line.entry.kind != LineKind::KeyWithValue)
        continue;
      if (const auto target = InfoFile::RedirectTarget(text))
        targets_.insert(Words::Folded(Trimmed(*target)));
    }
  }

  void CheckLine(const Source::Line& line, size_t number) {
    if (line.entry.kind == LineKind::KeyWithoutValue)
      return CheckBrokenLine(line, number);
    if (line.entry.kind != LineKind::KeyWithValue)
      return;
    CheckKey(line);
    CheckQuotes(line);
    if (const auto target = InfoFile::RedirectTarget(ProfileLines::Unquoted(line.entry.value)))
      CheckRedirect(line, Trimmed(*target));
  }

  void CheckKey(const Source::Line& line) {
    const std::string_view key = line.entry.key;
    if (index_.IsName(key) || index_.IsSwitchedOff(key) || targets_.contains(Words::Folded(key)))
      return;
    if (index_.IsName('*' + std::string(key)))
      return TellStar(line);
    if (language_ && index_.IsName(Words::Encoded(language_->spoken->Key(Decoded(key)))))
      return TellTranslatedKey(line);
    Finding& finding =
        Tell(Id::I01, line, key, Join(u"no entity is called ", Quoted(Decoded(key))));
    if (findings_.IsWorthHelp(Id::I01))
      Suggest(finding, key, Nearest::Of(key, index_.Names()));
  }

  void Suggest(Finding& finding, std::string_view key, std::string_view nearest) const {
    if (nearest.empty())
      return;
    finding.advice = Join(u"write ", Decoded(nearest));
    finding.edits = {Edits::Replaced(source_, key, std::string(nearest))};
  }

  void TellStar(const Source::Line& line) {
    const std::string_view key = line.entry.key;
    Finding& finding =
        Tell(Id::I02, line, key, Join(u"the entity is called ", Quoted(Join(u"*", Decoded(key)))));
    finding.edits = {Edits::Replaced(source_, key, '*' + std::string(key))};
  }

  void TellTranslatedKey(const Source::Line& line) {
    const std::string_view key = line.entry.key;
    const std::string german = Words::Encoded(language_->spoken->Key(Decoded(key)));
    Finding& finding =
        Tell(Id::T19, line, key, Join(Quoted(Decoded(key)), u" is the name in ", language_->name));
    finding.consequence = Join(Quoted(Decoded(german)), u" has no description from here");
    Suggest(finding, key, german);
  }

  void CheckQuotes(const Source::Line& line) {
    const std::string_view value = line.entry.value;
    const std::string_view text = ProfileLines::Unquoted(value);
    if (text.size() == value.size())
      return;
    const size_t quote = text.find(value.front());
    // The first quote within closes what the first of all opened.
    if (quote == 0 || quote == std::string_view::npos || text[quote - 1] == ' ')
      return;
    if (value.front() == '\'' && std::ranges::count(text, '\'') % 2 != 0)
      return;
    Finding& finding = Tell(Id::I09, line, value, u"the first and the last quote are taken off");
    const std::string pair(1, value.front());
    finding.edits = {Edits::Replaced(source_, value, pair + std::string(value) + pair)};
    finding.consequence = Join(u"the text begins ", Decoded(text.substr(0, quote + 1)));
  }

  [[nodiscard]] Text InWindow(const std::string& key) {
    const auto keyOf = [this](TextView shown) {
      return language_ ? language_->spoken->Key(shown) : Text(shown);
    };
    return InfoFile::ReadRedirected(source_.File(), Decoded(key), keyOf);
  }

  void CheckRedirect(const Source::Line& line, std::string_view target) {
    const Text window = InWindow(std::string(line.entry.key));
    const std::string_view search = InfoFile::ReadRedirected(source_.File(), line.entry.key);
    if (search.empty())
      TellMissing(line, target, window);
    else if (InfoFile::RedirectTarget(search))
      TellChain(line, target, window);
  }

  void TellMissing(const Source::Line& line, std::string_view target, const Text& window) {
    Finding& finding = Tell(Id::I03, line, ProfileLines::Unquoted(line.entry.value),
                            Join(u"there is no entry ", Quoted(Decoded(target))));
    finding.consequence =
        window.empty()
            ? Join(u"no text; the tooltip is ",
                   Quoted(InfoFile::TooltipOf(Decoded(ProfileLines::Unquoted(line.entry.value)))))
            : Text(u"the information window shows the text, the search does not find it");
    if (findings_.IsWorthHelp(Id::I03))
      Suggest(finding, target, Nearest::Of(target, source_.File().KeyNames(section_->name)));
  }

  void TellChain(const Source::Line& line, std::string_view target, const Text& window) {
    Finding& finding = Tell(Id::I04, line, ProfileLines::Unquoted(line.entry.value),
                            Join(Quoted(Decoded(target)), u" is a redirection too"));
    finding.consequence = Join(Quoted(window.substr(0, 80)), u" is shown");
    std::string end(target);
    for (size_t step = 0; step < MostSteps; ++step) {
      const auto next = InfoFile::RedirectTarget(InfoFile::ReadEntry(source_.File(), end));
      if (!next)
        return Suggest(finding, target, end);
      end = Trimmed(*next);
    }
    finding.message = u"a redirection that leads back to itself";
    finding.advice = u"write the text in one of the entries";
  }

  void CheckBrokenLine(const Source::Line& line, size_t number) {
    if (!IsBelowEntry(number))
      return;
    Finding& finding = Tell(Id::I05, line, line.text.raw, u"a line without \"=\" below an entry");
    finding.consequence = u"the text ends in the line above";
    finding.edits = {Joined(number)};
  }

  [[nodiscard]] bool IsBelowEntry(size_t number) const {
    const LineKind above = source_.Lines()[number - 1].entry.kind;
    return above == LineKind::KeyWithValue || above == LineKind::KeyWithoutValue;
  }

  // The two characters that stand for a new line instead of the one above.
  [[nodiscard]] Edit Joined(size_t number) const {
    const auto& end = source_.Lines()[number - 1].text.end;
    return Edits::Replaced(source_, end, "\\n");
  }

  // A second header in this file is most likely the next line of a text.
  void CheckBroken(const Source::Section& next) {
    if (ProfileLines::SameName(next.name, Section) || !IsBelowEntry(next.line))
      return;
    const Source::Line& line = source_.Lines()[next.line];
    Finding& finding = Tell(Id::I08, line, next.header, u"a line that begins a section");
    finding.consequence =
        Join(u"the text ends in the line above, and ",
             Count(next.end - next.line - 1, u"line", u"lines"), u" below are not read");
    finding.edits = {Joined(next.line)};
  }

  [[nodiscard]] bool HasText(const Source& source, std::string_view name) const {
    return !InfoFile::ReadRedirected(source.File(), name).empty();
  }

  void CheckCoverage() {
    std::vector<Text> names;
    for (const std::string_view name : index_.Names())
      if (!HasText(source_, name) && (!language_ || HasText(*index_.info, name)))
        names.push_back(Decoded(name));
    if (names.empty())
      return;
    Finding& finding = findings_.Add(language_ ? Id::T20 : Id::I07, source_, section_->header);
    finding.section = u"info";
    finding.message = Join(Count(names.size(), u"entity", u"entities"),
                           language_ ? u" described in German alone" : u" without a description");
    finding.details = std::move(names);
  }

  static constexpr size_t MostSteps = 20;

  Index& index_;
  Findings& findings_;
  const Source& source_;
  Index::Language* language_;
  const Source::Section* section_ = nullptr;
  std::unordered_set<std::string> targets_;
};

}  // namespace

void Checks::Descriptions(Index& index, Findings& findings) {
  InfoCheck(index, findings, *index.info, nullptr).Check();
  for (Index::Language& language : index.languages)
    if (language.info)
      InfoCheck(index, findings, *language.info, &language).Check();
}
