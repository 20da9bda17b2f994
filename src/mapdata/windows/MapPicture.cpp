#include "mapdata/windows/MapPicture.h"

#include "mapdata/files/FileSystem.h"
#include "platform/windows/PictureReader.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

std::optional<PosixFile::Stamp> StampOf(TextView path) {
  const auto file = FileSystem::Resolve(path);
  return file ? PosixFile::RegularFile(*file) : std::nullopt;
}

// The painter's filter is quicker, but leaves pixels out where it makes less than half of them.
QImage Scaled(const QImage& pixels, const QSize& size) {
  const bool half = size.width() * 2 < pixels.width() || size.height() * 2 < pixels.height();
  if (half || pixels.hasAlphaChannel())
    return pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage scaled(size, pixels.format());
  QPainter painter(&scaled);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(scaled.rect(), pixels);
  return scaled;
}

}  // namespace

MapPicture::Picture* MapPicture::Find(TextView path) {
  const auto found = std::find_if(pictures_.begin(), pictures_.end(),
                                  [path](const Picture& picture) { return picture.path == path; });
  return found == pictures_.end() ? nullptr : &*found;
}

bool MapPicture::Load(TextView path, const QSize& size, const QSize& screen) {
  screen_ = screen;
  const auto stamp = StampOf(path);
  Picture* known = Find(path);
  const bool same = known && known->stamp == stamp;
  const bool ready = same && (!known->pixels.isNull() || known->scaled.size() == size);
  // What was shown keeps how it looked: its pixels make room before others are read.
  if (shown_ && shown_ != known)
    shown_->pixels = {};
  if (!ready) {
    PackAllBut(known);
    QImage pixels = PictureReader::Read(path, screen);
    if (pixels.isNull())
      return false;
    const Text shownPath = shown_ ? shown_->path : Text();
    if (!known)
      known = &pictures_.emplace_back(Picture{Text(path), stamp, {}, {}});
    *known = {Text(path), stamp, std::move(pixels), {}};
    shown_ = Find(shownPath);
  }
  shown_ = known;
  settled_ = false;
  return true;
}

void MapPicture::Settle() {
  settled_ = true;
  PackAllBut(shown_);
  static_cast<void>(Pixels());
}

// Keeps three bytes of each pixel, where it needs no fourth.
void MapPicture::PackAllBut(const Picture* picture) {
  // A conversion in place would keep the larger block.
  for (Picture& other : pictures_)
    if (&other != picture && other.scaled.format() == QImage::Format_RGB32)
      other.scaled = std::as_const(other.scaled).convertToFormat(QImage::Format_RGB888);
}

const QImage& MapPicture::Pixels() {
  static const QImage none;
  if (!shown_)
    return none;
  if (shown_->pixels.isNull())
    shown_->pixels = PictureReader::Read(shown_->path, screen_);
  return shown_->pixels;
}

const QImage& MapPicture::At(const QSize& size) {
  if (!shown_)
    return Pixels();
  if (shown_->scaled.size() != size && !Pixels().isNull())
    shown_->scaled = shown_->pixels.size() == size ? shown_->pixels : Scaled(shown_->pixels, size);
  return shown_->scaled;
}
