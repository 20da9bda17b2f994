#include "auxwin/windows/Hyperlink.h"

#include "support/Contrast.h"
#include "support/Windows.h"

#include <QApplication>
#include <QLabel>

#include <gtest/gtest.h>

namespace {

class LinkWindow : public QWidget {
 public:
  LinkWindow() {
    label.setGeometry(50, 40, 120, 20);
    label.setText(u"www.orvalis.example"_s);
    Hyperlink::CreateHyperlink(label, Hyperlink::LinkColor, Hyperlink::LinkColorMouseOver,
                               [this] { ++opened; });
    resize(300, 120);
    ShowActive(*this);
  }

  // The colour that the label takes with the pointer at this point of the window.
  QColor ColorAt(const QPoint& point) {
    QTest::mouseMove(this, point);
    QTest::qWait(20);
    return label.palette().color(QPalette::WindowText);
  }

  QLabel label{this};
  int opened = 0;
};

}  // namespace

TEST(Hyperlink, IsRedUnderThePointerEdgesIncludedAndBlueElsewhere) {
  LinkWindow window;
  EXPECT_TRUE(window.label.font().underline());
  for (const QPoint inside : {QPoint(60, 50), QPoint(50, 40), QPoint(170, 60)}) {
    EXPECT_EQ(window.ColorAt(inside), QColor(Qt::red));
    for (const QPoint outside : {QPoint(49, 40), QPoint(171, 60), QPoint(100, 61)})
      EXPECT_EQ(window.ColorAt(outside), QColor(Qt::blue));
  }
}

TEST(Hyperlink, OpensByClickEnterAndSpace) {
  LinkWindow window;
  QTest::mouseClick(&window.label, Qt::LeftButton);
  EXPECT_EQ(window.opened, 1);
  QTest::mouseClick(&window.label, Qt::RightButton);
  window.label.setFocus();
  QTest::keyClick(&window.label, Qt::Key_Return);
  QTest::keyClick(&window.label, Qt::Key_Space);
  QTest::keyClick(&window.label, Qt::Key_A);
  EXPECT_EQ(window.opened, 3);
  QTest::mouseClick(&window.label, Qt::LeftButton);
  QTest::mouseDClick(&window.label, Qt::LeftButton);
  QTest::mouseRelease(&window.label, Qt::LeftButton);
  EXPECT_EQ(window.opened, 4) << "a double click opens once";
}

TEST(Hyperlink, WithoutTextIsNoTabStop) {
  LinkWindow window;
  EXPECT_EQ(window.label.focusPolicy(), Qt::TabFocus);
  window.label.clear();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.label.focusPolicy() == Qt::NoFocus; }));
  window.label.setText(u"a@b.example"_s);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.label.focusPolicy() == Qt::TabFocus; }));
}

TEST(Hyperlink, CanBeReadOnLightAndDarkGround) {
  const QPalette before = QApplication::palette();
  for (const QColor& ground : {QColor(Qt::white), QColor(239, 239, 239), QColor(53, 53, 53)}) {
    QApplication::setPalette(QPalette(ground));
    LinkWindow window;
    EXPECT_GE(Contrast(window.ColorAt({5, 5}), ground), 4.5) << ground.name().toStdString();
    EXPECT_GE(Contrast(window.ColorAt({60, 50}), ground), 3) << ground.name().toStdString();
  }
  QApplication::setPalette(before);
}

TEST(Hyperlink, AFocusedLinkLooksDifferent) {
  LinkWindow window;
  window.label.clearFocus();
  const QImage without = window.label.grab().toImage();
  window.label.setFocus(Qt::TabFocusReason);
  EXPECT_NE(window.label.grab().toImage(), without);
}
