#pragma once

#include "mapdata/windows/MapPicture.h"
#include "platform/Text.h"

#include <QWidget>

/// The map area: a picture stretched to the whole widget.
class MapArea : public QWidget {
  Q_OBJECT

 public:
  explicit MapArea(QWidget* parent);

  /// Shows the picture in the file; false, and nothing changed, if it can't be read.
  [[nodiscard]] bool LoadPicture(TextView path);

  /// Shows the overview that is built into the program.
  void ShowStartPicture();

  /// The picture's pixels, at least as many as the screen needs.
  [[nodiscard]] const QImage& Pixels() { return picture_.Pixels(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QSize DevicePixels() const;

  MapPicture picture_;
};
