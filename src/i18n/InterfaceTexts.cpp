#include "i18n/InterfaceTexts.h"

#include "i18n/WindowTexts.h"
#include "platform/Windows1252.h"

namespace {

constexpr const TextRow& Prompt = WindowTexts::Row(u"ui", u"ComboBoxPrompt");
constexpr const TextRow& InfoToolTip = WindowTexts::Row(u"ui", u"InfoButtonToolTip");
constexpr const TextRow& Highlighted = WindowTexts::Row(u"ui", u"Highlighted");

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
                            std::span<const TextRow> menus) {
  const auto read = [&](const TextRow& row) { return language.Translated(files, row); };
  InterfaceTexts texts;
  texts.menus.reserve(menus.size());
  for (const TextRow& menu : menus)
    texts.menus.push_back(read(menu));
  texts.prompt = Texts::Join(u"   ", read(Prompt));
  texts.spokenPrompt = Words(texts.prompt);
  if (texts.spokenPrompt.empty())
    texts.spokenPrompt = Words(Prompt.english);
  texts.infoToolTip = read(InfoToolTip);
  texts.highlighted = read(Highlighted);
  return texts;
}

InterfaceTexts Translate_UI_DE() {
  return {{},
          Texts::Join(u"  ", Prompt.german),
          Words(Prompt.german),
          Text(InfoToolTip.german),
          Text(Highlighted.german)};
}

InterfaceTexts RestoreGerman(std::span<const TextRow> menus) {
  InterfaceTexts texts = Translate_UI_DE();
  for (const TextRow& menu : menus)
    texts.menus.emplace_back(menu.german);
  return texts;
}
