#pragma once

#include "mapdata/windows/MapPicture.h"
#include "platform/Text.h"

#include <QBasicTimer>
#include <QWidget>

/// The map area: a picture, or in a closer view a part of it, stretched to the whole widget.
class MapArea : public QWidget {
  Q_OBJECT

 public:
  explicit MapArea(QWidget* parent);

  /// Shows the start picture: this one if it can be read, else the one built into the program. Its
  /// file is read here and never again.
  void SetStartPicture(const Text& path);

  /// Shows all of the picture in the file; false, and nothing changed, if it can't be read.
  [[nodiscard]] bool LoadPicture(TextView path);

  /// Shows the start picture.
  void ShowStartPicture();

  /// Whether that is what it shows.
  [[nodiscard]] bool ShowsStartPicture() const { return showsStart_; }

  /// The part of the picture to show, in fractions of its width and height. What is there is
  /// enlarged; a sharper picture follows once no other part was asked for in a moment.
  void ShowPart(const QRectF& part);

  /// Paints the part that is shown with the pixels there are.
  void PaintPixels(QPainter& painter);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  [[nodiscard]] QSize DevicePixels() const;

  MapPicture picture_;
  Text startPicture_;
  QRectF part_ = {0, 0, 1, 1};
  QBasicTimer untilSharp_;
  bool showsStart_ = true;
};
