// Linked to the program's own main(): uses its windows at random, as fast as it can, and ends it
// after ORVALIS_DRIVER_STEPS steps, chosen by ORVALIS_DRIVER_SEED. Writes the memory in use every
// hundred steps. Exits with 3 where a step takes more than 2 seconds of processor time, or more
// than 300 by the clock: a program that waits uses none, and one on a loaded machine waits for it.
// Exits with 4 where the map does not show what it has to.

#include "MapTruth.h"

#include "app/MenuTable.h"
#include "platform/windows/QtText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <random>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double MostSeconds = 2;
constexpr unsigned MostSecondsByClock = 300;
constexpr int HangCode = 3;
constexpr int UntrueCode = 4;
constexpr int MostMenuKeys = 60;
constexpr int StepsInDialog = 6;

constexpr std::array<QSize, 8> Sizes = {QSize(200, 100),  QSize(640, 480),   QSize(1024, 800),
                                        QSize(1280, 960), QSize(1920, 1080), QSize(333, 1200),
                                        QSize(2500, 300), QSize(3840, 2160)};
constexpr std::array<Qt::Key, 12> Keys = {
    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Down, Qt::Key_Up,  Qt::Key_Right, Qt::Key_Left,
    Qt::Key_Return, Qt::Key_Space,   Qt::Key_Home, Qt::Key_End, Qt::Key_F1,    Qt::Key_A};
