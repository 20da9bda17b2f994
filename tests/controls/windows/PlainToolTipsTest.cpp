#include "controls/windows/PlainToolTips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

TEST(PlainToolTips, ShowMarkupAsItStands) {
  PlainToolTips toolTips;
  qApp->installEventFilter(&toolTips);
  QLabel name(QStringLiteral("Name"));
  name.show();
  const auto shown = [&name](const QString& text) {
    name.setToolTip(text);
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), name.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&name, &event);
    return QToolTip::text();
  };
  EXPECT_EQ(shown(QStringLiteral("<b>Wolf</b>")), QStringLiteral("<p>&lt;b&gt;Wolf&lt;/b&gt;</p>"));
  EXPECT_EQ(shown(QStringLiteral("a < b und c > d")),
            QStringLiteral("<p>a &lt; b und c &gt; d</p>"));
  EXPECT_EQ(shown(QStringLiteral("Wolf & Bär")), QStringLiteral("Wolf & Bär"));
  QToolTip::hideText();
}
