#pragma once

#include "platform/PosixFile.h"
#include "platform/Text.h"

#include <QImage>
#include <QRectF>

#include <optional>
#include <vector>

class QPainter;

/// The pictures that the map area has shown, ready to be painted at its size and in closer views.
/// The one shown keeps its pixels, no more than the screen needs; a closer view adds a sharper
/// level. The others keep only how they last looked, which is shown at once on return;
/// `FinishLoading` then reads the pixels. A file that changed is read anew.
class MapPicture {
 public:
  /// Makes the picture of the file the one to show at `size` device pixels on a screen of `screen`
  /// device pixels; false, and nothing changed, if it can't be read.
  [[nodiscard]] bool Load(TextView path, const QSize& size, const QSize& screen);

  /// Keeps the pixels of the picture shown from now on, whatever becomes of its file.
  void Keep();

  /// The picture at exactly this size in device pixels.
  [[nodiscard]] const QImage& At(const QSize& size);

  /// The picture's pixels as they were read for the screen.
  [[nodiscard]] const QImage& Pixels();

  /// Paints `part` of the picture, in fractions of its width and height, on `target`, which is
  /// `size` device pixels large, from what is there now.
  void Paint(QPainter& painter, const QRectF& target, const QSize& size, const QRectF& part);

  /// Whether that paints every pixel of the target.
  [[nodiscard]] bool IsOpaque() const;

  /// Paints the part with all the pixels that are there, for a device of unknown resolution.
  void PaintPixels(QPainter& painter, const QRectF& target, const QRectF& part);

  /// Prepares a better `Paint`: reads the level that the part needs at this size, or scales the
  /// whole. True if it looks better now.
  [[nodiscard]] bool Sharpen(const QSize& size, const QRectF& part);

  /// Does what can wait until a loaded picture is on the screen: reads its pixels, packs the
  /// others.
  void FinishLoading();

  /// Whether `FinishLoading` has been called since the last picture was loaded.
  [[nodiscard]] bool IsFinished() const { return finished_; }

  /// The memory that the pixels of the picture shown take; 0 before they are read.
  [[nodiscard]] qsizetype SizeInBytes() const;

 private:
  struct Picture {
    Text path;
    std::optional<PosixFile::Stamp> stamp;
    QImage pixels;
    QImage scaled;
    bool kept = false;

    void DropPixels() {
      if (!kept)
        pixels = {};
    }
  };

  [[nodiscard]] std::optional<size_t> Find(TextView path) const;

  [[nodiscard]] Picture& Shown() { return pictures_[*shown_]; }

  [[nodiscard]] const Picture& Shown() const { return pictures_[*shown_]; }

  [[nodiscard]] const QImage& Best(const QSizeF& whole);
  [[nodiscard]] bool ReadLevel(const QSize& cover);
  void PackAllBut(std::optional<size_t> picture);

  std::vector<Picture> pictures_;
  std::optional<size_t> shown_;
  // More pixels of the picture shown than `pixels` has, while a closer view needs them.
  QImage level_;
  // The file has no more pixels than are there.
  bool exhausted_ = false;
  QSize screen_;
  bool finished_ = true;
};
