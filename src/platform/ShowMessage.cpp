#include "platform/ShowMessage.h"

#include "platform/QtText.h"

#include <QMessageBox>

void ShowMessage(QWidget* parent, MessageIcon icon, TextView text, TextView caption) {
  QMessageBox box(parent);
  box.setIcon(icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(QtText::ToQt(text));
  box.setWindowTitle(QtText::ToQt(caption));
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}
