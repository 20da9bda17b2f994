#include "controls/windows/FocusStyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPainter>
#include <QPen>
#include <QPushButton>
#include <QStyleOption>

namespace {

// In pixels that the device pixel ratio does not count.
constexpr double LineWidth = 2;
constexpr int Border = 2;

// Only if keys brought the focus: after a click the pointer shows where it is.
void DrawLine(const QStyleOption& option, const QRect& place, QPainter& painter,
              const QWidget* widget) {
  if (!option.state.testFlag(QStyle::State_HasFocus) ||
      !option.state.testFlag(QStyle::State_KeyboardFocusChange))
    return;
  const QPalette::ColorRole text = widget ? widget->foregroundRole() : QPalette::WindowText;
  painter.save();
  painter.setPen(
      QPen(option.palette.color(text), LineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(place).adjusted(1, 1, -1, -1));
  painter.restore();
}

QRect Inside(const QRect& control) {
  return control.adjusted(Border, Border, -Border, -Border);
}

}  // namespace

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  // A row of a list is filled where the focus is; it needs no line.
  const bool row = qobject_cast<const QAbstractItemView*>(widget);
  if (element != PE_FrameFocusRect || row)
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool hasItsLine =
      qobject_cast<const QPushButton*>(widget) || qobject_cast<const QComboBox*>(widget);
  if (!hasItsLine)
    DrawLine(*option, option->rect, *painter, widget);
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_PushButton)
    DrawLine(*option, Inside(option->rect), *painter, widget);
}

void FocusStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox)
    DrawLine(*option, Inside(option->rect), *painter, widget);
}
