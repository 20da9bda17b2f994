#pragma once

#include "platform/Text.h"

#include <array>

/// The five regions of the game, in the order of all their files, menus and searches.
enum class Region { Arvenna, Skaldor, Sarrakh, Ostrakh, Ancestors };

/// What tells one region from the others.
struct RegionRow {
  Region region;
  /// The name of its data file and its picture, without the extensions.
  TextView stem;
  /// The word in entity names that languages translate.
  TextView word;
  /// Whether its data file may list the teachers of perks.
  bool hasPerks;
};

inline constexpr std::array<RegionRow, 5> Regions = {{
    {Region::Arvenna, u"arvenna", u"Arvenna", true},
    {Region::Skaldor, u"skaldor", u"Skaldor", true},
    {Region::Sarrakh, u"sarrakh", u"Sarrakh", true},
    {Region::Ostrakh, u"ostrakh", u"Ostrakh", false},
    {Region::Ancestors, u"ancestors", u"Tempel von", false},
}};

/// The row of a region.
[[nodiscard]] constexpr const RegionRow& RowOf(Region region) {
  return Regions[static_cast<size_t>(region)];
}
