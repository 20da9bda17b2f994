#include "auxwin/PrintName.h"

#include <gtest/gtest.h>

TEST(PrintName, IsTheHeadingAsAFileCanBeNamed) {
  EXPECT_EQ(PrintName::Of(u" Arvenna: Lehrer "), u"Arvenna - Lehrer.pdf");
  EXPECT_EQ(PrintName::Of(u"  "), u"Orvalis.pdf");
  EXPECT_EQ(PrintName::Of(u"Suche nach: a/b\\c?\t\"x\""), u"Suche nach - a_b_c___x_.pdf");
  EXPECT_EQ(PrintName::Of(u"../x"), u"_._x.pdf");
  EXPECT_LE(PrintName::Of(Text(10'000, u'ä')).size(), 64U);
}
