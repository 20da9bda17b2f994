#include "check/Template.h"

#include "check/Words.h"

#include <algorithm>

using Words::Encoded;

namespace {

constexpr std::string_view LineEnd = "\r\n";

// A value as it has to be written to be read as it is.
std::string AsValue(std::string value) {
  if (!value.empty() && (value.front() == ' ' || value.back() == ' '))
    return '"' + value + '"';
  return value;
}

class Writer {
 public:
  Writer(Index& index, const Template::Question& question) : index_(index), question_(question) {}

  std::string File() {
    Comment("A language of Orvalis: save it as LANG/NAME/NAME.lng.");
    Comment("\"language\" and the folder may be called anything but \"Deutsch\", both alike.");
    std::vector<TextView> sections;
    for (const TextRow& text : index_.texts)
      if (std::ranges::find(sections, text.section) == sections.end())
        sections.push_back(text.section);
    for (const TextView section : sections)
      WriteSection(section);
    WriteNames();
    return std::move(file_);
  }

 private:
  void Line(std::string_view words) { file_.append(words).append(LineEnd); }

  void Comment(std::string_view words) { Line("; " + std::string(words)); }

  [[nodiscard]] std::string Own(std::string_view section, std::string_view key) const {
    return question_.language && question_.language->file
               ? std::string(question_.language->file->File().Read(section, key))
               : std::string();
  }

  [[nodiscard]] std::string ValueOf(const TextRow& text) const {
    std::string own = Own(Encoded(text.section), Encoded(text.key));
    // What a language says of itself is nobody else's.
    const bool german = question_.german && text.section != u"general";
    return own.empty() ? Encoded(german ? text.german : text.english) : own;
  }

  [[nodiscard]] bool IsWanted(const TextRow& text) const {
    return !question_.missingOnly || Own(Encoded(text.section), Encoded(text.key)).empty();
  }

  // Words of regions and beginnings translate names that have no key of their own.
  [[nodiscard]] bool IsTranslated(const std::string& name) {
    if (!Own("entities", name).empty())
      return true;
    if (!question_.language)
      return false;
    const LOCAL::Language& spoken = *question_.language->spoken;
    const Text german = Words::Decoded(name);
    return spoken.Shown(spoken.NameFile(index_.files), german) != german;
  }

  void WriteSection(TextView section) {
    std::vector<const TextRow*> texts;
    std::string empty;
    for (const TextRow& text : index_.texts) {
      if (text.section != section || !IsWanted(text))
        continue;
      texts.push_back(&text);
      if (text.english.empty() && section != u"general")
        empty.append(empty.empty() ? "" : ", ").append(Encoded(text.key));
    }
    if (texts.empty())
      return;
    Line("");
    if (!empty.empty())
      Comment("Without a text of yours nothing is shown for: " + empty);
    Line('[' + Encoded(section) + ']');
    for (const TextRow* text : texts)
      Line(Encoded(text->key) + '=' + AsValue(ValueOf(*text)));
  }

  void WriteNames() {
    std::vector<std::string> names;
    for (const std::string_view name : index_.Names())
      names.emplace_back(name);
    for (const RegionRow& region : Regions)
      names.push_back(Encoded(region.word));
    std::ranges::sort(names, [](const std::string& a, const std::string& b) {
      return a.size() != b.size() ? a.size() > b.size() : a < b;
    });
    names.erase(std::unique(names.begin(), names.end()), names.end());
    Line("");
    Comment("Names of the map: longer ones stand above those that they begin with.");
    Comment("A word of a region is replaced first: write other keys with it translated.");
    Line("[entities]");
    for (const std::string& name : names)
      if (!question_.missingOnly || !IsTranslated(name))
        Line(name + '=' + AsValue(Own("entities", name)));
  }

  Index& index_;
  const Template::Question& question_;
  std::string file_;
};

}  // namespace

std::string Template::Make(Index& index, const Question& question) {
  return Writer(index, question).File();
}
