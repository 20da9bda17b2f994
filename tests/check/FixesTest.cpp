#include "check/CheckedWorld.h"

#include <gtest/gtest.h>

// What keeps a fix away, and what it leaves alone.

TEST(Fixes, KeepEveryOtherByte) {
  const CheckedWorld world;
  world.Write("arvenna.data", "; x \xE4\r\n[smiths]\nAlrik = 5;6\rCuno=1;2\r\n\r\n  \t\n;Odo=7;8");
  world.Mend(false);
  EXPECT_EQ(world.Read("arvenna.data"),
            "; x \xE4\r\n[smiths]\nAlrik = 5,6\rCuno=1,2\r\n\r\n  \t\n;Odo=7;8");
}

TEST(Fixes, StayAwayFromWhatWouldBeAnotherMistake) {
  const CheckedWorld world;
  const std::string twice = "[smiths]\nAlrik=1,2\n[smiths ]\nCuno=3;4\n";
  world.Write("arvenna.data", twice);
  // A second section of the name takes nothing from what stands below it.
  world.Write("skaldor.data", "[smiths]\nBerta=5;6\n");
  world.Mend(false);
  EXPECT_EQ(world.Read("arvenna.data"), twice);
  EXPECT_EQ(world.Read("skaldor.data"), "[smiths]\nBerta=5,6\n");
}

TEST(Fixes, OfOneFileAreTriedOneByOneWhereTheyDontGoTogether) {
  const CheckedWorld world;
  world.Write("arvenna.data", "[smiths]\nAlrik=1;2\n[smiths ]\nCuno=3,4\n");
  world.Mend(false);
  EXPECT_EQ(world.Read("arvenna.data"), "[smiths]\nAlrik=1,2\n[smiths ]\nCuno=3,4\n");
}

TEST(Fixes, UnsafeOnesWaitForTheAuthor) {
  const CheckedWorld world;
  world.Write("arvenna.data", "[smiths]\nAlrik=5,6,+\n");
  world.Mend(false);
  EXPECT_EQ(world.Read("arvenna.data"), "[smiths]\nAlrik=5,6,+\n");
  world.Mend(true);
  EXPECT_EQ(world.Read("arvenna.data"), "[smiths]\nAlrik=5,6,*\n");
}

TEST(Ignores, CoverFilesSectionsAndKeys) {
  const CheckedWorld world;
  world.Write("arvenna.data", "[smiths]\nAlrik=0,0\nCuno=0,0\n[NPC]\nOdo=0,0\n");
  world.Write("orvalis-check.ini",
              "[ignore]\nP09=arvenna.data:smiths:Al*, arvenna.data:npc\nS=*\n");
  Check::Question question = world.Question();
  question.select = {u"P09", u"S"};
  const auto answer = Check::Run(question);
  ASSERT_EQ(answer->findings.size(), 1U);
  EXPECT_EQ(answer->findings.front().key, u"Cuno");
}
