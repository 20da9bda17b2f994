#include "app/Context.h"
#include "app/Program.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <QApplication>
#include <QTimer>

int main(int, char** argv) {
  constexpr int fileMissing = 1;
  // Qt would read options of its own; this program has none.
  int onlyName = 1;
  // A desktop's global menu loses top-level commands and the dividers between the regions.
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  const QApplication application(onlyName, argv);
  Context context(NativePath::FromBytes(PosixFile::ExecutableFolder()));
  Program program(context);
  // Inside the event loop: before it, nothing can end the program.
  QTimer::singleShot(0, &application, [&program] {
    if (!program.Start())
      QApplication::exit(fileMissing);
  });
  return QApplication::exec();
}
