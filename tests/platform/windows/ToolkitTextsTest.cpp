#include "platform/windows/ToolkitTexts.h"

#include <QCoreApplication>
#include <QKeySequence>

#include <gtest/gtest.h>

TEST(ToolkitTexts, SpeakTheLanguageThatCallsItselfSo) {
  const QKeySequence find = QKeySequence::fromString(QStringLiteral("Ctrl+F"));
  const auto menu = [&find] { return find.toString(QKeySequence::NativeText).toStdString(); };
  const auto cancel = [] {
    return QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString();
  };
  ToolkitTexts texts;
  EXPECT_EQ(menu(), "Ctrl+F");
  texts.Speak(u"Deutsch");
  EXPECT_EQ(menu(), "Strg+F");
  EXPECT_EQ(cancel(), "Abbrechen");
  EXPECT_EQ(find.toString(QKeySequence::PortableText), QStringLiteral("Ctrl+F"));
  texts.Speak(u" Français ");
  EXPECT_EQ(cancel(), "Annuler");
  texts.Speak(u"Español");
  EXPECT_EQ(cancel(), "Cancelar");
  for (const TextView none : {u"English", u"Klingon", u""}) {
    texts.Speak(u"Deutsch");
    texts.Speak(none);
    EXPECT_EQ(menu() + cancel(), "Ctrl+FCancel");
  }
}
