// The least that a program with a window and a menu bar can be, to compare with.

#include "Child.h"

#include <QMenuBar>
#include <QScreen>

int main(int, char** argv) {
  int onlyName = 1;
  const QApplication application(onlyName, argv);
  QMainWindow window;
  for (const char* name : {"&File", "&Edit", "&View", "&Help"}) {
    QMenu* menu = window.menuBar()->addMenu(QLatin1String(name));
    for (int i = 0; i < 5; ++i)
      menu->addAction(QStringLiteral("Command %1").arg(i));
  }
  window.resize(1024, 800);
  const Child child([](QMainWindow& shown) {
    shown.resize(shown.screen()->size());
    QApplication::processEvents();
  });
  window.show();
  return QApplication::exec();
}
