#include "search/Folding.h"

#include <algorithm>
#include <array>

namespace {

struct Fold {
  TextView letters;
  TextView as;
};

constexpr auto Folds = std::to_array<Fold>({
    {u"àáâãäå", u"a"},
    {u"ç", u"c"},
    {u"ð", u"d"},
    {u"èéêë", u"e"},
    {u"ìíîï", u"i"},
    {u"ñ", u"n"},
    {u"òóôõöø", u"o"},
    {u"š", u"s"},
    {u"ùúûü", u"u"},
    {u"ýÿ", u"y"},
    {u"ž", u"z"},
    {u"æ", u"ae"},
    {u"œ", u"oe"},
    {u"ß", u"ss"},
    {u"þ", u"th"},
    {u"‘’", u"'"},
    {u"\u00A0", u" "},
    {u"\u00AD", u""},
});

void Append(Text& folded, char16_t letter) {
  const auto* fold = std::find_if(Folds.begin(), Folds.end(), [letter](const Fold& each) {
    return each.letters.find(letter) != TextView::npos;
  });
  if (letter < 0x80 || fold == Folds.end())
    folded += letter;
  else
    folded += fold->as;
}

}  // namespace

namespace Search {

Text Folded(TextView text) {
  Text folded;
  folded.reserve(text.size());
  for (const char16_t letter : Texts::Lower(text))
    Append(folded, letter);
  return folded;
}

bool Holds(TextView text, TextView part) {
  return Folded(text).find(Folded(part)) != Text::npos;
}

}  // namespace Search
