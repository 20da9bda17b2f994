// Linked to the program's own main(). After the first frame its window takes the size of the screen
// and shows as many regions as ORVALIS_BENCH_REGIONS says.

#include "Child.h"
#include "MapWorld.h"
#include "platform/windows/QtText.h"

#include <QAction>
#include <QScreen>

namespace {

void ShowRegions(QMainWindow& window) {
  window.resize(window.screen()->size());
  auto* map = window.findChild<QWidget*>(QStringLiteral("imgMap"));
  const int regions = qEnvironmentVariableIntValue("ORVALIS_BENCH_REGIONS");
  for (int region = 0; region < regions; ++region) {
    auto* command = window.findChild<QAction*>(QtText::ToQt(MapWorld::Measured(region).name));
    static_cast<void>(Frame::Seconds(*map, [command] { command->trigger(); }));
    QApplication::processEvents();
  }
}

void Watch() {
  (new Child(ShowRegions))->setParent(qApp);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
