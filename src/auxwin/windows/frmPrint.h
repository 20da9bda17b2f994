#pragma once

#include "app/Twips2Pixel_Module.h"
#include "app/World.h"
#include "controls/windows/Dialog.h"
#include "platform/Desktop.h"

#include <functional>

class QComboBox;
class QLabel;
class QPainter;
class QPrinter;
class QPushButton;
class QRadioButton;

/// What is printed, asked when Print is pressed: its size on screen in twips, the function that
/// paints it in pixels of the screen from the painter's origin, and its heading, which may be
/// empty.
struct Printout {
  std::function<Twips2Pixel_Module::Twips()> size;
  std::function<void(QPainter&)> paint;
  std::function<Text()> heading = [] { return Text(); };
};

/// The print window: a printer, an orientation, and one page in the size that the map has on
/// screen; without a printer, a PDF file. Failures while printing are not reported.
class frmPrint : public Dialog {
  Q_OBJECT

 public:
  frmPrint(QWidget* parent, World& world, Desktop& desktop, Printout printout);

 private:
  void FillPrinters();
  void ShowBanner();
  void btnPrint_Click();
  [[nodiscard]] bool ChoosePrinter(QPrinter& printer);
  void PrintOn(QPrinter& printer) const;

  Desktop& desktop_;
  Printout printout_;
  Text caption_;
  bool toFile_ = false;

  QLabel* imgBanner;
  QLabel* lblPrinters;
  QComboBox* cboPrinters;
  QRadioButton* rbQuerformat;
  QRadioButton* rbHochformat;
  QPushButton* btnPrint;
  QPushButton* btnCancel;
};
