#include "app/Context.h"
#include "app/MenuTable.h"
#include "app/windows/Program.h"
#include "platform/ProgramInfo.h"
#include "platform/windows/QtText.h"
#include "support/RecordingDesktop.h"
#include "support/Windows.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QTimer>
#include <QTreeWidget>

#include <array>
#include <optional>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

constexpr std::array Colors = {Qt::red, Qt::darkGreen, Qt::blue, Qt::cyan, Qt::magenta};
constexpr const char* English =
    "[general]\r\nlanguage=English\r\n[menus]\r\nmnuFile=&Papers\r\n"
    "[ui]\r\nComboBoxPrompt=Pick one\r\n";

constexpr auto* Narrow = &NativePath::ToBytes;

// The program on a folder of its own: each category of a region holds one entity, named after both.
class MainWindow : public testing::Test {
 protected:
  MainWindow() {
    for (const RegionRow& region : Regions) {
      std::string data;
      for (const MenuRow& row : MenuTable::Rows())
        if (row.kind == MenuRow::Kind::Category && row.region == region.region)
          data += '[' + Narrow(row.category) + "]\r\n" + EntityOf(row) + "=512,384\r\n";
      folder_.Write(File(region.region, ".data"), data + "[perk archer]\r\nArcher=100,200\r\n");
      Paint(folder_, File(region.region, ".jpg"), ColorOf(region.region));
    }
    folder_.Write("LANG/English/English.lng", English);
  }

  static std::string File(Region region, const char* suffix) {
    return Narrow(RowOf(region).stem) + suffix;
  }

  static QColor ColorOf(Region region) { return Colors.at(static_cast<size_t>(region)); }

  static std::string EntityOf(const MenuRow& row) {
    return File(row.region.value(), " ") + Narrow(row.category);
  }

  bool Start() {
    program_.reset();
    world_.emplace(folder_.Folder());
    context_.emplace(*world_, desktop_);
    program_.emplace(*context_);
    return program_->Start();
  }

  static QMainWindow* Window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (auto* window = qobject_cast<QMainWindow*>(widget))
        return window;
    return nullptr;
  }

  static QWidget& Map() { return *Window()->centralWidget(); }

  static QComboBox& Items() { return Part<QComboBox>(Map(), "cboItems"); }

  static bool Shows(const char* name) { return Part(Map(), name).isVisible(); }

  static QAction& Menu(TextView name) { return *Window()->findChild<QAction*>(QtText::ToQt(name)); }

  static void Do(TextView command) { Menu(command).trigger(); }

  // The map as it looks once no sharper picture of it comes.
  static QImage RestedMap() {
    constexpr int untilSharp = 200;
    QTest::qWait(untilSharp);
    return Map().grab().toImage();
  }

  static QImage MapAt(int width) {
    Window()->resize(width, 600);
    return RestedMap();
  }

  static Names Search(const char* term) {
    return Opened([] { Do(u"miFind"); },
                  [term](QWidget& dialog) {
                    auto& text = Part<QLineEdit>(dialog);
                    text.setText(QLatin1String(term));
                    QTest::keyClick(&text, Qt::Key_Return);
                  });
  }

  static void ChooseLanguage(int row) {
    EXPECT_EQ(Opened([] { Do(u"mnuLanguage"); },
                     [row](QWidget& dialog) {
                       Part<GridListbox>(dialog).Select(row);
                       QTest::keyClick(&dialog, Qt::Key_Return);
                     }),
              Names{"frmLang"});
  }

  TemporaryFolder folder_;
  RecordingDesktop desktop_;
  std::optional<World> world_;
  std::optional<Context> context_;
  std::optional<Program> program_;
};

}  // namespace

TEST_F(MainWindow, AsksForTheLanguageOverTheWindowWheneverGermanMayBeWrong) {
  const struct {
    TextView system;
    const char* settings;
    bool asks;
    const char* fileMenu;
  } cases[] = {
      {u"deu", "", false, "&Datei"},
      {u"eng", "[general]\r\nlanguage=English\r\n", false, "&Papers"},
      {u"eng", "[general]\r\nlanguage=Deutsch\r\n", true, "&Datei"},
      {u"fin", "[general]\r\nlanguage=Suomi\r\n", true, "&Datei"},
      {u"eng", "[special]\r\nNoLang=yes\r\nLocalizedString=Deutsch\r\n", true, "&Datei"},
  };

  for (const auto& test : cases) {
    SCOPED_TRACE(test.settings + Narrow(test.system));
    desktop_.userLanguage = test.system;
    folder_.Write("orvalis.ini", test.settings);
    bool over = false;
    const auto opened = Opened([this] { EXPECT_TRUE(Start()); },
                               [&over](QWidget& dialog) {
                                 over = Window()->isVisible() && dialog.parent() == Window();
                                 dialog.close();
                               });
    EXPECT_EQ(opened, test.asks ? Names{"frmLang"} : Names());
    EXPECT_EQ(over, test.asks);
    EXPECT_EQ(Menu(u"mnuFile").text().toStdString(), test.fileMenu);
    EXPECT_EQ(folder_.Read("orvalis.ini"), test.settings);
  }
}

