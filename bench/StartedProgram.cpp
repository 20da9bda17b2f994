// The program as its main() starts it, in the folder that the first argument names. After the first
// frame its window takes the size of the screen and shows as many regions as the second one says.

#include "Child.h"
#include "MapWorld.h"
#include "app/Context.h"
#include "app/Program.h"
#include "platform/QtText.h"

#include <QAction>
#include <QScreen>

namespace {

void ShowRegions(QMainWindow& window, int regions) {
  window.resize(window.screen()->size());
  auto* map = window.findChild<QWidget*>(QStringLiteral("imgMap"));
  for (int region = 0; region < regions; ++region) {
    auto* command = window.findChild<QAction*>(QtText::ToQt(MapWorld::Measured(region).name));
    static_cast<void>(Frame::Seconds(*map, [command] { command->trigger(); }));
    QApplication::processEvents();
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3)
    return 1;
  int onlyName = 1;
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  const QApplication application(onlyName, argv);
  Context context(NativePath::FromBytes(argv[1]));
  Program program(context);
  const Child child(
      [regions = std::stoi(argv[2])](QMainWindow& window) { ShowRegions(window, regions); });
  QTimer::singleShot(0, &application, [&program] {
    if (!program.Start())
      QApplication::exit(1);
  });
  return QApplication::exec();
}
