#pragma once

#include <QProxyStyle>

/// The desktop's style with a focus that is visible in every theme: a line in the text's colour
/// where a style would draw a thin frame.
class FocusStyle : public QProxyStyle {
 public:
  /// `base` is the name of the style that draws everything else.
  explicit FocusStyle(const QString& base) : QProxyStyle(base) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};
