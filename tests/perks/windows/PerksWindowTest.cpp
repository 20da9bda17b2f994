#include "perks/windows/frmPerks.h"
#include "support/TestWorld.h"
#include "support/Windows.h"

#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QTreeWidget>

#include <optional>

namespace {

// The mean difference of a pixel's brightness, 0 to 255, between two pictures on white.
double Difference(const QString& a, const QString& b) {
  const auto onWhite = [](const QString& name) {
    QImage picture(QStringLiteral(ORVALIS_PICTURES "/") + name);
    picture.setDevicePixelRatio(1);
    QImage ground(picture.size(), QImage::Format_RGB32);
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(0, 0, picture);
    return ground.convertToFormat(QImage::Format_Grayscale8);
  };
  const QImage first = onWhite(a);
  const QImage second = onWhite(b);
  double sum = 0;
  for (int y = 0; y < first.height(); ++y)
    for (int x = 0; x < first.width(); ++x)
      sum += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y)));
  return sum / (first.width() * first.height());
}

struct Chosen {
  Text picture, data, category, heading;
};

class PerksWindow : public testing::Test, protected TestWorld {
 protected:
  PerksWindow() {
    Write("arvenna.data",
          u"[teachers]\r\n[perk archer]\r\nTom=1,2\r\n[perk Fog]\r\n[Perk druid]\r\n"
          u"[perk archer]\r\n[perk acrobatics]\r\n");
  }

  frmPerks& Open() {
    window_.emplace(nullptr, world.paths.Of(Region::Arvenna).data, world);
    QObject::connect(
        &*window_, &frmPerks::TeachersChosen,
        [this](const Text& picture, const Text& data, const Text& category, const Text& heading) {
          chosen_ = {picture, data, category, heading};
        });
    ShowActive(*window_);
    return *window_;
  }

  QTreeWidget& Tree() { return Part<QTreeWidget>(*window_, "tvPerks"); }

  QTreeWidgetItem* Node(const QString& caption) {
    return Tree().findItems(caption, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  }

  void Show() { Press(*window_, "btnShow"); }

  std::optional<frmPerks> window_;
  std::optional<Chosen> chosen_;
};

}  // namespace

TEST_F(PerksWindow, ShowsTheTreeOfTheRegion) {
  EXPECT_EQ(TitleOf(Open()), "Lehrer für Perks in Arvenna");
  ASSERT_EQ(Tree().topLevelItemCount(), 1);
  const QTreeWidgetItem* root = Tree().topLevelItem(0);
  EXPECT_EQ(root->childCount(), 7);
  EXPECT_TRUE(root->child(6)->font(0).bold());
  const QTreeWidgetItem* archer = Node(u"Bogenschütze"_s);
  EXPECT_EQ(archer->parent(), root->child(1));
  EXPECT_TRUE(archer->parent()->isExpanded());
  EXPECT_FALSE(archer->font(0).bold());
}

TEST_F(PerksWindow, HandsThePerkOnAndCloses) {
  Open();
  Tree().setCurrentItem(Node(u"Bogenschütze"_s));
  Show();
  ASSERT_TRUE(chosen_);
  EXPECT_EQ(chosen_->picture, folder.Path(u"arvenna.jpg"));
  EXPECT_EQ(chosen_->data, folder.Path(u"arvenna.data"));
  EXPECT_EQ(chosen_->category, u"perk archer");
  EXPECT_EQ(chosen_->heading, u"Arvenna: Lehrer für Bogenschütze");
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(PerksWindow, ADoubleClickDoesTheSame) {
  SpeakEnglish(u"[frmPerks]\r\ncaption=%s: perks of %s\r\n");
  EXPECT_EQ(TitleOf(Open()), "Arvenna: perks of Arvenna");
  const QPoint at = Tree().visualItemRect(Node(u"Fog"_s)).center();
  QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, at);
  ASSERT_TRUE(chosen_);
  EXPECT_EQ(chosen_->category, u"perk Fog");
  EXPECT_EQ(chosen_->heading, u" Fog");
}

TEST_F(PerksWindow, StaysOpenWithoutAPerk) {
  Open();
  Show();
  for (const auto& caption : {u"Lehrer in Arvenna"_s, u"Magietalente"_s}) {
    Tree().setCurrentItem(Node(caption));
    Show();
  }
  EXPECT_FALSE(chosen_);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(PerksWindow, KeysMoveInTheTreeAndEnterCloses) {
  Open();
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_Down);
  QTest::keyClicks(&Tree(), u"bog"_s);
  EXPECT_EQ(Tree().currentItem(), Node(u"Bogenschütze"_s));
  QTest::keyClick(&Tree(), Qt::Key_Up);
  EXPECT_EQ(Tree().currentItem(), Node(u"Jagdtalente"_s));
  QTest::keyClicks(&Tree(), u"n"_s);
  QTest::keyClick(&Tree(), Qt::Key_Return);
  EXPECT_FALSE(window_->isVisible());
  EXPECT_FALSE(chosen_);
}

TEST(PerkPictures, AreToldApartAtBothSizesAndWithoutColour) {
  constexpr int Last = 9;
  constexpr double Distinct = 20;
  for (const auto& [suffix, size] : {std::pair(u".png"_s, 16), {u"@2x.png"_s, 32}}) {
    const auto name = [end = suffix](int number) { return u"perk-%1"_s.arg(number) + end; };
    for (int one = 1; one <= Last; ++one) {
      ASSERT_EQ(QImageReader(QStringLiteral(ORVALIS_PICTURES "/") + name(one)).size(),
                QSize(size, size))
          << one;
      for (int other = 1; other < one; ++other)
        EXPECT_GT(Difference(name(one), name(other)), Distinct) << one << " and " << other;
    }
  }
}
