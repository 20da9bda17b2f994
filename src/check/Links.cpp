#include "check/Checks.h"
#include "check/Edits.h"
#include "check/EntityLine.h"
#include "check/Nearest.h"
#include "check/Value.h"
#include "check/Words.h"

#include <algorithm>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Words::Count;
using Words::Decoded;
using Words::Encoded;
using Words::Number;
using Words::Quoted;

namespace {

constexpr size_t LongestChain = 20;

// The sections that say where a name stands, and those where its line is switched off.
struct Sections {
  std::vector<size_t> on;
  std::vector<size_t> off;
};

// Those of each name of one region.
using Places = std::unordered_map<std::string, Sections>;

class LinkCheck {
 public:
  LinkCheck(Index& index, Findings& findings, const std::array<Places, Regions.size()>& places)
      : index_(index), findings_(findings), places_(places) {}

  void Check(const Index::Entity& entity) {
    const EntityLine line(index_, entity);
    if (entity.IsDisabled() || !line.IsSound() || !line.IsFound())
      return;
    const EntityFile::Entity read = line.Read();
    if (!read.link)
      return;
    const Text target = Decoded(*read.link);
    if (!EntityFile::FoundPosition(read))
      TellInvalid(entity, line, target);
    else if (LinkOf(line, target))
      TellChain(entity, line, target);
    else if (!EntityFile::PickedPosition(read))
      TellNoNumber(line, target);
  }

 private:
  void TellInvalid(const Index::Entity& entity, const EntityLine& line, const Text& target) {
    const bool off = IsSwitchedOffThere(entity, target);
    Finding& finding =
        line.Tell(findings_, off ? Id::L02 : Id::L01, line.Value(), Reason(entity, target, off));
    if (!line.IsSearched())
      finding.severity = Rules::Severity::Error;
    if (off)
      return;
    const auto sections = SectionsOf(entity);
    if (sections.empty())
      return Suggest(entity, target, finding);
    finding.advice = Advice(entity.region, sections);
    if (sections.size() == 1)
      Offer(line, finding, sections.front());
  }

  [[nodiscard]] bool IsSwitchedOffThere(const Index::Entity& entity, const Text& target) const {
    const size_t section = index_.data[entity.region]->FindSection(Encoded(target));
    const auto found = places_[entity.region].find(Words::Folded(entity.name));
    return found != places_[entity.region].end() &&
           std::ranges::find(found->second.off, section) != found->second.off.end();
  }

  [[nodiscard]] Text Reason(const Index::Entity& entity, const Text& target, bool off) const {
    const Text name = Decoded(entity.name);
    if (target.empty())
      return u"a link without a section";
    if (off)
      return Join(u"the line of ", Quoted(name), u" in section ", Quoted(target),
                  u" is switched off");
    if (index_.data[entity.region]->FindSection(Encoded(target)) == Source::None)
      return Join(u"there is no section ", Quoted(target));
    return Join(u"section ", Quoted(target), u" has no position for ", Quoted(name));
  }

  [[nodiscard]] std::vector<size_t> SectionsOf(const Index::Entity& entity) const {
    const auto found = places_[entity.region].find(Words::Folded(entity.name));
    return found == places_[entity.region].end() ? std::vector<size_t>() : found->second.on;
  }

  [[nodiscard]] Text Advice(size_t region, const std::vector<size_t>& sections) const {
    Text advice = u"write ";
    for (const size_t section : sections)
      advice.append(section == sections.front() ? u"#," : u" or #,")
          .append(Decoded(index_.data[region]->Sections()[section].name));
    return advice;
  }

  void Offer(const EntityLine& line, Finding& finding, size_t section) const {
    const std::string_view value = line.Value();
    const std::string mark = Value::Field(value, 3) == "*" ? ",*" : "";
    const std::string name(line.File().Sections()[section].name);
    finding.edits = {Edits::Replaced(line.File(), value, "#," + name + mark)};
  }

  // The name stands nowhere in this file as it is written.
  void Suggest(const Index::Entity& entity, const Text& target, Finding& finding) {
    for (size_t region = 0; region < Regions.size(); ++region)
      if (const auto found = places_[region].find(Words::Folded(entity.name));
          found != places_[region].end() && !found->second.on.empty()) {
        finding.advice = Join(u"it stands in ", index_.data[region]->name,
                              u", but a link leads to a section of its own file");
        return;
      }
    if (!findings_.IsWorthHelp(finding.rule))
      return;
    const Source& source = *index_.data[entity.region];
    const bool hasSection = source.FindSection(Encoded(target)) != Source::None;
    const std::string meant(hasSection
                                ? Nearest::Of(entity.name, source.File().KeyNames(Encoded(target)))
                                : Nearest::Of(Encoded(target), NamesOf(source)));
    if (!meant.empty())
      finding.advice = Join(u"is it ", Quoted(Decoded(meant)), u"?");
  }

