#include "search/Search.h"

#include "i18n/LOCAL.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"

#include <optional>

using LOCAL::Language;
using Texts::Join;
using Texts::ReplaceAll;

namespace {

constexpr TextView Section = u"frmFind";
constexpr TextView TermSign = u"%s";
constexpr TextView LineEnd = u"\r\n";
constexpr TextView EmptyLine = u"\r\n\r\n";

// The first index of `from` and above for which `matches` holds.
template <typename Matches>
Search::Outcome FirstMatch(Search::State& state, size_t from, Matches matches) {
  for (size_t i = from; i < state.Cache.Size(); ++i) {
    if (!matches(i))
      continue;
    state.LastFoundIndex = i;
    return Search::Hit{i};
  }
  return Search::NothingFound();
}

Search::Outcome FindName(Search::State& state, size_t from) {
  return FirstMatch(state, from, [&state, term = TextView(state.SearchTerm)](size_t i) {
    return state.Cache.NameAt(i).starts_with(term);
  });
}

// Nothing is found in an empty description, whatever the term.
Search::Outcome FindDescription(Search::State& state, size_t from) {
  const auto term = Windows1252::Encode(state.SearchTerm);
  return FirstMatch(state, from, [&state, &term](size_t i) {
    const std::string_view description = state.Cache.DescriptionAt(i);
    return term && !description.empty() && description.find(*term) != std::string_view::npos;
  });
}

Search::Outcome FindTranslatedName(Search::State& state, IniOps::Snapshot& files,
                                   Language& language) {
  return FirstMatch(state, 0, [&](size_t i) {
    return language.LocalizeEntityName(files, state.Cache.NameAt(i)).starts_with(state.SearchTerm);
  });
}

std::optional<InvalidLink> Fill(EntityCache& cache, IniOps::Snapshot& files, Language& language,
                                const ProgramPaths& paths) {
  for (const ProgramPaths::Region& region : paths.regions)
    if (auto invalid = cache.CacheEntities(files, language, region))
      return invalid;
  cache.ShrinkToFit();
  return std::nullopt;
}

}  // namespace

namespace Search {

Outcome FindFirst(State& state, IniOps::Snapshot& files, Language& language,
                  const ProgramPaths& paths, TextView term) {
  state.SearchTerm = term;
  if (state.Cache.Size() == 0)
    if (auto invalid = Fill(state.Cache, files, language, paths))
      return *std::move(invalid);
  if (state.SearchMode == Mode::Descriptions)
    return FindDescription(state, 0);
  return language.IsGerman() ? FindName(state, 0) : FindTranslatedName(state, files, language);
}

Outcome FindNext(State& state) {
  const size_t from = state.LastFoundIndex + 1;
  return state.SearchMode == Mode::Names ? FindName(state, from) : FindDescription(state, from);
}

Message NotFoundMessage(const State& state, IniOps::Snapshot& files, const Language& language) {
  if (language.IsGerman())
    return {Join(u"Der Suchbegriff: \"", state.SearchTerm, u"\" konnte nicht gefunden werden!"),
            u"Suche beendet"};
  const Text text = files.IniRead(language.LanguageFile, Section, u"notfoundmessage", u"");
  return {ReplaceAll(text, TermSign, state.SearchTerm),
          files.IniRead(language.LanguageFile, Section, u"notfoundcaption", u"")};
}

Message InvalidLinkMessage(const InvalidLink& link) {
  return {Join(u"DB: ", NativePath::ForDisplay(link.Database), EmptyLine, u"[", link.Section, u"]",
               LineEnd, link.Key, u"=#,", link.Target, EmptyLine, u"Link-Target invalid!"),
          u"Link Error"};
}

Text ResultHeading(const State& state, IniOps::Snapshot& files, const Language& language) {
  if (language.IsGerman())
    return Join(u" Suchergebnis für: ", state.SearchTerm, u" ");
  const Text text = files.IniRead(language.LanguageFile, Section, u"SearchResult", u"");
  return ReplaceAll(text, TermSign, state.SearchTerm) + u" ";
}

}  // namespace Search
