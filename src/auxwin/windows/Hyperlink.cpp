#include "auxwin/windows/Hyperlink.h"

#include "auxwin/Launching.h"
#include "controls/windows/WidgetTwips.h"
#include "platform/windows/QtText.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <utility>

namespace {

bool OpensLink(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         event.key() == Qt::Key_Space;
}

// Pure blue can't be read on a dark ground: there the same hue is drawn lighter.
QColor ReadableOn(const QColor& ground, const QColor& color) {
  constexpr float light = 0.8F;
  return ground.lightnessF() > 0.5F
             ? color
             : QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), light);
}

}  // namespace

void Hyperlink::CreateHyperlink(QLabel& Label, int LabelColor, int LabelColorMouseOver,
                                std::function<void()> open) {
  new Hyperlink(Label, LabelColor, LabelColorMouseOver, std::move(open));
}

void Hyperlink::CreateAddressLink(QLabel& Label, Launching& launching, TextView scheme) {
  CreateHyperlink(Label, LinkColor, LinkColorMouseOver, [&Label, &launching, scheme] {
    launching.ShellExec(Texts::Join(scheme, QtText::FromQt(Label.text())));
  });
}

Hyperlink::Hyperlink(QLabel& label, int color, int colorMouseOver, std::function<void()> open)
    : QObject(&label),
      label_(label),
      color_(color),
      colorMouseOver_(colorMouseOver),
      open_(std::move(open)) {
  QFont font = label.font();
  font.setUnderline(true);
  label.setFont(font);
  label.setCursor(Qt::PointingHandCursor);
  label.setMouseTracking(true);
  label.installEventFilter(this);
  // The edges that count as the label's are its parent's pixels.
  label.parentWidget()->setMouseTracking(true);
  label.parentWidget()->installEventFilter(this);
  ApplyColor(color);
  FollowText();
}

bool Hyperlink::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
      FollowPointer(static_cast<QSinglePointEvent*>(event)->globalPosition().toPoint());
      return false;
    case QEvent::Leave:
      FollowPointer(QCursor::pos());
      return false;
    case QEvent::Show:
    case QEvent::LayoutRequest:
      FollowText();
      return false;
    default:
      return watched == &label_ && LabelEvent(*event);
  }
}

bool Hyperlink::LabelEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      pressed_ = true;
      return true;
    case QEvent::MouseButtonDblClick:
      return true;
    case QEvent::MouseButtonRelease:
      Release(static_cast<const QMouseEvent&>(event));
      return true;
    case QEvent::KeyPress:
      if (!OpensLink(static_cast<const QKeyEvent&>(event)))
        return false;
      open_();
      return true;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      label_.update();
      return false;
    case QEvent::Paint:
      return label_.hasFocus() && !painting_ && PaintWithFocus(event);
    default:
      return false;
  }
}

// The second release of a double click follows no press of its own.
void Hyperlink::Release(const QMouseEvent& event) {
  const bool clicked = pressed_ && event.button() == Qt::LeftButton;
  pressed_ = false;
  if (clicked && label_.rect().contains(event.pos()))
    open_();
}

bool Hyperlink::PaintWithFocus(QEvent& event) {
  painting_ = true;
  QApplication::sendEvent(&label_, &event);
  painting_ = false;
  QStyleOptionFocusRect option;
  option.initFrom(&label_);
  // Styles leave the frame out unless the last key was one that moves the focus.
  option.state |= QStyle::State_KeyboardFocusChange;
  QPainter painter(&label_);
  label_.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &label_);
  return true;
}

void Hyperlink::FollowPointer(const QPoint& globalPoint) {
  const QRect withEdges = label_.rect().adjusted(0, 0, 1, 1);
  ApplyColor(withEdges.contains(label_.mapFromGlobal(globalPoint)) ? colorMouseOver_ : color_);
}

// There is nothing to open while the label is empty.
void Hyperlink::FollowText() {
  label_.setFocusPolicy(label_.text().isEmpty() ? Qt::NoFocus : Qt::TabFocus);
}

void Hyperlink::ApplyColor(int color) {
  if (color == currentColor_)
    return;
  currentColor_ = color;
  QPalette palette = label_.palette();
  palette.setColor(QPalette::WindowText,
                   ReadableOn(palette.color(QPalette::Window), WidgetTwips::Color(color)));
  label_.setPalette(palette);
  if (color == colorMouseOver_)
    label_.repaint();
}
