#include "controls/windows/Dialog.h"

#include "controls/windows/TextFit.h"
#include "controls/windows/WidgetTwips.h"
#include "support/DialogCheck.h"
#include "support/Windows.h"

#include <QLabel>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

using Kind = ControlKind;

constexpr ControlDesign Controls[] = {
    {.name = u"lblTop", .place = {120, 120, 900, 240}, .text = u"Oben"},
    {.name = u"lblBeside", .place = {2400, 120, 900, 240}, .text = u"Daneben"},
    {.name = u"txtNote",
     .kind = Kind::TextBox,
     .place = {120, 900, 4000, 900},
     .namedBy = u"lblTop"},
    {.name = u"fraBox", .kind = Kind::Frame, .place = {120, 1900, 4000, 1000}, .text = u"Rahmen"},
    {.name = u"lblInside", .place = {120, 300, 600, 240}, .text = u"Innen", .frame = u"fraBox"},
    {.name = u"btnSelect",
     .kind = Kind::Button,
     .place = {1200, 3000, 1095, 375},
     .text = u"A&uswählen"},
    {.name = u"btnAbort",
     .kind = Kind::Button,
     .place = {2700, 3000, 1095, 375},
     .text = u"&Abbrechen"},
};

constexpr DialogDesign WithDefault(TextView button) {
  return {.name = u"frmSample",
          .width = 4335,
          .height = 3500,
          .defaultButton = button,
          .cancelButton = u"btnAbort",
          .controls = Controls};
}

constexpr DialogDesign Design = WithDefault(u"btnSelect");
constexpr DialogDesign WithoutDefault = WithDefault({});

QString Words(int count) {
  return u"Wegweiser "_s.repeated(count).trimmed();
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

void ExpectToFit(const QWidget& control) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return Fits(control); })) << control.objectName().toStdString();
}

// Whether the dialog is still open after Enter in the control of that name.
bool StaysAfterEnter(Dialog& dialog, const char* control) {
  Part(dialog, control).setFocus();
  QTest::keyClick(&Part(dialog, control), Qt::Key_Return);
  return dialog.isVisible();
}

}  // namespace

TEST(Dialog, PassesItsOwnChecks) {
  Dialog dialog(nullptr, Design);
  dialog.setWindowTitle(u"Beispiel"_s);
  EXPECT_TRUE(dialog.isModal());
  EXPECT_FALSE(dialog.windowFlags() & Qt::WindowMinMaxButtonsHint);
  EXPECT_EQ(Part<QLabel>(dialog, "lblTop").textFormat(), Qt::PlainText);
  CheckDialog(dialog);
}

TEST(Dialog, ALongTextGrowsRightThenDownOverFreeSpaceOnly) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto& label = Part<QLabel>(dialog, "lblTop");
  const QWidget& beside = Part(dialog, "lblBeside");
  const QRect designed = label.geometry();
  const QRect besideDesigned = beside.geometry();

  label.setText(Words(2));
  ExpectToFit(label);
  EXPECT_GT(label.width(), designed.width());
  EXPECT_EQ(label.height(), designed.height());

  label.setText(Words(5));
  ExpectToFit(label);
  EXPECT_GT(label.height(), designed.height());
  EXPECT_EQ(label.pos(), designed.topLeft());
  EXPECT_LT(label.geometry().right(), beside.x());
  EXPECT_LE(label.geometry().bottom(), Part(dialog, "txtNote").y());
  EXPECT_EQ(beside.geometry(), besideDesigned);

  label.setText(u"Kurz"_s);
  EXPECT_TRUE(QTest::qWaitFor([&] { return label.geometry() == designed; }));
  auto& inside = Part<QLabel>(dialog, "lblInside");
  inside.setText(Words(3));
  ExpectToFit(inside);
  EXPECT_TRUE(inside.parentWidget()->rect().contains(inside.geometry()));
}