  [[nodiscard]] static std::vector<std::string_view> NamesOf(const Source& source) {
    std::vector<std::string_view> names;
    for (const Source::Section& section : source.Sections())
      names.push_back(section.name);
    return names;
  }

  void TellChain(const Index::Entity& entity, const EntityLine& line, const Text& target) {
    Finding& finding = line.Tell(findings_, Id::L03, line.Value(),
                                 Join(u"section ", Quoted(target), u" has a link for it too"));
    const Source& source = line.File();
    Text next = target;
    for (size_t step = 0; step < LongestChain; ++step) {
      const auto there = EntityFile::Read(source.File(), Encoded(next), entity.name);
      if (!there.link && EntityFile::PickedPosition(there)) {
        finding.advice = Join(u"write #,", next);
        Offer(line, finding, source.FindSection(Encoded(next)));
        return;
      }
      next = Decoded(there.link.value_or(""));
    }
    finding.message = u"a link that leads back to itself";
    finding.advice = u"give one of the lines a position";
  }

  // Whether the line that a link leads to is a link too.
  [[nodiscard]] static bool LinkOf(const EntityLine& line, const Text& target) {
    return EntityFile::Read(line.File().File(), Encoded(target), line.Line().listed)
        .link.has_value();
  }

  void TellNoNumber(const EntityLine& line, const Text& target) {
    line.Tell(findings_, Id::L05, line.Value(),
              Join(u"the line in section ", Quoted(target), u" has no position that can be read"));
  }

  Index& index_;
  Findings& findings_;
  const std::array<Places, Regions.size()>& places_;
};

std::array<Places, Regions.size()> PlacesOf(Index& index) {
  std::array<Places, Regions.size()> places;
  for (const Index::Entity& entity : index.entities) {
    const EntityLine line(index, entity);
    auto& names = places[entity.region];
    if (entity.IsDisabled())
      names[Words::Folded(ProfileLines::Strip(entity.name.substr(1), " "))].off.push_back(
          entity.section);
    else if (line.IsSound() && Value::Plain(line.Value()))
      names[Words::Folded(entity.name)].on.push_back(entity.section);
  }
  return places;
}

// Names that stand at two places of one file.
void CheckPlaces(Index& index, Findings& findings) {
  std::array<std::unordered_map<std::string, const Index::Entity*>, Regions.size()> first;
  for (const Index::Entity& entity : index.entities) {
    const EntityLine line(index, entity);
    if (entity.IsDisabled() || !line.IsSound() || !line.IsFound())
      continue;
    const auto at = Value::Plain(line.Value());
    if (!at)
      continue;
    const auto [known, isNew] = first[entity.region].emplace(Words::Folded(entity.name), &entity);
    const EntityLine other(index, *known->second);
    if (isNew || Value::Plain(other.Value()) == at)
      continue;
    const Text section = Decoded(other.Section().name);
    Finding& finding = line.Tell(findings, Id::P14, line.Value(),
                                 Join(u"in section ", Quoted(section), u" it stands at ",
                                      Words::At(*Value::Plain(other.Value()))));
    finding.advice = Join(u"write #,", section, u" if that is right");
  }
}

// Names that differ in letter case alone.
void CheckSpellings(Index& index, Findings& findings) {
  std::unordered_map<std::string, std::string_view> first;
  std::unordered_map<std::string_view, std::string_view> other;
  for (const std::string_view name : index.Names()) {
    const auto [known, isNew] = first.emplace(Words::Folded(name), name);
    if (!isNew)
      other.emplace(name, known->second);
  }
  for (const Index::Entity& entity : index.entities) {
    const auto found = other.find(entity.name);
    if (found == other.end())
      continue;
    const EntityLine line(index, entity);
    const std::string_view key = line.Line().entry.key;
    Finding& finding = line.Tell(findings, Id::P15, key,
                                 Join(u"elsewhere it is written ", Quoted(Decoded(found->second))));
    finding.consequence = u"a language translates one of the two spellings";
    finding.edits = {Edits::Replaced(line.File(), key, std::string(found->second))};
  }
}

// Names that no window is wide enough for, each once.
void CheckLengths(Index& index, Findings& findings) {
  std::unordered_set<std::string_view> told;
  for (const Index::Entity& entity : index.entities) {
    const EntityLine line(index, entity);
    if (entity.name.size() <= Checks::LongestName || entity.IsDisabled() ||
        line.Line().entry.kind != LineKind::KeyWithValue || !told.insert(entity.name).second)
      continue;
    line.Tell(findings, Id::T22, line.Line().entry.key,
              Join(u"a name of ", Count(entity.name.size(), u"character", u"characters")))
        .consequence = u"it leaves the window";
  }
}

}  // namespace

void Checks::Links(Index& index, Findings& findings) {
  const auto places = PlacesOf(index);
  LinkCheck check(index, findings, places);
  for (const Index::Entity& entity : index.entities)
    check.Check(entity);
}

void Checks::Names(Index& index, Findings& findings) {
  CheckPlaces(index, findings);
  CheckSpellings(index, findings);
  CheckLengths(index, findings);
}
