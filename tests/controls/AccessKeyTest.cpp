#include "controls/AccessKey.h"

#include <gtest/gtest.h>

TEST(AccessKey, ASingleSignGoesAndTwoAreOne) {
  const struct {
    TextView caption;
    TextView shown;
  } table[] = {{u"", u""},
               {u"Autor:", u"Autor:"},
               {u"&Autor:", u"Autor:"},
               {u"Au&tor", u"Autor"},
               {u"Q && A", u"Q & A"},
               {u"&&&A", u"&A"},
               {u"A&", u"A"},
               {u"&&&&", u"&&"}};

  for (const auto& row : table)
    EXPECT_EQ(AccessKey::Without(row.caption), row.shown);
}