TEST_F(MainWindow, KnowsTheNamesOfTheLanguageItStartsIn) {
  folder_.Write("LANG/English/English.lng",
                std::string(English) + "[entities]\r\narvenna NPC=The first\r\n");
  folder_.Write("orvalis.ini", "[general]\r\nlanguage=English\r\n");
  ASSERT_TRUE(Start());
  Do(u"miArvennaNPCs");
  ASSERT_EQ(Items().itemText(1), u"The first"_s);
  Items().setCurrentIndex(1);
  Q_EMIT Items().activated(1);
  EXPECT_TRUE(Shows("ITEM")) << "the position stands under the German name";
}

TEST_F(MainWindow, DoesNotOpenWithoutAFileItNeeds) {
  folder_.Write("ostrakh.jpg", "");
  EXPECT_EQ(Opened([this] { EXPECT_FALSE(Start()); }),
            Names{"Fehler|Die folgende Datei fehlt: " + folder_.Native("ostrakh.jpg") +
                  "\r\nDas Programm kann nicht fortgesetzt werden."});
  EXPECT_FALSE(Window());
}

TEST_F(MainWindow, AReducedEditionHidesWhatItLeavesOut) {
  for (const auto& [extras, languages] : {std::pair(true, false), {false, true}}) {
    folder_.Write("orvalis.ini", std::string("[special]\r\nNoExtras=") + (extras ? "no" : "Yes ") +
                                     "\r\nNoLang=" + (languages ? "no" : " YES") + "\r\n");
    ASSERT_TRUE(Start());
    EXPECT_EQ(Menu(u"mnuExtras").isVisible(), extras);
    EXPECT_EQ(Menu(u"mnuLanguage").isVisible(), languages);
  }
  EXPECT_EQ(TitleOf(*Window()), Narrow(Texts::Join(u"Orvalis ", ProgramInfo::Version, u" Lite")));
}

TEST_F(MainWindow, AChosenLanguageLeavesNoRegionNotEvenAfterAResize) {
  constexpr int Small = 500;
  constexpr int Large = 900;
  ASSERT_TRUE(Start());
  const QImage small = MapAt(Small);
  const QImage large = MapAt(Large);
  Search("arvenna");
  int row = 2;
  for (const TextView shown : {u"miSkaldorOrcs", u"miSkaldorNPCs", u"miFindAgain"}) {
    SCOPED_TRACE(Narrow(shown));
    Do(shown);
    ASSERT_NE(MapAt(Large), large);
    ChooseLanguage(row);
    EXPECT_EQ(RestedMap(), large);
    EXPECT_EQ(MapAt(Small), small);
    EXPECT_EQ(MapAt(Large), large);
    EXPECT_EQ(Menu(u"mnuFile").text().toStdString(), row == 2 ? "&Papers" : "&Datei");
    Do(u"miArvennaNPCs");
    EXPECT_EQ(Items().itemText(0).toStdString(),
              row == 2 ? "   Pick one" : "  ------------ Bitte Auswählen ------------");
    row = row == 2 ? 1 : 2;
  }
  EXPECT_EQ(folder_.Read("orvalis.ini"), "[general]\r\nlanguage=English\r\n");
}

TEST_F(MainWindow, OffersToPrintAndToFindAgainOnceThereIsSomething) {
  ASSERT_TRUE(Start());
  const auto offered = [] {
    return std::pair(Menu(u"miPrint").isEnabled(), Menu(u"miFindAgain").isEnabled());
  };
  Opened([] { Do(u"miFind"); });
  EXPECT_EQ(offered(), std::pair(false, false));
  EXPECT_EQ(Search("nobody").size(), 2U);
  EXPECT_EQ(offered(), std::pair(false, true));
  Search("sarrakh");
  EXPECT_EQ(offered(), std::pair(true, true));
  for (const TextView category : {u"miArvennaNPCs", u"miArvennaBandits"}) {
    ASSERT_TRUE(Start());
    Do(category);
    EXPECT_EQ(offered(), std::pair(true, false));
    ChooseLanguage(1);
    EXPECT_EQ(offered(), std::pair(true, false));
  }
}

