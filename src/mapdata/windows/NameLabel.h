#pragma once

#include <QLabel>

/// A name on the map, as large as its plain text. Colours are red + 256 x green + 65536 x blue.
class NameLabel : public QLabel {
  Q_OBJECT

 public:
  NameLabel(QWidget* parent, double points, int textColor, int groundColor);

  /// Sets the text and takes the size that it needs.
  void SetCaption(const QString& caption);

  /// The colour of the text from now on.
  void SetTextColor(int color);

  /// Does what the pointer does by moving over the name.
  void Hover() { Q_EMIT MouseMove(); }

 Q_SIGNALS:
  /// The pointer moved over the name, or double-clicked it with the left button.
  void MouseMove();
  void DblClick();

 protected:
  void leaveEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};
