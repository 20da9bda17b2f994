#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "map/Tone.h"

namespace Pictures {

using Map::Tone;

enum class Headgear { None, Hood, Helmet, Turban, Hat, Circlet, Bandana, FurCap, Veil, Feather };
enum class Clothes { Robe, Armour, Leather, Apron, Fur, Rags, Noble };
enum class Emblem {
  None,
  Flame,
  Drop,
  Leaf,
  Hammer,
  Bow,
  Flask,
  Coin,
  Sun,
  Skull,
  Crescent,
  Dagger,
  Star,
  Cross
};

/// What a trade wears, and before what it is painted.
struct Role {
  std::string_view name;
  Tone backdrop;
  Tone cloth;
  Tone trim;
  Headgear headgear;
  Clothes clothes;
  Emblem emblem;
};

/// Everything that tells one person from another.
struct Person {
  Role role;
  bool woman = false;
  bool orc = false;
  bool ghost = false;
  bool old = false;
  Tone skin, hair, eyes, cloth, backdrop;
  int hairStyle = 0;
  int beard = 0;
  int scenery = 0;
  bool covered = false;
  bool scarred = false;
  bool painted = false;
  bool earrings = false;
  bool eyepatch = false;
  bool noseRing = false;
  /// Orcs only: 0 to 3, which and how long.
  int tusks = 0;
  bool mirrored = false;
  /// Parts of the face, -1 to 1 around the average.
  double width = 0, jaw = 0, nose = 0, brow = 0, mouth = 0, eyeSize = 0;
};

/// The person of that name; the same name is always the same person.
[[nodiscard]] Person MakePerson(std::string_view sex, std::string_view role, std::string_view name);

/// A number that follows from the letters alone.
[[nodiscard]] std::uint32_t NameSeed(std::string_view name);

}  // namespace Pictures