TEST_F(MainWindow, AnInvalidLinkInTheSearchIsToldOnceAndEndsTheProgram) {
  folder_.Write("skaldor.data", "[NPC]\r\nWolf=1,2\r\nElk=#,gone\r\n");
  folder_.Write("sarrakh.data", "[NPC]\r\nFox=#,gone too\r\n");
  ASSERT_TRUE(Start());
  constexpr int StillRunning = 1;
  constexpr int Patience = 5000;
  QTimer::singleShot(0, [this] {
    EXPECT_EQ(Search("Wolf"), (Names{"frmFind", "Link Error|DB: " + folder_.Native("skaldor.data") +
                                                    "\r\n\r\n[NPC]\r\nElk=#,gone\r\n\r\n"
                                                    "Link-Target invalid!"}));
  });
  QTimer impatience;
  impatience.callOnTimeout([] { QApplication::exit(StillRunning); });
  impatience.start(Patience);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_FALSE(Window()->isVisible());
  EXPECT_FALSE(Menu(u"miPrint").isEnabled());
}

TEST_F(MainWindow, EveryRegionCommandShowsItsCategoryOnItsRegion) {
  ASSERT_TRUE(Start());
  for (const MenuRow& row : MenuTable::Rows()) {
    if (row.kind != MenuRow::Kind::Category)
      continue;
    SCOPED_TRACE(Narrow(row.name));
    Do(row.name);
    EXPECT_EQ(Map().grab().toImage().pixelColor(2, 500), ColorOf(row.region.value()));
    const bool list = row.mode == DisplayMode::List;
    EXPECT_EQ(Items().isVisible(), list);
    EXPECT_EQ(Shows("DOT(0)"), !list);
    EXPECT_EQ(Shows("lblDOT(0)"), row.mode == DisplayMode::Labels);
    EXPECT_EQ(Shows("lblMultiInfo"), !list);
    const std::string listed = Items().itemText(1).toStdString();
    EXPECT_EQ(listed == EntityOf(row), list || row.name == u"miSkaldorTeachers");
    EXPECT_EQ(list ? listed : Part(Map(), "DOT(0)").toolTip().toStdString(), EntityOf(row));
  }
  EXPECT_EQ(TextOf(Map(), "lblMultiInfo"), " Ahnengräber: Gräber ");
}

TEST_F(MainWindow, APerkShowsItsTeachersAndADoubleClickWhoTheyAre) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(Opened([] { Do(u"miSarrakhPerks"); },
                   [](QWidget& dialog) {
                     auto& tree = Part<QTreeWidget>(dialog);
                     const auto how = Qt::MatchExactly | Qt::MatchRecursive;
                     tree.setCurrentItem(tree.findItems(u"Bogenschütze"_s, how).value(0));
                     Press(dialog, "btnShow");
                   }),
            Names{"frmPerks"});
  EXPECT_EQ(TextOf(Map(), "lblMultiInfo"), " Sarrakh: Lehrer für Bogenschütze ");
  EXPECT_TRUE(Shows("lblDOT(0)"));
  std::string title;
  Opened([] { QTest::mouseDClick(&Part(Map(), "DOT(0)"), Qt::LeftButton); },
         [&title](QWidget& dialog) {
           title = dialog.windowTitle().trimmed().toStdString();
           dialog.close();
         });
  EXPECT_EQ(title, "Archer");
}

TEST_F(MainWindow, EveryOtherCommandOpensWhatItNames) {
  folder_.Write("orvalis.ini",
                "[special]\r\nPlayMusic=no\r\n[urls]\r\nDownload=http://new.example\r\n"
                "tranlatorsdk=http://kit.example\r\nduskholdpatch=http://patch.example\r\n");
  folder_.Write("orvalis.html", "<p>help");
  folder_.Write("readme.html", "<p>read me");
  ASSERT_TRUE(Start());
  Do(u"miOstrakhNPCs");
  const std::pair<TextView, const char*> windows[] = {
      {u"miPrint", "frmPrint"},    {u"mnuLanguage", "frmLang"}, {u"miFind", "frmFind"},
      {u"mnuExtras", "frmExtras"}, {u"miAbout", "frmAbout"},    {u"miArvennaPerks", "frmPerks"}};
  for (const auto& [command, window] : windows)
    EXPECT_EQ(Opened([name = command] { Do(name); }), Names{window});
  EXPECT_TRUE(desktop_.calls.empty());
  for (const TextView command :
       {u"miHelp", u"miReadMe", u"miUpdateOrvalis", u"miDownloadTranslatorSDK", u"miUpdate",
        u"miDuskholdHomeSite", u"miFanSiteC"})
    Do(command);
  EXPECT_EQ(
      desktop_.calls,
      (Names{"open " + folder_.Native("orvalis.html"), "open " + folder_.Native("readme.html"),
             "open http://new.example", "open http://kit.example", "open http://patch.example",
             "open http://www.duskhold.example/", "open http://www.kartenstube.example/"}));
  Do(u"miQuit");
  EXPECT_FALSE(Window()->isVisible());
}
