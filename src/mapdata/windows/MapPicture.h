#pragma once

#include "platform/PosixFile.h"
#include "platform/Text.h"

#include <QImage>

#include <optional>
#include <vector>

/// The pictures that the map area has shown, ready to be painted at its size.
///
/// The one shown keeps its pixels, read no larger than the screen needs, so that no resize reads
/// it again. The others keep only how they last looked: going back to one of them shows that at
/// once, and `Settle` reads its pixels when there is time. A file that changed is read anew.
class MapPicture {
 public:
  /// Makes the picture of the file the one to show at `size` device pixels on a screen of `screen`
  /// device pixels; false, and nothing changed, if it can't be read.
  [[nodiscard]] bool Load(TextView path, const QSize& size, const QSize& screen);

  /// The picture at exactly this size in device pixels.
  [[nodiscard]] const QImage& At(const QSize& size);

  /// The picture's pixels as they were read, for printing.
  [[nodiscard]] const QImage& Pixels();

  /// Does what can wait until a loaded picture is on the screen: reads its pixels if they are
  /// not, and keeps the looks of the others in less memory.
  void Settle();

  /// Whether `Settle` has been called since the last picture was loaded.
  [[nodiscard]] bool IsSettled() const { return settled_; }

  /// Whether the pixels of the picture shown are still to be read.
  [[nodiscard]] bool NeedsPixels() const { return shown_ && shown_->pixels.isNull(); }

 private:
  struct Picture {
    Text path;
    std::optional<PosixFile::Stamp> stamp;
    QImage pixels;
    QImage scaled;
  };

  [[nodiscard]] Picture* Find(TextView path);
  void PackAllBut(const Picture* picture);

  std::vector<Picture> pictures_;
  Picture* shown_ = nullptr;
  QSize screen_;
  bool settled_ = true;
};
