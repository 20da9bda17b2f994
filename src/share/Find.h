#pragma once

#include "share/SharedWorld.h"

#include <span>
#include <vector>

namespace Share {

/// What is looked for, and in which texts.
struct Query {
  Text term;
  /// As the viewer searches: names begin with the term, descriptions hold it, letter case counts,
  /// and what its search hides stays hidden. Else anything that holds the term, whatever the case
  /// and accents of both.
  bool exact = false;
  bool names = true;
  bool descriptions = true;
  /// Names and captions of categories: all their entities are hits.
  bool sections = false;
};

/// An entity that fits, with the category and the region that it stands in.
struct Hit {
  const RegionMap* map;
  const Category* category;
  const Entity* entity;
};

/// All entities that fit, in the order of the maps; who stands in several categories, in each.
[[nodiscard]] std::vector<Hit> Find(std::span<const RegionMap> maps, const Query& query);

/// The part of the description around the first place that holds the term, whatever case and
/// accents, else its start: one line, "…" where something is left out.
[[nodiscard]] Text Excerpt(TextView description, TextView term);

}  // namespace Share
