#include "platform/windows/ShowMessage.h"

#include "platform/windows/QtText.h"
#include "platform/windows/WindowTitle.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace {

// Pixels: what a text may take before it scrolls, and what a title bar has beside its text.
constexpr int LargestTextWidth = 500;
constexpr int TitleBarButtons = 150;

QSize Needed(const QLabel& label) {
  return label.fontMetrics()
      .boundingRect(0, 0, LargestTextWidth, QWIDGETSIZE_MAX, Qt::TextWordWrap, label.text())
      .size();
}

// A window manager would cut a title that is wider than the message.
void WidenToTitle(QMessageBox& box, QGridLayout& grid) {
  QFont font = QApplication::font("QMdiSubWindowTitleBar");
  font.setBold(true);
  const int title = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + TitleBarButtons;
  const int widest = box.screen()->availableSize().width() - 2 * TitleBarButtons;
  grid.addItem(new QSpacerItem(std::min(title, widest), 0), grid.rowCount(), 0, 1, -1);
}

// The label keeps the text; a read-only view shows it in its place.
void ShowInView(QLabel& label, QGridLayout& grid, int height) {
  auto* view = new QPlainTextEdit(label.text(), label.parentWidget());
  view->setReadOnly(true);
  view->setTabChangesFocus(true);
  view->setFrameStyle(QFrame::NoFrame);
  view->setAccessibleName(label.window()->windowTitle());
  view->viewport()->setAutoFillBackground(false);
  view->setFixedSize(LargestTextWidth + view->verticalScrollBar()->sizeHint().width(), height);
  delete grid.replaceWidget(&label, view);
  label.hide();
}

}  // namespace

void ShowMessage(QWidget* parent, MessageIcon icon, const Message& message) {
  QMessageBox box(parent);
  box.setIcon(icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(QtText::ToQt(message.text));
  WindowTitle::Set(box, message.caption);
  box.setStandardButtons(QMessageBox::Ok);
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (label && grid) {
    WidenToTitle(box, *grid);
    const int highest = box.screen()->availableSize().height() / 2;
    const QSize needed = Needed(*label);
    if (needed.width() > LargestTextWidth || needed.height() > highest)
      ShowInView(*label, *grid, std::min(needed.height(), highest));
    box.button(QMessageBox::Ok)->setFocus();
  }
  box.exec();
}
