#include "pictures/Person.h"

#include <algorithm>

#include "terrain/Noise.h"

namespace Pictures {

namespace {

constexpr Role Roles[] = {{"firemage",
                           {150, 62, 40},
                           {156, 34, 28},
                           {228, 176, 70},
                           Headgear::None,
                           Clothes::Robe,
                           Emblem::Flame},
                          {"watermage",
                           {64, 116, 156},
                           {40, 84, 150},
                           {196, 220, 236},
                           Headgear::None,
                           Clothes::Robe,
                           Emblem::Drop},
                          {"druid",
                           {92, 122, 78},
                           {78, 92, 50},
                           {172, 158, 96},
                           Headgear::Hood,
                           Clothes::Robe,
                           Emblem::Leaf},
                          {"smith",
                           {142, 84, 48},
                           {92, 66, 48},
                           {60, 46, 38},
                           Headgear::None,
                           Clothes::Apron,
                           Emblem::Hammer},
                          {"hunter",
                           {116, 128, 92},
                           {98, 84, 48},
                           {142, 116, 70},
                           Headgear::Feather,
                           Clothes::Leather,
                           Emblem::Bow},
                          {"alchemist",
                           {112, 96, 136},
                           {84, 66, 110},
                           {164, 200, 120},
                           Headgear::None,
                           Clothes::Robe,
                           Emblem::Flask},
                          {"merchant",
                           {172, 142, 92},
                           {128, 58, 70},
                           {222, 186, 96},
                           Headgear::Hat,
                           Clothes::Noble,
                           Emblem::Coin},
                          {"paladin",
                           {148, 158, 176},
                           {168, 176, 188},
                           {216, 178, 76},
                           Headgear::Helmet,
                           Clothes::Armour,
                           Emblem::Sun},
                          {"bandit",
                           {104, 92, 84},
                           {84, 62, 48},
                           {128, 34, 32},
                           Headgear::Bandana,
                           Clothes::Leather,
                           Emblem::Dagger},
                          {"nomad",
                           {214, 176, 116},
                           {206, 182, 140},
                           {140, 72, 44},
                           Headgear::Turban,
                           Clothes::Robe,
                           Emblem::Crescent},
                          {"assassin",
                           {150, 112, 84},
                           {66, 48, 56},
                           {160, 40, 40},
                           Headgear::Veil,
                           Clothes::Leather,
                           Emblem::Dagger},
                          {"ranger",
                           {96, 124, 110},
                           {58, 86, 58},
                           {150, 130, 80},
                           Headgear::Hood,
                           Clothes::Leather,
                           Emblem::Bow},
                          {"noble",
                           {132, 92, 112},
                           {98, 42, 92},
                           {228, 196, 104},
                           Headgear::Circlet,
                           Clothes::Noble,
                           Emblem::Star},
                          {"peasant",
                           {158, 160, 128},
                           {146, 124, 88},
                           {106, 86, 60},
                           Headgear::None,
                           Clothes::Rags,
                           Emblem::None},
                          {"warrior",
                           {112, 118, 130},
                           {112, 104, 98},
                           {142, 52, 42},
                           Headgear::FurCap,
                           Clothes::Fur,
                           Emblem::None},
                          {"orc",
                           {122, 102, 72},
                           {92, 68, 46},
                           {148, 42, 34},
                           Headgear::None,
                           Clothes::Fur,
                           Emblem::Skull},
                          {"orcshaman",
                           {104, 74, 104},
                           {112, 58, 52},
                           {222, 208, 160},
                           Headgear::Feather,
                           Clothes::Fur,
                           Emblem::Skull},
                          {"ancestor",
                           {78, 106, 122},
                           {142, 164, 176},
                           {218, 228, 226},
                           Headgear::Circlet,
                           Clothes::Robe,
                           Emblem::Star},
                          {"thief",
                           {82, 86, 98},
                           {54, 54, 64},
                           {112, 104, 84},
                           Headgear::Hood,
                           Clothes::Leather,
                           Emblem::Coin},
                          {"healer",
                           {148, 170, 148},
                           {214, 208, 186},
                           {146, 44, 44},
                           Headgear::None,
                           Clothes::Robe,
                           Emblem::Cross}};

constexpr Tone Skins[] = {{242, 206, 178}, {230, 190, 156}, {236, 196, 168}, {214, 168, 130},
                          {226, 180, 148}, {190, 142, 104}, {204, 158, 122}};
constexpr Tone SouthernSkins[] = {{190, 138, 98}, {164, 114, 78}, {142, 96, 64}, {206, 156, 114}};
constexpr Tone OrcSkins[] = {{104, 138, 66}, {146, 138, 78},  {78, 112, 96}, {154, 160, 104},
                             {132, 110, 82}, {116, 124, 122}, {70, 92, 62}};
constexpr Tone OrcEyes[] = {{226, 168, 40}, {206, 54, 36}, {238, 232, 120}, {120, 200, 190}};
constexpr Tone Hairs[] = {{52, 38, 30},    {86, 56, 34},  {128, 82, 44}, {196, 152, 84},
                          {222, 190, 126}, {150, 66, 32}, {36, 32, 34},  {106, 88, 70}};
constexpr Tone Greys[] = {{176, 172, 168}, {216, 214, 208}, {140, 136, 134}};
constexpr Tone Eyes[] = {
    {82, 122, 158}, {92, 64, 38}, {88, 124, 78}, {120, 90, 48}, {116, 128, 138}};

template <std::size_t Count>
Tone Pick(Terrain::Random& random, const Tone (&tones)[Count]) {
  return tones[random.below(static_cast<int>(Count))];
}

bool IsSouthern(std::string_view role) {
  return role == "nomad" || role == "assassin";
}

bool Has(std::string_view marks, std::string_view mark) {
  const std::size_t at = marks.find(mark);
  return at != std::string_view::npos && (at == 0 || marks[at - 1] == '-') &&
         (at + mark.size() == marks.size() || marks[at + mark.size()] == '-');
}

void MakeYoung(Person& person) {
  person.young = true;
  person.beard = 0;
  person.hairStyle = std::max(person.hairStyle, 1);
  person.covered = person.scarred = person.painted = person.earrings = false;
  person.eyeSize = 1;
  person.jaw = -1;
  person.width = -0.4;
  person.nose = -1;
}

void Mark(Person& person, std::string_view marks) {
  if (Has(marks, "young")) {
    MakeYoung(person);
  }
  if (Has(marks, "beard")) {
    person.beard = 6;
  }
  if (Has(marks, "hat")) {
    person.role.headgear = Headgear::Hat;
    person.covered = true;
  }
  // Long hair would hide that the ear is gone.
  if (Has(marks, "oneear")) {
    person.oneEared = true;
    person.hairStyle = 2;
  }
  person.scarred |= Has(marks, "scar");
  person.eyepatch |= Has(marks, "patch");
}

Tone Varied(Terrain::Random& random, const Tone& tone, double by) {
  return {tone.red * random.between(1 - by, 1 + by), tone.green * random.between(1 - by, 1 + by),
          tone.blue * random.between(1 - by, 1 + by)};
}

}  // namespace

std::uint32_t NameSeed(std::string_view name) {
  std::uint32_t seed = 2166136261U;
  for (const char letter : name) {
    seed = (seed ^ static_cast<unsigned char>(letter)) * 16777619U;
  }
  return Terrain::Hash(seed, 1, 2);
}

Person MakePerson(std::string_view sex, std::string_view role, std::string_view name,
                  std::string_view marks) {
  Terrain::Random random(NameSeed(name) ^ NameSeed(role));
  Person person;
  const auto* found = std::ranges::find(Roles, role, &Role::name);
  person.role = found == std::end(Roles) ? Roles[13] : *found;
  person.woman = sex == "f";
  person.orc = role.starts_with("orc");
  person.ghost = role == "ancestor";
  const bool oldByChance = random.chance(person.ghost ? 0.6 : 0.3);
  person.old = Has(marks, "old") || (oldByChance && !Has(marks, "young") && !Has(marks, "adult"));
  person.skin = person.orc         ? Pick(random, OrcSkins)
                : person.ghost     ? Tone{186, 206, 212}
                : IsSouthern(role) ? Pick(random, SouthernSkins)
                                   : Pick(random, Skins);
  person.skin = Varied(random, person.skin, 0.03);
  person.hair = person.old || person.ghost ? Pick(random, Greys) : Pick(random, Hairs);
  person.eyes = person.orc ? Pick(random, OrcEyes) : Pick(random, Eyes);
  person.cloth = Varied(random, person.role.cloth, 0.18);
  person.backdrop = Varied(random, person.role.backdrop, 0.16);
  person.hairStyle = random.below(6);
  person.beard = person.woman ? 0 : random.below(7);
  person.scenery = random.below(5);
  if (person.orc) {
    person.hair = Varied(random, person.hair, 0.1);
    person.backdrop = Varied(random, person.backdrop, 0.35);
  }
  person.covered = random.chance(0.72);
  person.scarred = random.chance(0.22);
  person.painted = random.chance(person.orc ? 0.6 : 0.06);
  person.earrings = random.chance(person.woman || person.orc ? 0.5 : 0.15);
  person.mirrored = random.chance(0.5);
  person.tusks = random.below(4);
  person.eyepatch = random.chance(person.orc ? 0.2 : 0.0);
  person.noseRing = random.chance(person.orc ? 0.35 : 0.0);
  for (double* part :
       {&person.width, &person.jaw, &person.nose, &person.brow, &person.mouth, &person.eyeSize}) {
    *part = random.between(-1, 1);
  }
  Mark(person, marks);
  return person;
}

}  // namespace Pictures
