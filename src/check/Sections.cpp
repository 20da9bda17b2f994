#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "mapdata/display/Plan.h"
#include "perks/PerkCatalogue.h"

#include <algorithm>
#include <array>

using Rules::Id;
using Texts::Join;
using Words::Count;
using Words::Decoded;
using Words::Number;
using Words::Quoted;

namespace {

constexpr TextView PerkWord = u"perk ";

// One header of a region's data file.
class Header {
 public:
  Header(Index& index, Findings& findings, size_t region, size_t number)
      : index_(index),
        findings_(findings),
        region_(region),
        number_(number),
        source_(*index.data[region]),
        section_(source_.Sections()[number]),
        name_(Decoded(section_.name)) {}

  void Check() {
    if (Listed() > MapPlan::MaximumMarkers)
      CheckMarkers();
    if (number_ > 0 && !section_.header.starts_with('['))
      return TellIndented();
    if (!section_.plain)
      return TellBlanks();
    if (!section_.listed)
      return TellTwice();
    if (!section_.found)
      return TellSpellings();
    if (!index_.CategoryOf(region_, section_.name))
      TellUnknown();
  }

 private:
  Finding& Add(Id rule, std::string_view words, Text message) {
    Finding& finding = findings_.Add(rule, source_, words);
    finding.section = name_;
    finding.message = std::move(message);
    return finding;
  }

  // The lines below the header, whoever reads them.
  [[nodiscard]] size_t Lines() const {
    size_t count = 0;
    for (size_t line = section_.line + 1; line < section_.end; ++line)
      count += source_.Lines()[line].isListed ? 1 : 0;
    return count;
  }

  [[nodiscard]] size_t Listed() const {
    if (!section_.plain || !section_.listed)
      return 0;
    return source_.File().KeyNames(section_.name).size();
  }

  [[nodiscard]] Text Entities(size_t count) const { return Count(count, u"entity", u"entities"); }

  // What the search makes of the section's lines under the name as it stands.
  [[nodiscard]] Text SearchOfLines() const {
    const size_t found = source_.File().KeyNames(section_.name).size();
    return found == 0 ? Text(u"the search finds nothing of it")
                      : Join(u"the search finds its ", Entities(found));
  }

  [[nodiscard]] Text EmptyCategory(TextView category) const {
    return Join(u"category ", Quoted(category), u" is empty, ", SearchOfLines());
  }

  // The name that was meant: a category of the region or a perk but for letter case.
  [[nodiscard]] TextView Meant() const {
    const Text wanted = Texts::Lower(name_);
    for (const Index::Category& category : index_.categories[region_])
      if (Texts::Lower(category.section) == wanted)
        return category.section;
    return name_;
  }

  // Where the first entity below the header stands for look-ups in the section of that number.
  [[nodiscard]] Text FirstPlace(size_t section) const {
    for (size_t line = section_.line + 1; line < section_.end; ++line)
      if (const Source::Line& entity = source_.Lines()[line]; entity.isListed)
        return Words::At(EntityFile::MarkerPosition(
            EntityFile::Read(source_.File(), source_.Sections()[section].name, entity.listed)));
    return u"0,0";
  }

  void CheckMarkers() {
    const Index::Category* category = index_.CategoryOf(region_, section_.name);
    if (!category || category->isList)
      return;
    const auto keys = source_.File().KeyNames(section_.name);
    Finding& finding = Add(Id::S09, keys[MapPlan::MaximumMarkers],
                           Join(Count(keys.size(), u"line", u"lines"), u" in ", Quoted(name_)));
    for (size_t i = MapPlan::MaximumMarkers; i < keys.size(); ++i)
      finding.details.push_back(Decoded(keys[i]));
    finding.consequence =
        Join(Count(keys.size() - MapPlan::MaximumMarkers, u"line has", u"lines have"),
             u" no marker, the first is ", Quoted(finding.details.front()));
  }

