#include "share/Find.h"

#include "mapdata/files/StringOps.h"
#include "search/Folding.h"

#include <algorithm>

using Share::Category;
using Share::Entity;
using Share::Query;

namespace {

constexpr size_t LongestExcerpt = 80;
constexpr size_t BeforeTerm = 30;
constexpr TextView Cut = u"…";

bool Fits(const Category& category, const Query& query) {
  if (query.exact)
    return category.section == query.term || category.caption == query.term;
  return Search::Holds(category.section, query.term) || Search::Holds(category.caption, query.term);
}

bool Fits(const Entity& entity, const Query& query) {
  if (query.exact)
    return !entity.hiddenFromSearch &&
           ((query.names && entity.name.starts_with(query.term)) ||
            (query.descriptions && StringOps::StrContains(entity.description, query.term)));
  return (query.names && Search::Holds(entity.name, query.term)) ||
         (query.descriptions && !entity.description.empty() &&
          Search::Holds(entity.description, query.term));
}

// A folded letter may be two or none.
size_t PlaceOf(TextView text, TextView term) {
  const size_t found = Search::Folded(text).find(Search::Folded(term));
  size_t place = 0;
  if (found != Text::npos)
    for (size_t folded = 0; folded < found; ++place)
      folded += Search::Folded(text.substr(place, 1)).size();
  return place;
}

}  // namespace

namespace Share {

std::vector<Hit> Find(std::span<const RegionMap> maps, const Query& query) {
  std::vector<Hit> hits;
  for (const RegionMap& map : maps)
    for (const Category& category : map.categories) {
      const bool all = query.sections && Fits(category, query);
      for (const Entity& entity : category.entities)
        if (all || Fits(entity, query))
          hits.push_back({&map, &category, &entity});
    }
  return hits;
}

Text Excerpt(TextView description, TextView term) {
  const Text line = Texts::ReplaceAll(description, u"\n", u" ");
  const size_t place = PlaceOf(line, term);
  size_t begin = place + term.size() <= LongestExcerpt ? 0 : place - std::min(place, BeforeTerm);
  // Not in the middle of a word.
  if (const size_t blank = line.find(u' ', begin); begin > 0 && blank < place)
    begin = blank + 1;
  size_t end = line.size();
  if (end - begin > LongestExcerpt) {
    const size_t least = std::min(place + term.size(), end);
    const size_t blank = line.rfind(u' ', begin + LongestExcerpt);
    end = blank != Text::npos && blank >= least ? blank : std::max(least, begin + LongestExcerpt);
  }
  return Texts::Join(begin > 0 ? Cut : TextView(), TextView(line).substr(begin, end - begin),
                     end < line.size() ? Cut : TextView());
}

}  // namespace Share
