#include "controls/AccessKey.h"

#include <gtest/gtest.h>

TEST(AccessKey, ASingleSignGoesAndTwoAreOne) {
  const struct {
    TextView caption;
    TextView shown;
  } table[] = {
      {u"", u""}, {u"Au&tor", u"Autor"}, {u"Q && A", u"Q & A"}, {u"&&&A", u"&A"}, {u"A&", u"A"}};

  for (const auto& row : table)
    EXPECT_EQ(AccessKey::Without(row.caption), row.shown);
}