  void TellIndented() {
    Finding& finding = Add(Id::S03, section_.header, u"this header does not start its line");
    const Source::Line& line = source_.Lines()[section_.line];
    const size_t above = line.listedIn;
    if (above != Source::None) {
      const Text into = Decoded(source_.Sections()[above].name);
      finding.consequence = Join(u"its ", Entities(Lines()), Lines() == 1 ? u" is" : u" are",
                                 u" shown in category ", Quoted(into), u" at ", FirstPlace(above),
                                 u", and so is a marker ", Quoted(Decoded(line.listed)));
    }
    finding.advice = u"remove the blanks before \"[\"";
    const size_t indent = section_.header.find('[');
    finding.edits = {Edits::Replaced(source_, section_.header.substr(0, indent), "")};
    if (section_.header.substr(indent) != Plain())
      finding.edits = {Edits::Replaced(source_, section_.header, Plain())};
    finding.isSafe = !HasTextBehind();
  }

  [[nodiscard]] std::string Plain() const { return '[' + Words::Encoded(Meant()) + ']'; }

  [[nodiscard]] bool HasTextBehind() const {
    const size_t end = section_.header.find(']');
    return end == std::string_view::npos ||
           !ProfileLines::Strip(section_.header.substr(end + 1), ProfileLines::Blanks).empty();
  }

  void TellBlanks() {
    const bool closed = section_.header.find(']') != std::string_view::npos;
    const bool isEntry = !closed && section_.header.find('=') != std::string_view::npos;
    Finding& finding = Add(Id::S02, section_.header,
                           isEntry           ? u"a name can't begin with \"[\""
                           : !closed         ? u"this header is not closed by \"]\""
                           : HasTextBehind() ? u"text behind a header"
                                             : u"blanks around or in a header");
    finding.consequence = Join(EmptyCategory(Meant()), u"; ", Entities(Lines()), u" below it");
    if (isEntry) {
      finding.consequence =
          Join(u"it begins a section, and ", Entities(Lines()), u" below it are of no category");
      return;
    }
    finding.advice = Join(u"write ", Decoded(Plain()), u" alone in its line");
    finding.edits = {Edits::Replaced(source_, section_.header, Plain())};
    finding.isSafe = closed && !HasTextBehind();
  }

  void TellTwice() {
    const Source::Section& first = source_.Sections()[source_.FindListed(section_.name)];
    Finding& finding = Add(Id::S04, section_.header, Join(u"a second section ", Quoted(name_)));
    const size_t listed = source_.File().KeyNames(section_.name).size();
    finding.consequence = Join(u"its ", Entities(Lines()), u" nowhere, and the search lists the ",
                               Number(listed), u" of the first one twice");
    finding.advice = Join(u"move its lines to the section of line ", Number(first.line + 1));
    finding.edits = Edits::Merged(source_, first, section_);
  }

  void TellSpellings() {
    const Source::Section& first = source_.Sections()[source_.FindSection(section_.name)];
    Finding& finding = Add(Id::S05, section_.header,
                           Join(Quoted(name_), u" is the section ", Quoted(Decoded(first.name)),
                                u" of line ", Number(first.line + 1), u" in another spelling"));
    const bool shown = index_.CategoryOf(region_, section_.name) != nullptr;
    const Text place = FirstPlace(number_);
    finding.consequence = shown
                              ? Join(u"its ", Entities(Listed()),
                                     u" are named here and looked for there: they stand at ", place)
                              : Join(u"the search finds its ", Entities(Listed()), u" at ", place);
    finding.advice = Join(u"merge the two as ", Decoded(Plain()));
    finding.edits = Edits::Merged(source_, first, section_);
    finding.edits.push_back(Edits::Replaced(source_, first.header, Plain()));
  }

  void TellUnknown() {
    const TextView meant = Meant();
    const bool perk = Texts::Lower(name_).starts_with(PerkWord);
    // What stands below this one tells of both.
    if (meant != name_ && source_.FindListed(Words::Encoded(meant)) != Source::None)
      return;
    if (meant != name_)
      return TellCase(perk ? Id::S10 : Id::S01, meant);
    for (size_t other = 0; other < Regions.size(); ++other)
      if (index_.CategoryOf(other, section_.name))
        return TellElsewhere();
    if (perk)
      return TellNoPerk();
    TellNoCategory();
  }

  void TellCase(Id rule, TextView meant) {
    Finding& finding =
        Add(rule, section_.header, Join(u"letter case counts in ", Decoded(section_.header)));
    finding.consequence =
        rule == Id::S10 ? Join(u"the perk is not listed, ", SearchOfLines()) : EmptyCategory(meant);
    finding.advice = Join(u"write [", meant, u"]");
    finding.edits = {Edits::Replaced(source_, section_.header, Plain())};
  }

