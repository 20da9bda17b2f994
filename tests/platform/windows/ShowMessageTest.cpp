#include "platform/windows/ShowMessage.h"

#include "platform/windows/QtText.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <functional>

#include <gtest/gtest.h>

namespace {

// Shows the message, looks at its box, and presses Enter.
void Show(const Message& message, const std::function<void(QMessageBox&)>& look) {
  QTimer::singleShot(50, [&look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
    box->button(QMessageBox::Ok)->click();
  });
  ShowMessage(nullptr, MessageIcon::Information, message);
}

QRect OnScreen(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

}  // namespace

TEST(ShowMessage, StaysOnTheScreenAndHoldsTheWholeText) {
  Text words;
  for (int i = 0; i < 2'000; ++i)
    words += u"Wort ";
  for (const Text& text : {Text(10'000, u'x'), words, Text(u"Kurz.")}) {
    Show({text, u"Titel"}, [&](QMessageBox& box) {
      EXPECT_EQ(box.text(), QtText::ToQt(text));
      const QRect screen = box.screen()->availableGeometry();
      EXPECT_TRUE(screen.contains(OnScreen(*box.button(QMessageBox::Ok))));
      EXPECT_LT(box.height(), screen.height());
      EXPECT_LT(box.width(), screen.width());
      const auto* view = box.findChild<QPlainTextEdit*>();
      EXPECT_EQ(view == nullptr, text.size() < 10);
      if (view) {
        EXPECT_EQ(view->toPlainText(), box.text());
        EXPECT_FALSE(view->hasFocus()) << "Enter must close the message";
      }
    });
  }
}

TEST(ShowMessage, IsAtLeastAsWideAsItsTitle) {
  const Text title = u"Recherche terminée dans toutes les régions de Duskhold";
  Show({u"Rien.", title}, [&](QMessageBox& box) {
    QFont bold = QApplication::font();
    bold.setBold(true);
    EXPECT_GT(box.width(), QFontMetrics(bold).horizontalAdvance(QtText::ToQt(title)) + 100);
  });
}

TEST(ShowMessage, TitlesStandAsTheyAre) {
  Show({u"a [*] b", u"x[*]y[*][*]"}, [](QMessageBox& box) {
    EXPECT_EQ(box.windowHandle()->title(), QStringLiteral("x[*]y[*][*]"));
    EXPECT_EQ(box.text(), QStringLiteral("a [*] b"));
  });
}
