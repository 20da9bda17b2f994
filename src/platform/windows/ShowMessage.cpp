#include "platform/windows/ShowMessage.h"

#include "platform/windows/QtText.h"

#include <QMessageBox>

void ShowMessage(QWidget* parent, MessageIcon icon, const Message& message) {
  QMessageBox box(parent);
  box.setIcon(icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(QtText::ToQt(message.text));
  box.setWindowTitle(QtText::ToQt(message.caption));
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}