constexpr std::array<int, 6> WheelDeltas = {120, 240, -120, 15, 0, 10'000};
constexpr std::array<Qt::Key, 5> ZoomKeys = {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0,
                                             Qt::Key_F5};
constexpr std::array<Qt::Key, 4> PanKeys = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
// What a program without a focus must not answer.
constexpr std::array<Qt::Key, 4> IdleKeys = {Qt::Key_Down, Qt::Key_Space, Qt::Key_A,
                                             Qt::Key_Return};
constexpr std::array<const char*, 6> Terms = {"a", "Lehrer", "", "\xC3\xA4", "*;#,", "tempel von"};

// What is being tried, for the signal's handler too.
std::atomic<const char*> what = "the start";

// A step that waits for good never comes to say so itself. Only what a handler may call.
void SayBlocked(int) {
  const std::array<const char*, 3> parts = {"blocked: ", what.load(), "\n"};
  for (const char* part : parts)
    if (::write(STDOUT_FILENO, part, std::strlen(part)) < 0)
      break;
  std::_Exit(HangCode);
}

double ProcessSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

int FromEnvironment(const char* name, int otherwise) {
  bool valid = false;
  const int value = qEnvironmentVariableIntValue(name, &valid);
  return valid ? value : otherwise;
}

class Driver : public QObject {
 public:
  Driver()
      : QObject(qApp),
        random_(static_cast<unsigned>(FromEnvironment("ORVALIS_DRIVER_SEED", 1))),
        steps_(FromEnvironment("ORVALIS_DRIVER_STEPS", 200)) {
    static_cast<void>(std::signal(SIGALRM, SayBlocked));
    ::alarm(MostSecondsByClock);
    QTimer::singleShot(0, this, &Driver::Step);
  }

 private:
  template <typename List>
  auto& Any(List& list) {
    return list[static_cast<decltype(list.size())>(Below(static_cast<int>(list.size())))];
  }

  int Below(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most)); }

  void Step() {
    // Ordered before the step is done: that may open a dialog, which is to be driven too.
    QTimer::singleShot(0, this, &Driver::Step);
    ::alarm(MostSecondsByClock);
    const double now = ProcessSeconds();
    if (done_ > 1 && now - last_ > MostSeconds) {
      std::printf("hang: %.1f s after step %d, %s\n", now - last_, done_, what.load());
      static_cast<void>(std::fflush(stdout));
      std::_Exit(HangCode);
    }
    last_ = now;
    if (++done_ % 100 == 0)
      PrintMemory();
    auto* window = MainWindow();
    if (window && !truth_)
      truth_ = new MapTruth(*window);
    if (auto* popup = QApplication::activePopupWidget())
      popup->close();
    else if (auto* dialog = QApplication::activeModalWidget())
      InDialog(*dialog);
    // A dialog that is closing has not yet done what it was opened for.
    else if (window && !busy_) {
      busy_ = true;
      CheckTruth(*window);
      truth_->Begin();
      InWindow(*window);
      busy_ = false;
    }
  }

  void CheckTruth(QMainWindow& window) {
    // Of a window that is closed nothing is to be seen.
    if (!window.isVisible())
      return;
    const QWidget* focused = window.focusWidget();
    if (!focused || !focused->isVisible())
      PressAt(window, Any(IdleKeys));
    const std::string fault = truth_->Fault();
    if (fault.empty())
      return;
    std::printf("untrue: %s after step %d, %s\n", fault.c_str(), done_, what.load());
    static_cast<void>(std::fflush(stdout));
    std::_Exit(UntrueCode);
  }

  // As the desktop sends it: to a popup, else to what has the focus, seen or not, else the window.
  static void PressAt(const QWidget& window, Qt::Key key) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      const QString text = key == Qt::Key_A ? u"a"_s : QString();
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QApplication::sendEvent(window.windowHandle(), &event);
    }
  }

  static QMainWindow* MainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (auto* window = qobject_cast<QMainWindow*>(widget))
        return window;
    return nullptr;
  }

  static void PrintMemory() {
    std::ifstream status("/proc/self/statm");
    long pages = 0;
    status >> pages >> pages;
    std::printf("resident %ld KiB\n", pages * 4);
    static_cast<void>(std::fflush(stdout));
  }

  void InWindow(QMainWindow& window) {
    dialog_ = nullptr;
    if (done_ > steps_) {
      window.close();
      return;
    }
    switch (random_() % 11) {
      case 0:
        what = "resizing";
        window.resize(Any(Sizes));
        break;
      case 1:
        what = "picking from the list";
        Pick(*window.findChild<QComboBox*>(u"cboItems"_s));
        break;
      case 2:
      case 3:
      case 4:
        what = "the pointer";
        Point(window, random_() % 8 == 0);
        break;
      case 5:
        what = "a key";
        PressKey(window);
        break;
      case 6:
        what = "looking closer";
        LookCloser(window);
        break;
      default:
        Command(window);
    }
  }

  void Command(QMainWindow& window) {
    // There are ten categories to each other command, and only those open windows and write.
    const auto kind = random_() % 2 == 0 ? MenuRow::Kind::Category : MenuRow::Kind::Command;
    std::vector<MenuRow> rows;
    for (const MenuRow& row : MenuTable::Rows())
      if (row.kind == kind && row.action != Action::Quit)
        rows.push_back(row);
    const MenuRow& row = Any(rows);
    command_ = QtText::ToQt(row.name).toLatin1();
    what = command_.constData();
    auto* action = window.findChild<QAction*>(QtText::ToQt(row.name));
    if (!action || !action->isEnabled() || !action->isVisible())
      return;
    if (random_() % 2 == 0 || !ChooseByKeys(window, *action))
      action->trigger();
  }

  // Opens the menus with the keyboard, down to the one that holds the action, and presses Enter on
  // it; false, and all menus closed, if the keys lead nowhere.
  static bool ChooseByKeys(QMainWindow& window, QAction& action) {
    QMenuBar& bar = *window.menuBar();
    std::vector<QAction*> way = {&action};
    while (!bar.actions().contains(way.front())) {
      auto* const menu = qobject_cast<QMenu*>(way.front()->associatedObjects().value(0));
      if (!menu)
        return false;
      way.insert(way.begin(), menu->menuAction());
    }
    const QString first = bar.actions().constFirst()->text();
    const QString key = first.section(u'&', 1).left(1).toUpper();
    if (key.isEmpty())
      return false;
    QWidget* const focused = window.focusWidget();
    QTest::keyClick(focused ? focused : &window, static_cast<Qt::Key>(key.at(0).unicode()),
                    Qt::AltModifier);
    const bool there = Walk(window, bar, way);
    if (there)
      PressAt(window, Qt::Key_Return);
    while (!there && QApplication::activePopupWidget())
      QApplication::activePopupWidget()->close();
    return there;
  }

  static bool Walk(const QWidget& window, const QMenuBar& bar, const std::vector<QAction*>& way) {
    for (int i = 0; i < MostMenuKeys && bar.activeAction() != way.front(); ++i)
      PressAt(window, Qt::Key_Right);
    for (size_t level = 1; level < way.size(); ++level) {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      for (int i = 0; menu && i < MostMenuKeys && menu->activeAction() != way[level]; ++i)
        PressAt(window, Qt::Key_Down);
      if (!menu || menu->activeAction() != way[level])
        return false;
      if (level + 1 < way.size())
        PressAt(window, Qt::Key_Right);
    }
    return bar.activeAction() == way.front();
  }

  void Pick(QComboBox& items) {
    if (items.isHidden() || items.count() == 0)
      return;
    items.setCurrentIndex(Below(items.count()));
    Q_EMIT items.activated(items.currentIndex());
  }

  void Point(QMainWindow& window, bool doubleClick) {
    const auto widgets = window.centralWidget()->findChildren<QWidget*>();
    if (widgets.isEmpty())
      return;
    QWidget* widget = Any(widgets);
    if (!widget->isVisible())
      return;
    const QPoint at = widget->rect().center();
    Send(*widget, QEvent::MouseMove, at, Qt::NoButton);
    if (doubleClick)
      Send(*widget, QEvent::MouseButtonDblClick, at, Qt::LeftButton);
  }

  void LookCloser(QMainWindow& window) {
    QWidget* const map = window.centralWidget()->findChild<QWidget*>(u"imgMap"_s);
    const auto anywhere = [this, map] {
      const int x = Below(std::max(1, map->width()));
      return QPoint(x, Below(std::max(1, map->height())));
    };
    const QPoint at = anywhere();
    QWidget* const focused = window.focusWidget() ? window.focusWidget() : &window;
    switch (random_() % 4) {
      case 0: {
        QWheelEvent wheel(at, map->mapToGlobal(at), {}, {0, Any(WheelDeltas)}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window.centralWidget(), &wheel);
        break;
      }
      case 1:
        QTest::keyClick(focused, Any(ZoomKeys));
        break;
      case 2:
        QTest::keyClick(focused, Any(PanKeys), Qt::ShiftModifier);
        break;
      default:
        Send(*map, QEvent::MouseButtonPress, at, Qt::LeftButton);
        const QPoint to = anywhere();
        Send(*map, QEvent::MouseMove, to, Qt::LeftButton);
        Send(*map, QEvent::MouseButtonRelease, to, Qt::NoButton);
    }
  }

  static void Send(QWidget& to, QEvent::Type type, const QPoint& at, Qt::MouseButtons held) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, to.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&to, &event);
  }

  void PressKey(QWidget& window) {
    QWidget* focused = window.focusWidget() ? window.focusWidget() : &window;
    QTest::keyClick(focused, Any(Keys));
  }

  void InDialog(QWidget& dialog) {
    if (dialog_ != &dialog) {
      stepsHere_ = 0;
      if (truth_)
        truth_->Watch(dialog);
    }
    dialog_ = &dialog;
    if (++stepsHere_ > StepsInDialog || qobject_cast<QFileDialog*>(&dialog)) {
      what = "leaving a dialog";
      dialog.close();
      return;
    }
    what = "a dialog";
    auto widgets = dialog.findChildren<QWidget*>();
    widgets.removeIf([](const QWidget* widget) {
      return !widget->isVisible() || !widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus;
    });
    if (widgets.isEmpty())
      return;
    Use(*Any(widgets), dialog);
  }

  void Use(QWidget& widget, QWidget& dialog) {
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
      edit->setText(QString::fromUtf8(Any(Terms)));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
      button->click();
    } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
      const int rows = view->model() ? view->model()->rowCount() : 0;
      if (rows > 0)
        view->setCurrentIndex(view->model()->index(Below(rows), 0));
      QTest::keyClick(view, Any(Keys));
    } else {
      PressKey(dialog);
    }
  }

  std::mt19937 random_;
  int steps_;
  int done_ = 0;
  int stepsHere_ = 0;
  double last_ = 0;
  QByteArray command_;
  QPointer<QWidget> dialog_;
  MapTruth* truth_ = nullptr;
  bool busy_ = false;
};

void Drive() {
  new Driver();
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Drive)
