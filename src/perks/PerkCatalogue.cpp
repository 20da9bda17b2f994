#include "perks/PerkCatalogue.h"

#include <algorithm>

using PerkCatalogue::Perk;
using PerkCatalogue::Perks;

namespace {

constexpr TextView Prefix = u"perk ";
constexpr char16_t CaseDistance = u'a' - u'A';

// Perk keys hold ASCII letters only.
char16_t Upper(char16_t unit) {
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - CaseDistance) : unit;
}

TextView WithoutPrefix(TextView key) {
  return key.substr(Prefix.size());
}

// A word of a language key: a capital first, the numbers two and three as Roman numerals.
Text Capitalised(TextView word) {
  Text text(word);
  const auto end = word == u"ii" || word == u"iii" ? text.end() : text.begin() + 1;
  std::transform(text.begin(), end, text.begin(), Upper);
  return text;
}

}  // namespace

namespace PerkCatalogue {

const Perk* Find(TextView key) {
  if (!key.starts_with(Prefix))
    return nullptr;
  const auto found =
      std::find_if(Perks.begin(), Perks.end(), [key](const Perk& p) { return p.key == key; });
  return found == Perks.end() ? nullptr : found;
}

Text LanguageKey(const Perk& perk) {
  TextView rest = WithoutPrefix(perk.key);
  if (perk.keepsName)
    return Text(rest);
  Text key;
  while (!rest.empty()) {
    const size_t end = std::min(rest.find(u' '), rest.size());
    key += Capitalised(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return Texts::ReplaceAll(key, u",", u"");
}

Text English(const Perk& perk) {
  for (const EnglishCaption& exception : EnglishExceptions)
    if (exception.key == perk.key)
      return Text(exception.caption);
  Text caption = Texts::Lower(WithoutPrefix(perk.key));
  caption.front() = Upper(caption.front());
  return caption;
}

}  // namespace PerkCatalogue
