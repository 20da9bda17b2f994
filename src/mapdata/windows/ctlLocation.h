#pragma once

#include <QWidget>

/// A marker on the map: a filled circle of 160 x 160 twips with an outline and a tooltip that
/// names the entity. Colours are red + 256 x green + 65536 x blue, or the system's.
class ctlLocation : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QString Desc READ Desc WRITE SetDesc STORED false)
  Q_PROPERTY(int BorderColor READ BorderColor WRITE SetBorderColor RESET ResetBorderColor)
  Q_PROPERTY(int BackColor READ BackColor WRITE SetBackColor RESET ResetBackColor)

 public:
  static constexpr int DarkRed = 192;
  static constexpr int Gold = 55295;
  static constexpr int Green = 2263842;

  explicit ctlLocation(QWidget* parent = nullptr);

  /// The entity's name as it is shown, and as a screen reader speaks it.
  [[nodiscard]] QString Desc() const { return toolTip(); }

  void SetDesc(const QString& desc);

  [[nodiscard]] int BorderColor() const { return borderColor_; }

  void SetBorderColor(int color);

  void ResetBorderColor() { SetBorderColor(DarkRed); }

  /// Whether the outline is thicker and a screen reader says so; colours are set apart from that.
  [[nodiscard]] bool Highlighted() const { return highlighted_; }

  void SetHighlighted(bool highlighted);

  [[nodiscard]] int BackColor() const { return backColor_; }

  void SetBackColor(int color);

  void ResetBackColor() { SetBackColor(Gold); }

  /// Does what the pointer does by moving over its centre, no button or key held.
  void Hover();

  /// Does what a double click does.
  void Activate() { Q_EMIT DblClick(); }

 Q_SIGNALS:
  /// The pointer moved over the marker; x and y are twips from its top left corner. `button` is
  /// the sum of 1 (left), 2 (right) and 4 (middle), `shift` of 1 (Shift), 2 (Ctrl) and 4 (Alt).
  void MouseMove(int button, int shift, float x, float y);
  /// The marker was double-clicked with the left button or activated.
  void DblClick();

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int borderColor_ = DarkRed;
  int backColor_ = Gold;
  bool highlighted_ = false;
};
