#include "search/Names.h"

#include "mapdata/world/EntityFile.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace {

struct Fold {
  TextView letters;
  TextView as;
};

constexpr std::array Folds = {Fold{u"àáâãäå", u"a"}, Fold{u"ç", u"c"},    Fold{u"ð", u"d"},
                              Fold{u"èéêë", u"e"},   Fold{u"ìíîï", u"i"}, Fold{u"ñ", u"n"},
                              Fold{u"òóôõöø", u"o"}, Fold{u"š", u"s"},    Fold{u"ùúûü", u"u"},
                              Fold{u"ýÿ", u"y"},     Fold{u"ž", u"z"},    Fold{u"æ", u"ae"},
                              Fold{u"œ", u"oe"},     Fold{u"ß", u"ss"},   Fold{u"þ", u"th"}};

void Append(Text& folded, char16_t letter) {
  const auto fold = std::find_if(Folds.begin(), Folds.end(), [letter](const Fold& each) {
    return each.letters.find(letter) != TextView::npos;
  });
  if (fold == Folds.end())
    folded += letter;
  else
    folded += fold->as;
}

}  // namespace

namespace Search {

Text Folded(TextView text) {
  Text folded;
  for (const char16_t letter : Texts::Lower(text))
    Append(folded, letter);
  return folded;
}

bool Holds(TextView name, TextView text) {
  return Folded(name).find(Folded(text)) != Text::npos;
}

std::vector<Text> AllNames(IniOps::Snapshot& files, const EntityNames& names,
                           const ProgramPaths& paths) {
  std::vector<Text> all;
  std::unordered_set<Text> seen;
  for (const ProgramPaths::RegionFiles& region : paths.regions) {
    const ProfileFile& data = files.File(region.data);
    for (const ProfileFile::Section& section : data.Sections())
      for (const std::string_view key : data.KeyNames(section.name))
        if (!EntityFile::IsDisabled(key) && !EntityFile::IsHiddenFromSearch(key))
          if (Text name = names.Shown(files, Windows1252::Decode(key)); seen.insert(name).second)
            all.push_back(std::move(name));
  }
  return all;
}

}  // namespace Search