  void TellElsewhere() {
    Text regions;
    for (size_t other = 0; other < Regions.size(); ++other)
      if (index_.CategoryOf(other, section_.name))
        regions.append(regions.empty() ? u"" : u", ").append(index_.data[other]->name);
    Finding& finding =
        Add(Id::S07, section_.header, Join(u"this region has no category ", Quoted(name_)));
    finding.consequence = Join(u"no menu shows it; ", SearchOfLines());
    finding.advice = Join(u"it is a category of ", regions);
  }

  void TellNoPerk() {
    Finding& finding = Add(Id::S10, section_.header, Join(u"there is no ", Quoted(name_)));
    finding.consequence = Join(u"it is not listed; ", SearchOfLines());
    finding.isSafe = false;
    Suggest(finding, true);
  }

  void TellNoCategory() {
    const bool linked = IsLinkedTo();
    Finding& finding = Add(Id::S06, section_.header, Join(u"no menu asks for ", Quoted(name_)));
    finding.consequence = Join(u"it is not shown; ", SearchOfLines());
    if (linked)
      finding.severity = Rules::Severity::Note;
    else
      Suggest(finding, false);
  }

  void Suggest(Finding& finding, bool perks) {
    if (!findings_.IsWorthHelp(finding.rule))
      return;
    std::vector<Text> names;
    for (const Index::Category& category : index_.categories[region_])
      if (category.isPerk == perks)
        names.emplace_back(category.section);
    const Text nearest = Nearest::Of(name_, names);
    if (nearest.empty())
      return;
    finding.advice = Join(u"write [", nearest, u"]");
    finding.edits = {
        Edits::Replaced(source_, section_.header, '[' + Words::Encoded(nearest) + ']')};
  }

  [[nodiscard]] bool IsLinkedTo() const {
    return index_.linkTargets[region_].contains(Words::Folded(section_.name));
  }

  Index& index_;
  Findings& findings_;
  size_t region_;
  size_t number_;
  const Source& source_;
  const Source::Section& section_;
  Text name_;
};

void CheckAbsent(Index& index, Findings& findings, size_t region) {
  const Source& source = *index.data[region];
  std::vector<Text> absent;
  for (const Index::Category& category : index.categories[region]) {
    const size_t section = source.FindSection(Words::Encoded(category.section));
    const bool empty = section == Source::None ||
                       source.Sections()[section].line + 1 >= source.Sections()[section].end;
    if (!category.isPerk && empty)
      absent.emplace_back(category.section);
  }
  if (absent.empty() || source.Sections().empty())
    return;
  Finding& finding = findings.Add(Id::S08, source, source.Bytes().substr(0, 0));
  finding.message = Join(Count(absent.size(), u"category", u"categories"), u" without a line");
  finding.consequence = u"their commands show an empty map";
  finding.details = std::move(absent);
}

// Files whose sections nobody lists by their headers.
void CheckLookedUp(const Source& source, Findings& findings) {
  for (const Source::Section& section : source.Sections()) {
    if (section.found || section.name.empty())
      continue;
    const Source::Section& first = source.Sections()[source.FindSection(section.name)];
    Finding& finding = findings.Add(Id::S04, source, section.header);
    finding.section = Decoded(section.name);
    finding.message = Join(u"a second section ", Quoted(finding.section));
    finding.consequence = Join(
        u"nothing of its ", Count(section.end - section.line - 1, u"line", u"lines"), u" is read");
    finding.advice = Join(u"move its lines to the section of line ", Number(first.line + 1));
    finding.edits = Edits::Merged(source, first, section);
  }
}

}  // namespace

void Checks::Sections(Index& index, Findings& findings) {
  for (size_t region = 0; region < Regions.size(); ++region) {
    const size_t count = index.data[region]->Sections().size();
    for (size_t number = 0; number < count; ++number)
      if (!index.data[region]->Sections()[number].name.empty())
        Header(index, findings, region, number).Check();
    CheckAbsent(index, findings, region);
  }
  for (const Source& source : index.sources)
    if (source.kind != Source::Kind::Data)
      CheckLookedUp(source, findings);
}
