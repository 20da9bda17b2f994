#include "app/Context.h"
#include "app/World.h"
#include "app/windows/Program.h"
#include "controls/windows/FocusStyle.h"
#include "controls/windows/PlainToolTips.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"
#include "platform/windows/QtDesktop.h"

#include <QApplication>
#include <QFontInfo>
#include <QIcon>
#include <QStyle>
#include <QTimer>

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/builtin/orvalis-%1.png").arg(size), QSize(size, size));
  return icon;
}

// Where few fonts are installed, the desktop's own may be one of fixed pitch.
void UseProportionalFont() {
  const QFontInfo desktops(QApplication::font());
  if (desktops.fixedPitch())
    QApplication::setFont(WidgetTwips::Font(desktops.pointSizeF()));
}

}  // namespace

int main(int, char** argv) {
  constexpr int fileMissing = 1;
  // Qt would read options of its own; this program has none.
  int onlyName = 1;
  // A desktop's global menu loses top-level commands and the dividers between the regions.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication application(onlyName, argv);
  PlainToolTips toolTips;
  application.installEventFilter(&toolTips);
  UseProportionalFont();
  QApplication::setStyle(new FocusStyle(QApplication::style()->name()));
  QApplication::setWindowIcon(ProgramIcon());
  QtDesktop desktop;
  World world(NativePath::FromBytes(PosixFile::ExecutableFolder()));
  Context context(world, desktop);
  Program program(context);
  // Inside the event loop: before it, nothing can end the program.
  QTimer::singleShot(0, &application, [&program] {
    if (!program.Start())
      QApplication::exit(fileMissing);
  });
  return QApplication::exec();
}
