#include "app/Context.h"
#include "app/MenuTable.h"
#include "app/windows/Program.h"
#include "controls/windows/GridListbox.h"
#include "platform/ProgramInfo.h"
#include "platform/windows/QtText.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <array>
#include <functional>
#include <optional>

#include <gtest/gtest.h>

namespace {

using Answer = std::function<void(QWidget&)>;

constexpr std::array Colors = {Qt::red, Qt::darkGreen, Qt::blue, Qt::cyan, Qt::magenta};
constexpr const char* English =
    "[general]\r\nlanguage=English\r\n[menus]\r\nmnuFile=&Papers\r\n"
    "[ui]\r\nComboBoxPrompt=Pick one\r\n";

std::string Narrow(TextView text) {
  return QtText::ToQt(text).toStdString();
}

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
      QImage picture(64, 48, QImage::Format_RGB32);
      picture.fill(ColorOf(region.region));
      picture.save(QString::fromStdString(folder_.Native(File(region.region, ".jpg"))), "PNG");
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

  template <typename Type>
  static Type& Part(const char* name) {
    return *Window()->findChild<Type*>(QLatin1String(name));
  }

  static QAction& Menu(TextView name) { return *Window()->findChild<QAction*>(QtText::ToQt(name)); }

  static QWidget& Map() { return *Window()->centralWidget(); }

  // The map as it looks at this width.
  static QImage MapAt(int width) {
    Window()->resize(width, 600);
    return Map().grab().toImage();
  }

  // Runs `action`, answers each window that opens over the main one, and gives back their names,
  // of messages "caption|text".
  static std::vector<std::string> Opened(
      const std::function<void()>& action,
      const Answer& answer = [](QWidget& window) { window.close(); }) {
    std::vector<std::string> names;
    const QWidget* seen = nullptr;
    QTimer watch;
    watch.callOnTimeout([&] {
      QWidget* window = QApplication::activeModalWidget();
      if (window == seen)
        return;
      seen = window;
      if (!window)
        return;
      const QString text = window->property("text").toString();
      names.push_back((text.isEmpty() ? window->objectName() : window->windowTitle() + u'|' + text)
                          .toStdString());
      // A message has one answer.
      text.isEmpty() ? answer(*window) : static_cast<void>(window->close());
    });
    watch.start(1);
    action();
    return names;
  }

  static std::vector<std::string> Search(const char* term) {
    return Opened([] { Menu(u"miFind").trigger(); },
                  [term](QWidget& dialog) {
                    auto* text = dialog.findChild<QLineEdit*>();
                    text->setText(QLatin1String(term));
                    QTest::keyClick(text, Qt::Key_Return);
                  });
  }

  static void ChooseLanguage(int row) {
    EXPECT_EQ(Opened([] { Menu(u"mnuLanguage").trigger(); },
                     [row](QWidget& dialog) {
                       dialog.findChild<GridListbox*>()->Select(row);
                       QTest::keyClick(&dialog, Qt::Key_Return);
                     }),
              std::vector<std::string>{"frmLang"});
  }

  TemporaryFolder folder_;
  RecordingDesktop desktop_;
  std::optional<World> world_;
  std::optional<Context> context_;
  std::optional<Program> program_;
};

}  // namespace

