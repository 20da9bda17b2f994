#include "search/Folding.h"

#include <gtest/gtest.h>

using Search::Folded;
using Search::Holds;

TEST(Folding, LeavesCaseAndAccentsOut) {
  EXPECT_EQ(Folded(u"ÄÖÜ Éclair ŠŽŸ Çñ Ðþ"), u"aou eclair szy cn dth");
  EXPECT_EQ(Folded(u"Großer Œdipus’ Æther"), u"grosser oedipus' aether");
  EXPECT_EQ(Folded(u"Ha\u00ADfen × ÷ €12"), u"hafen × ÷ €12");
}

TEST(Folding, FindsAPartOfAText) {
  EXPECT_TRUE(Holds(u"Händlerin Mara", u"HANDLERIN M"));
  EXPECT_TRUE(Holds(u"STRASSE", u"ß"));
  EXPECT_TRUE(Holds(u"Wolf", u""));
  EXPECT_FALSE(Holds(u"Wolf", u"Wolfs"));
  EXPECT_FALSE(Holds(u"Händler", u"haendler"));
}
