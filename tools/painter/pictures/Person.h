#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "map/Tone.h"

namespace Pictures {

using Map::Tone;

/// What a trade wears on its head, where the person is covered; veils are never taken off.
enum class Headgear { None, Hood, Helmet, Turban, Hat, Circlet, Bandana, FurCap, Veil, Feather };
/// What a trade wears at the neck and on the shoulders.
enum class Clothes { Robe, Armour, Leather, Apron, Fur, Rags, Noble };
/// The sign on a trade's badge; those without one wear no badge.
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
  bool young = false;
  Tone skin, hair, eyes, cloth, backdrop;
  /// 0 to 5, different for women, men and orcs; only women have hair in style 0.
  int hairStyle = 0;
  /// 0 is none, 1 stubble, 2 a moustache, 3 a goatee besides, 4 to 6 ever longer full ones;
  /// orcs have a tuft from 4 on.
  int beard = 0;
  /// What lies behind the person: 0 hills, 1 an arch, 2 trunks, 3 a drape, 4 nothing.
  int scenery = 0;
  /// Whether the headgear is on.
  bool covered = false;
  bool scarred = false;
  bool painted = false;
  bool earrings = false;
  bool eyepatch = false;
  bool oneEared = false;
  bool noseRing = false;
  /// Orcs only: 0 to 3, which and how long.
  int tusks = 0;
  bool mirrored = false;
  /// Parts of the face, -1 to 1 around the average.
  double width = 0, jaw = 0, nose = 0, brow = 0, mouth = 0, eyeSize = 0;
};

/// The person of that name and role; the same names are always the same person. The sex "f" is a
/// woman, any other a man; an unknown role is dressed as a peasant. `marks` are what is told of the
/// person, with "-" between them: young, adult, old, beard, scar, patch, oneear, hat.
[[nodiscard]] Person MakePerson(std::string_view sex, std::string_view role, std::string_view name,
                                std::string_view marks);

/// A number that follows from the letters alone.
[[nodiscard]] std::uint32_t NameSeed(std::string_view name);

}  // namespace Pictures