TEST_F(MainWindow, AsksForTheLanguageOverTheWindowWheneverGermanMayBeWrong) {
  struct {
    TextView system;
    const char* settings;
    bool asks;
    const char* fileMenu;
  } const cases[] = {
      {u"deu", "", false, "&Datei"},
      {u" DEU ", "[general]\r\nlanguage=Deutsch\r\n", false, "&Datei"},
      {u"deu", "[general]\r\nlanguage=Gone\r\n", false, "&Datei"},
      {u"eng", "[general]\r\nlanguage=English\r\n", false, "&Papers"},
      {u"", "[general]\r\nlanguage=English\r\n", false, "&Papers"},
      {u"", "", true, "&Datei"},
      {u"eng", "[general]\r\nlanguage=Deutsch\r\n", true, "&Datei"},
      {u"fin", "", true, "&Datei"},
      {u"fin", "[general]\r\nlanguage=Suomi\r\n", true, "&Datei"},
      {u"eng", "[special]\r\nNoLang=yes\r\nLocalizedString=Deutsch\r\n", true, "&Datei"},
      {u"deu", "[special]\r\nNoLang=yes\r\n", false, "&Datei"},
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
    EXPECT_EQ(opened, test.asks ? std::vector<std::string>{"frmLang"} : std::vector<std::string>());
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
  Menu(u"miArvennaNPCs").trigger();
  auto& items = Part<QComboBox>("cboItems");
  ASSERT_EQ(items.itemText(1), QStringLiteral("The first"));
  items.setCurrentIndex(1);
  Q_EMIT items.activated(1);
  EXPECT_TRUE(Part<QWidget>("ITEM").isVisible()) << "the position stands under the German name";
}

TEST_F(MainWindow, DoesNotOpenWithoutAFileItNeeds) {
  folder_.Write("ostrakh.jpg", "");
  EXPECT_EQ(
      Opened([this] { EXPECT_FALSE(Start()); }),
      std::vector<std::string>{"Fehler|Die folgende Datei fehlt: " + folder_.Native("ostrakh.jpg") +
                               "\r\nDas Programm kann nicht fortgesetzt werden."});
  EXPECT_FALSE(Window());
}

TEST_F(MainWindow, AReducedEditionHidesWhatItLeavesOut) {
  for (const bool extras : {false, true}) {
    for (const bool languages : {false, true}) {
      folder_.Write("orvalis.ini",
                    std::string("[special]\r\nNoExtras=") + (extras ? "no" : "Yes ") +
                        "\r\nLocalizedString=X\r\nNoLang=" + (languages ? "no" : " YES") + "\r\n");
      ASSERT_TRUE(Start());
      EXPECT_EQ(Menu(u"mnuExtras").isVisible(), extras);
      EXPECT_EQ(Menu(u"mnuLanguage").isVisible(), languages);
      const Text edition = Texts::Join(extras ? u"" : u"Lite", languages ? u"" : u" X");
      EXPECT_EQ(QtText::FromQt(Window()->windowTitle()),
                Texts::Join(u"Orvalis ", ProgramInfo::Version, u" ", edition));
    }
  }
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
    Menu(shown).trigger();
    ASSERT_NE(MapAt(Large), large);
    ChooseLanguage(row);
    EXPECT_EQ(Map().grab().toImage(), large);
    EXPECT_EQ(MapAt(Small), small);
    EXPECT_EQ(MapAt(Large), large);
    EXPECT_EQ(Menu(u"mnuFile").text().toStdString(), row == 2 ? "&Papers" : "&Datei");
    Menu(u"miArvennaNPCs").trigger();
    EXPECT_EQ(Part<QComboBox>("cboItems").itemText(0).toStdString(),
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
  Opened([] { Menu(u"miFind").trigger(); });
  EXPECT_EQ(offered(), std::pair(false, false));
  EXPECT_EQ(Search("nobody").size(), 2U);
  EXPECT_EQ(offered(), std::pair(false, true));
  Search("sarrakh");
  EXPECT_EQ(offered(), std::pair(true, true));
  for (const TextView category : {u"miArvennaNPCs", u"miArvennaBandits"}) {
    ASSERT_TRUE(Start());
    Menu(category).trigger();
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
    EXPECT_EQ(Search("Wolf"), (std::vector<std::string>{
                                  "frmFind", "Link Error|DB: " + folder_.Native("skaldor.data") +
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
    Menu(row.name).trigger();
    EXPECT_EQ(Map().grab().toImage().pixelColor(2, 500), ColorOf(row.region.value()));
    const bool list = row.mode == DisplayMode::List;
    const auto& items = Part<QComboBox>("cboItems");
    EXPECT_EQ(items.isVisible(), list);
    EXPECT_EQ(Part<QWidget>("DOT(0)").isVisible(), !list);
    EXPECT_EQ(Part<QWidget>("lblDOT(0)").isVisible(), row.mode == DisplayMode::Labels);
    EXPECT_EQ(Part<QWidget>("lblMultiInfo").isVisible(), !list);
    const std::string listed = items.itemText(1).toStdString();
    EXPECT_EQ(listed == EntityOf(row), list || row.name == u"miSkaldorTeachers");
    EXPECT_EQ(list ? listed : Part<QWidget>("DOT(0)").toolTip().toStdString(), EntityOf(row));
  }
  EXPECT_EQ(Part<QWidget>("lblMultiInfo").property("text").toString(),
            QStringLiteral(" Ahnengräber: Gräber "));
}

TEST_F(MainWindow, APerkShowsItsTeachersAndADoubleClickWhoTheyAre) {
  ASSERT_TRUE(Start());
  const auto opened =
      Opened([] { Menu(u"miSarrakhPerks").trigger(); },
             [](QWidget& dialog) {
               auto* tree = dialog.findChild<QTreeWidget*>();
               tree->setCurrentItem(tree->findItems(QStringLiteral("Bogenschütze"),
                                                    Qt::MatchExactly | Qt::MatchRecursive)
                                        .value(0));
               dialog.findChild<QPushButton*>(QStringLiteral("btnShow"))->click();
             });
  EXPECT_EQ(opened, std::vector<std::string>{"frmPerks"});
  EXPECT_EQ(Part<QWidget>("lblMultiInfo").property("text").toString(),
            QStringLiteral(" Sarrakh: Lehrer für Bogenschütze "));
  EXPECT_TRUE(Part<QWidget>("lblDOT(0)").isVisible());
  QString name;
  Opened([] { QTest::mouseDClick(&Part<QWidget>("DOT(0)"), Qt::LeftButton); },
         [&name](QWidget& dialog) {
           name = dialog.windowTitle().trimmed();
           dialog.close();
         });
  EXPECT_EQ(name, QStringLiteral("Archer"));
}

TEST_F(MainWindow, EveryOtherCommandOpensWhatItNames) {
  folder_.Write("orvalis.ini",
                "[special]\r\nPlayMusic=no\r\n[urls]\r\nDownload=http://new.example\r\n"
                "tranlatorsdk=http://kit.example\r\nduskholdpatch=http://patch.example\r\n");
  folder_.Write("orvalis.html", "<p>help");
  folder_.Write("readme.html", "<p>read me");
  ASSERT_TRUE(Start());
  Menu(u"miOstrakhNPCs").trigger();
  const std::pair<TextView, const char*> windows[] = {
      {u"miPrint", "frmPrint"},    {u"mnuLanguage", "frmLang"}, {u"miFind", "frmFind"},
      {u"mnuExtras", "frmExtras"}, {u"miAbout", "frmAbout"},    {u"miArvennaPerks", "frmPerks"}};
  for (const auto& [command, window] : windows)
    EXPECT_EQ(Opened([name = command] { Menu(name).trigger(); }), std::vector<std::string>{window});
  EXPECT_TRUE(desktop_.calls.empty());
  for (const TextView command :
       {u"miHelp", u"miReadMe", u"miUpdateOrvalis", u"miDownloadTranslatorSDK", u"miUpdate",
        u"miDuskholdHomeSite", u"miFanSiteC"})
    Menu(command).trigger();
  EXPECT_EQ(desktop_.calls,
            (std::vector<std::string>{
                "open " + folder_.Native("orvalis.html"), "open " + folder_.Native("readme.html"),
                "open http://new.example", "open http://kit.example", "open http://patch.example",
                "open http://www.duskhold.example/", "open http://www.kartenstube.example/"}));
  Menu(u"miQuit").trigger();
  EXPECT_FALSE(Window()->isVisible());
}
