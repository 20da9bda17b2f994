#include "perks/PerkCatalogue.h"

#include <algorithm>

namespace PerkCatalogue {

const Perk* Find(TextView key) {
  const auto found =
      std::find_if(Perks.begin(), Perks.end(), [key](const Perk& perk) { return perk.key == key; });
  return found == Perks.end() ? nullptr : found;
}

}  // namespace PerkCatalogue
