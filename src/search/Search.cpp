#include "search/Search.h"

#include "i18n/LOCAL.h"
#include "i18n/TextRow.h"
#include "i18n/WindowTexts.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"

#include <optional>
#include <string_view>
#include <utility>

using LOCAL::Language;
using Texts::Join;
using Texts::ReplaceAll;
using WindowTexts::Row;

namespace {

constexpr TextView LineEnd = u"\r\n";
constexpr TextView EmptyLine = u"\r\n\r\n";

Search::Outcome OutcomeOf(Search::State& state, std::optional<size_t> found) {
  if (!found)
    return Search::NothingFound();
  state.LastFoundIndex = *found;
  return Search::Hit{*found};
}

std::optional<size_t> FindName(const Search::State& state, size_t from) {
  return state.Cache.Find(from, [term = TextView(state.SearchTerm)](TextView name, const auto&) {
    return name.starts_with(term);
  });
}

std::optional<size_t> FindTranslatedName(const Search::State& state, IniOps::Snapshot& files,
                                         const Language& language) {
  const auto nameFile = language.NameFile(files);
  return state.Cache.Find(0, [&](TextView name, const auto&) {
    return language.LocalizeEntityName(nameFile, name).starts_with(state.SearchTerm);
  });
}

// Nothing is found in an empty description, whatever the term.
std::optional<size_t> FindDescription(const Search::State& state, size_t from) {
  const auto term = Windows1252::Encode(state.SearchTerm);
  if (!term)
    return std::nullopt;
  return state.Cache.Find(from, [&term](TextView, std::string_view description) {
    return !description.empty() && description.find(*term) != std::string_view::npos;
  });
}

std::optional<InvalidLink> Fill(EntityCache& cache, IniOps::Snapshot& files, const World& world) {
  // A filling without records, or stopped by an invalid link, may have left regions and sections.
  cache = EntityCache();
  for (const ProgramPaths::RegionFiles& region : world.paths.regions)
    if (auto invalid = cache.CacheEntities(files, world.language, region))
      return invalid;
  return std::nullopt;
}

}  // namespace

namespace Search {

Outcome FindFirst(State& state, IniOps::Snapshot& files, const World& world, TextView term) {
  state.SearchTerm = term;
  if (state.Cache.Size() == 0)
    if (auto invalid = Fill(state.Cache, files, world))
      return *std::move(invalid);
  if (state.SearchMode == Mode::Descriptions)
    return OutcomeOf(state, FindDescription(state, 0));
  return OutcomeOf(state, world.language.IsGerman()
                              ? FindName(state, 0)
                              : FindTranslatedName(state, files, world.language));
}

Outcome FindNext(State& state) {
  const size_t from = state.LastFoundIndex + 1;
  return OutcomeOf(state, state.SearchMode == Mode::Names ? FindName(state, from)
                                                          : FindDescription(state, from));
}

Message NotFoundMessage(const State& state, IniOps::Snapshot& files, const Language& language) {
  const Text text = language.Lookup(files, Row(u"frmFind", u"notfoundmessage"));
  return {ReplaceAll(text, TextRow::Placeholder, state.SearchTerm),
          language.Lookup(files, Row(u"frmFind", u"notfoundcaption"))};
}

Message InvalidLinkMessage(const InvalidLink& link) {
  return {Join(u"DB: ", NativePath::ForDisplay(link.Database), EmptyLine, u"[", link.Section, u"]",
               LineEnd, link.Key, u"=#,", link.Target, EmptyLine, u"Link-Target invalid!"),
          u"Link Error"};
}

Text ResultHeading(const State& state, IniOps::Snapshot& files, const Language& language) {
  const Text text = language.Lookup(files, Row(u"frmFind", u"SearchResult"));
  const Text heading = ReplaceAll(text, TextRow::Placeholder, state.SearchTerm) + u" ";
  return language.IsGerman() ? u" " + heading : heading;
}

}  // namespace Search
