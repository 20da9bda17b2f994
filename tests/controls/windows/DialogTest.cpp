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
                                 .width = 4335,
                                 .height = 3500,
                                 .defaultButton = u"btnSelect",
                                 .cancelButton = u"btnAbort",
                                 .controls = Controls};

constexpr DialogDesign WithoutDefault = {.name = u"frmSample",
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

// A dialog whose captions a test sets.
class Captioned : public Dialog {
 public:
  using Dialog::Dialog;
  using Dialog::SetCaption;
};

bool Fits(const QWidget& control) {
  const QSize needed = TextFit::Needed(control, control.font(), control.width());
  return needed.width() <= control.width() && needed.height() <= control.height();
}

}  // namespace

TEST(Dialog, PassesItsOwnChecks) {
  Dialog dialog(nullptr, Design);
  dialog.setWindowTitle(QStringLiteral("Beispiel"));
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

TEST(Dialog, ALabelThatNamesAControlHasItsAccessKeyOthersHaveNone) {
  Captioned dialog(nullptr, Design);
  dialog.SetCaption(u"lblTop", u"&Notiz && mehr");
  dialog.SetCaption(u"lblBeside", u"&Daneben && mehr");
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  const auto* named = Find<QLabel>(dialog, "lblTop");
  EXPECT_EQ(named->buddy(), Find<QPlainTextEdit>(dialog, "txtNote"));
  EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtNote")->accessibleName(),
            QStringLiteral("Notiz & mehr"));
  EXPECT_EQ(Find<QLabel>(dialog, "lblBeside")->text(), QStringLiteral("Daneben & mehr"));
  Find<QPushButton>(dialog, "btnSelect")->setFocus();
  QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(named->buddy()->hasFocus());
}

TEST(Dialog, ValuesKeepTheirSigns) {
  Dialog dialog(nullptr, Design);
  Find<QLabel>(dialog, "lblTop")->setText(QStringLiteral("A & B && C"));
  dialog.show();
  EXPECT_EQ(Find<QLabel>(dialog, "lblTop")->text(), QStringLiteral("A & B && C"));
  EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtNote")->accessibleName(),
            QStringLiteral("A & B && C"));
}

TEST(Dialog, ARowOfButtonsTakesItsFreeSpaceBeforeTheTypeGetsSmaller) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto* select = Find<QPushButton>(dialog, "btnSelect");
  auto* abort = Find<QPushButton>(dialog, "btnAbort");
  const QRect designed = abort->geometry();
  const double points = select->font().pointSizeF();
  select->setText(QStringLiteral("Choose this language now"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*select); }));
  EXPECT_DOUBLE_EQ(select->font().pointSizeF(), points);
  EXPECT_LT(select->geometry().right(), abort->x());
  EXPECT_EQ(abort->geometry(), designed);
  abort->setText(QStringLiteral("Leave everything as it was before"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*abort) && Fits(*select); }));
  EXPECT_LT(select->geometry().right(), abort->x());
  EXPECT_EQ(select->font(), abort->font());
}

TEST(Dialog, AColumnOfLabelsMovesWhatStandsBesideIt) {
  static constexpr ControlDesign controls[] = {
      {.name = u"lblName", .place = {120, 120, 600, 240}},
      {.name = u"txtName",
       .kind = ControlKind::TextField,
       .place = {800, 120, 2000, 240},
       .namedBy = u"lblName"},
      {.name = u"lblPlace", .place = {120, 400, 600, 240}},
      {.name = u"lblValue", .place = {800, 400, 0, 240}},
      {.name = u"lblBelow", .place = {120, 700, 600, 240}},
  };
  static constexpr DialogDesign design = {
      .name = u"frmColumn", .width = 4000, .height = 1500, .controls = controls};
  Captioned dialog(nullptr, design);
  dialog.SetCaption(u"lblName", u"Name:");
  dialog.SetCaption(u"lblPlace", u"Wohnort:");
  Find<QLabel>(dialog, "lblValue")->setText(QStringLiteral("Tir Anath"));
  dialog.show();
  auto* field = Find<QWidget>(dialog, "txtName");
  auto* value = Find<QLabel>(dialog, "lblValue");
  const QPoint fieldAt = field->pos();
  const QPoint valueAt = value->pos();
  dialog.SetCaption(u"lblPlace", u"Heimatlicher Wohnort:");
  EXPECT_TRUE(QTest::qWaitFor([&] { return value->x() > valueAt.x(); }));
  EXPECT_EQ(field->x() - fieldAt.x(), value->x() - valueAt.x()) << "one column";
  EXPECT_EQ(value->y(), valueAt.y());
  EXPECT_DOUBLE_EQ(Find<QLabel>(dialog, "lblPlace")->font().pointSizeF(), 8.25);
  CheckTexts(dialog);
  dialog.SetCaption(u"lblPlace", u"Ein Wohnort, für den auch der Rest des Fensters nicht reicht:");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(*Find<QLabel>(dialog, "lblPlace")); }));
  EXPECT_EQ(Find<QLabel>(dialog, "lblName")->font(), Find<QLabel>(dialog, "lblPlace")->font());
  CheckTexts(dialog);
}

TEST(Dialog, AWordThatFitsNoLineIsBroken) {
  static constexpr ControlDesign controls[] = {
      {.name = u"lblMail", .place = {120, 120, 0, 240}},
      {.name = u"lblSite", .place = {120, 480, 0, 240}},
  };
  static constexpr DialogDesign design = {
      .name = u"frmWords", .width = 2500, .height = 900, .controls = controls};
  Dialog dialog(nullptr, design);
  Find<QLabel>(dialog, "lblMail")
      ->setText(QStringLiteral("a.very.long.name.of.somebody@%1.example")
                    .arg(QStringLiteral("hosting").repeated(2)));
  Find<QLabel>(dialog, "lblSite")->setText(QStringLiteral("www.a.example"));
  CheckTexts(dialog);
  EXPECT_GT(Find<QLabel>(dialog, "lblSite")->width(), 0);
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
