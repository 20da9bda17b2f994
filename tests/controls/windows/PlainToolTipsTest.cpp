#include "controls/windows/PlainToolTips.h"

#include "support/Windows.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include <gtest/gtest.h>

TEST(PlainToolTips, ShowMarkupAsItStands) {
  PlainToolTips toolTips;
  qApp->installEventFilter(&toolTips);
  QLabel name(u"Name"_s);
  name.show();
  const auto shown = [&name](const QString& text) {
    name.setToolTip(text);
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), name.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&name, &event);
    return QToolTip::text();
  };
  EXPECT_EQ(shown(u"<b>Wolf</b>"_s), u"<p>&lt;b&gt;Wolf&lt;/b&gt;</p>"_s);
  EXPECT_EQ(shown(u"a < b und c > d"_s), u"<p>a &lt; b und c &gt; d</p>"_s);
  EXPECT_EQ(shown(u"Wolf & Bär"_s), u"Wolf & Bär"_s);
  QToolTip::hideText();
}
