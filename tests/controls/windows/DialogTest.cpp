#include "controls/windows/Dialog.h"

#include "controls/windows/TextFit.h"
#include "controls/windows/WidgetTwips.h"
#include "support/DialogCheck.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr ControlDesign Controls[] = {
    {.name = u"lblTop", .place = {120, 120, 900, 240}, .text = u"Oben"},
    {.name = u"lblBeside", .place = {2400, 120, 900, 240}, .text = u"Daneben"},
    {.name = u"txtNote",
     .kind = ControlKind::TextBox,
     .place = {120, 900, 4000, 900},
     .namedBy = u"lblTop"},
    {.name = u"fraBox",
     .kind = ControlKind::Frame,
     .place = {120, 1900, 4000, 1000},
     .text = u"Rahmen"},
    {.name = u"lblInside", .place = {120, 300, 600, 240}, .text = u"Innen", .frame = u"fraBox"},
    {.name = u"btnSelect",
     .kind = ControlKind::Button,
     .place = {1200, 3000, 1095, 375},
     .text = u"A&uswählen"},
    {.name = u"btnAbort",
     .kind = ControlKind::Button,
     .place = {2700, 3000, 1095, 375},
     .text = u"&Abbrechen"},
};

constexpr DialogDesign Design = {.name = u"frmSample",
                                 .caption = u"Beispiel",
                                 .width = 4335,
                                 .height = 3500,
                                 .defaultButton = u"btnSelect",
                                 .cancelButton = u"btnAbort",
                                 .controls = Controls};

constexpr DialogDesign WithoutDefault = {.name = u"frmSample",
                                         .caption = u"Beispiel",
                                         .width = 4335,
                                         .height = 3500,
                                         .defaultButton = {},
                                         .cancelButton = u"btnAbort",
                                         .controls = Controls};

template <typename Type>
Type* Find(const Dialog& dialog, const char* name) {
  return dialog.findChild<Type*>(QString::fromLatin1(name));
}

QString Words(int count) {
  return QStringLiteral("Wegweiser ").repeated(count).trimmed();
}

bool Fits(const QWidget& control) {
  const QSize needed = TextFit::Needed(control, control.font(), control.width());
  return needed.width() <= control.width() && needed.height() <= control.height();
}

}  // namespace

TEST(Dialog, PassesItsOwnChecks) {
  Dialog dialog(nullptr, Design);
  EXPECT_TRUE(dialog.isModal());
  EXPECT_FALSE(dialog.windowFlags() & Qt::WindowMinMaxButtonsHint);
  CheckDialog(dialog);
}

TEST(Dialog, ALongTextGrowsRightThenDownOverFreeSpaceOnly) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto* label = Find<QLabel>(dialog, "lblTop");
  const auto* beside = Find<QLabel>(dialog, "lblBeside");
  const auto* below = Find<QPlainTextEdit>(dialog, "txtNote");
  const QRect designed = label->geometry();
  const QRect besideDesigned = beside->geometry();

  label->setText(Words(2));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*label); }));
  EXPECT_GT(label->width(), designed.width());
  EXPECT_EQ(label->height(), designed.height());

  label->setText(Words(5));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*label); }));
  EXPECT_GT(label->height(), designed.height());
  EXPECT_EQ(label->pos(), designed.topLeft());
  EXPECT_LT(label->geometry().right(), beside->x());
  EXPECT_LE(label->geometry().bottom(), below->y());
  EXPECT_EQ(beside->geometry(), besideDesigned);

  label->setText(QStringLiteral("Kurz"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return label->geometry() == designed; }));
}

TEST(Dialog, WhereNoSpaceIsLeftTheTypeGetsSmaller) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto* button = Find<QPushButton>(dialog, "btnSelect");
  button->setText(QStringLiteral("Ausgewähltes zeigen"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*button); }));
  EXPECT_LT(button->geometry().right(), Find<QPushButton>(dialog, "btnAbort")->x());
}

TEST(Dialog, GrowsInsideFramesToo) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto* label = Find<QLabel>(dialog, "lblInside");
  label->setText(Words(3));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*label); }));
  EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
}

TEST(Dialog, MarkupIsShownAsItStands) {
  Dialog dialog(nullptr, Design);
  EXPECT_EQ(Find<QLabel>(dialog, "lblTop")->textFormat(), Qt::PlainText);
}

TEST(Dialog, ControlsWithoutTextAreNamedByAnother) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtNote")->accessibleName(), QStringLiteral("Oben"));
}

TEST(Dialog, EnterPressesTheDefaultButtonOrTheFocusedOne) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  int selected = 0;
  QObject::connect(Find<QPushButton>(dialog, "btnSelect"), &QPushButton::clicked,
                   [&selected] { ++selected; });
  Find<QPlainTextEdit>(dialog, "txtNote")->setReadOnly(true);
  QTest::keyClick(Find<QPlainTextEdit>(dialog, "txtNote"), Qt::Key_Return);
  EXPECT_EQ(selected, 1);
  Find<QPushButton>(dialog, "btnAbort")->setFocus();
  QTest::keyClick(Find<QPushButton>(dialog, "btnAbort"), Qt::Key_Return);
  EXPECT_EQ(selected, 1);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Dialog, WithoutDefaultButtonEnterPressesOnlyAFocusedOne) {
  Dialog dialog(nullptr, WithoutDefault);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  Find<QPlainTextEdit>(dialog, "txtNote")->setReadOnly(true);
  QTest::keyClick(Find<QPlainTextEdit>(dialog, "txtNote"), Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  Find<QPushButton>(dialog, "btnAbort")->setFocus();
  QTest::keyClick(Find<QPushButton>(dialog, "btnAbort"), Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
}
