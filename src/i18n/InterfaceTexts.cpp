#include "i18n/InterfaceTexts.h"

namespace {

constexpr TextView Menus = u"menus";
constexpr TextView Ui = u"ui";

}  // namespace

InterfaceTexts Translate_UI(IniOps::Snapshot& files, const LOCAL::Language& language,
                            std::span<const MenuCaption> menus) {
  const auto read = [&](TextView section, TextView key, TextView english) {
    return files.IniRead(language.LanguageFile(), section, key, english);
  };
  InterfaceTexts texts;
  texts.menus.reserve(menus.size());
  for (const MenuCaption& menu : menus)
    texts.menus.push_back(read(Menus, menu.key, menu.english));
  texts.prompt =
      Texts::Join(u"   ", read(Ui, u"ComboBoxPrompt", u"------------ Please select ------------"));
  texts.infoToolTip =
      read(Ui, u"InfoButtonToolTip", u"Displays informations about selected entity.");
  texts.highlighted = read(Ui, u"Highlighted", u"highlighted");
  return texts;
}

InterfaceTexts Translate_UI_DE() {
  return {{},
          u"  ------------ Bitte Auswählen ------------",
          u"Zeigt Informationen zur ausgewählten Entität an.",
          u"hervorgehoben"};
}

InterfaceTexts RestoreGerman(std::span<const MenuCaption> menus) {
  InterfaceTexts texts = Translate_UI_DE();
  for (const MenuCaption& menu : menus)
    texts.menus.emplace_back(menu.german);
  return texts;
}
