#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// A dialog that a test forgot would wait for a user for ever.
class Watchdog : public QTimer {
 public:
  Watchdog() {
    callOnTimeout([this] { Look(); });
    start(Period);
  }

 private:
  static constexpr int Period = 1000;
  static constexpr int Patience = 15;

  void Look() {
    auto* modal = qApp->activeModalWidget();
    seconds_ = modal && modal == seen_ ? seconds_ + 1 : 0;
    seen_ = modal;
    if (seconds_ < Patience)
      return;
    ADD_FAILURE() << "nobody closed the dialog " << modal->objectName().toStdString();
    if (auto* dialog = qobject_cast<QDialog*>(modal))
      dialog->reject();
    else
      modal->close();
  }

  QPointer<QWidget> seen_;
  int seconds_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  int onlyName = 1;
  QApplication application(onlyName, argv);
  const Watchdog watchdog;
  return RUN_ALL_TESTS();
}
