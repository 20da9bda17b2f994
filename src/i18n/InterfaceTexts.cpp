#include "i18n/InterfaceTexts.h"

#include "platform/Windows1252.h"

namespace {

constexpr TextView Menus = u"menus";
constexpr TextView Ui = u"ui";
constexpr TextView EnglishPrompt = u"------------ Please select ------------";
constexpr TextView GermanPrompt = u"------------ Bitte Auswählen ------------";

// The letters and digits, with one blank between words; "" if there are none.
Text Words(TextView text) {
  Text words;
  for (const char16_t unit : text) {
    if (Windows1252::IsLetterOrDigit(unit))
      words += unit;
    else if (!words.empty() && words.back() != u' ')
      words += u' ';
  }
  return Text(Texts::Trim(words));
}

}  // namespace

InterfaceTexts Translate_UI(IniOps::Snapshot& files, const LOCAL::Language& language,
                            std::span<const MenuCaption> menus) {
  const auto read = [&](TextView section, TextView key, TextView english) {
    return files.IniRead(language.LanguageFile, section, key, english);
  };
  InterfaceTexts texts;
  texts.menus.reserve(menus.size());
  for (const MenuCaption& menu : menus)
    texts.menus.push_back(read(Menus, menu.key, menu.english));
  texts.prompt = Texts::Join(u"   ", read(Ui, u"ComboBoxPrompt", EnglishPrompt));
  texts.spokenPrompt = Words(texts.prompt);
  if (texts.spokenPrompt.empty())
    texts.spokenPrompt = Words(EnglishPrompt);
  texts.infoToolTip =
      read(Ui, u"InfoButtonToolTip", u"Displays informations about selected entity.");
  texts.highlighted = read(Ui, u"Highlighted", u"highlighted");
  return texts;
}

InterfaceTexts Translate_UI_DE() {
  return {{},
          Texts::Join(u"  ", GermanPrompt),
          Words(GermanPrompt),
          u"Zeigt Informationen zur ausgewählten Entität an.",
          u"hervorgehoben"};
}

InterfaceTexts RestoreGerman(std::span<const MenuCaption> menus) {
  InterfaceTexts texts = Translate_UI_DE();
  for (const MenuCaption& menu : menus)
    texts.menus.emplace_back(menu.german);
  return texts;
}