TEST(Dialog, ALabelThatNamesAControlHasItsAccessKeyOthersHaveNone) {
  Captioned dialog(nullptr, Design);
  dialog.SetCaption(u"lblTop", u"&Notiz && mehr");
  dialog.SetCaption(u"lblBeside", u"&Daneben && mehr");
  ShowActive(dialog);
  auto& note = Part<QPlainTextEdit>(dialog, "txtNote");
  EXPECT_EQ(Part<QLabel>(dialog, "lblTop").buddy(), &note);
  EXPECT_EQ(note.accessibleName(), u"Notiz & mehr"_s);
  EXPECT_EQ(TextOf(dialog, "lblBeside"), "Daneben & mehr");
  Part(dialog, "btnSelect").setFocus();
  QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(note.hasFocus());
}

TEST(Dialog, ValuesKeepTheirSigns) {
  Dialog dialog(nullptr, Design);
  Part<QLabel>(dialog, "lblTop").setText(u"A & B && C"_s);
  dialog.show();
  EXPECT_EQ(TextOf(dialog, "lblTop"), "A & B && C");
  EXPECT_EQ(Part(dialog, "txtNote").accessibleName(), u"A & B && C"_s);
}

TEST(Dialog, ARowOfButtonsTakesItsFreeSpaceBeforeTheTypeGetsSmaller) {
  Dialog dialog(nullptr, Design);
  dialog.show();
  auto& select = Part<QPushButton>(dialog, "btnSelect");
  auto& abort = Part<QPushButton>(dialog, "btnAbort");
  const QRect designed = abort.geometry();
  const double points = select.font().pointSizeF();
  select.setText(u"Choose this language now"_s);
  ExpectToFit(select);
  EXPECT_DOUBLE_EQ(select.font().pointSizeF(), points);
  EXPECT_LT(select.geometry().right(), abort.x());
  EXPECT_EQ(abort.geometry(), designed);
  abort.setText(u"Leave everything as it was before"_s);
  ExpectToFit(abort);
  ExpectToFit(select);
  EXPECT_LT(select.geometry().right(), abort.x());
  EXPECT_EQ(select.font(), abort.font());
}

TEST(Dialog, AColumnOfLabelsMovesWhatStandsBesideIt) {
  static constexpr ControlDesign controls[] = {
      {.name = u"lblName", .place = {120, 120, 600, 240}},
      {.name = u"txtName",
       .kind = Kind::TextField,
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
  auto& value = Part<QLabel>(dialog, "lblValue");
  value.setText(u"Tir Anath"_s);
  dialog.show();
  const QWidget& field = Part(dialog, "txtName");
  const QWidget& place = Part(dialog, "lblPlace");
  const QPoint fieldAt = field.pos();
  const QPoint valueAt = value.pos();
  dialog.SetCaption(u"lblPlace", u"Heimatlicher Wohnort:");
  EXPECT_TRUE(QTest::qWaitFor([&] { return value.x() > valueAt.x(); }));
  EXPECT_EQ(field.x() - fieldAt.x(), value.x() - valueAt.x()) << "one column";
  EXPECT_EQ(value.y(), valueAt.y());
  EXPECT_DOUBLE_EQ(place.font().pointSizeF(), 8.25);
  CheckTexts(dialog);
  dialog.SetCaption(u"lblPlace", u"Ein Wohnort, für den auch der Rest des Fensters nicht reicht:");
  ExpectToFit(place);
  EXPECT_EQ(Part(dialog, "lblName").font(), place.font());
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
  Part<QLabel>(dialog, "lblMail").setText(u"a.very.long.name.of.somebody@hostinghosting.example"_s);
  Part<QLabel>(dialog, "lblSite").setText(u"www.a.example"_s);
  CheckTexts(dialog);
  EXPECT_GT(Part(dialog, "lblSite").width(), 0);
}

TEST(Dialog, EnterPressesTheFocusedButtonOrElseTheDefaultOne) {
  for (const DialogDesign& design : {Design, WithoutDefault}) {
    Dialog dialog(nullptr, design);
    ShowActive(dialog);
    int selected = 0;
    QObject::connect(&Part<QPushButton>(dialog, "btnSelect"), &QPushButton::clicked,
                     [&selected] { ++selected; });
    Part<QPlainTextEdit>(dialog, "txtNote").setReadOnly(true);
    EXPECT_TRUE(StaysAfterEnter(dialog, "txtNote"));
    EXPECT_FALSE(StaysAfterEnter(dialog, "btnAbort"));
    EXPECT_EQ(selected, design.defaultButton.empty() ? 0 : 1);
  }
}
