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
bool NeedsAreas(const QImage& pixels, const QSizeF& whole) {
  return whole.width() * 2 < pixels.width() || whole.height() * 2 < pixels.height() ||
         pixels.hasAlphaChannel();
}

QImage Scaled(const QImage& pixels, const QSize& size) {
  if (NeedsAreas(pixels, size))
    return pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QImage scaled(size, pixels.format());
  QPainter painter(&scaled);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(scaled.rect(), pixels);
  return scaled;
}

bool Covers(const QImage& pixels, const QSizeF& whole) {
  return pixels.width() >= whole.width() && pixels.height() >= whole.height();
}

QRectF PixelsOf(const QImage& image, const QRectF& part) {
  return {part.x() * image.width(), part.y() * image.height(), part.width() * image.width(),
          part.height() * image.height()};
}

void PaintPart(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& part) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(target, image, PixelsOf(image, part));
}

bool IsWhole(const QRectF& part) {
  return part == QRectF(0, 0, 1, 1);
}

// The size of the whole picture if the part has this one.
QSizeF WholeSize(const QSize& size, const QRectF& part) {
  return {size.width() / part.width(), size.height() / part.height()};
}

}  // namespace

std::optional<size_t> MapPicture::Find(TextView path) const {
  const auto found = std::find_if(pictures_.begin(), pictures_.end(),
                                  [path](const Picture& picture) { return picture.path == path; });
  return found == pictures_.end() ? std::nullopt
                                  : std::optional(static_cast<size_t>(found - pictures_.begin()));
}

bool MapPicture::Load(TextView path, const QSize& size, const QSize& screen) {
  const auto stamp = StampOf(path);
  auto known = Find(path);
  const bool same = known && (pictures_[*known].kept || pictures_[*known].stamp == stamp);
  const bool ready =
      same && (!pictures_[*known].pixels.isNull() || pictures_[*known].scaled.size() == size);
  if (!ready) {
    PackAllBut(known);
    // Its pixels make room before others are read.
    if (shown_ && shown_ != known)
      Shown().DropPixels();
    QImage pixels = PictureReader::Read(path, screen);
    if (pixels.isNull()) {
      static_cast<void>(Pixels());
      return false;
    }
    if (!known) {
      known = pictures_.size();
      pictures_.emplace_back();
    }
    pictures_[*known] = {Text(path), stamp, std::move(pixels), {}};
  }
  screen_ = screen;
  finished_ = finished_ && ready && shown_ == known;
  if (!ready || shown_ != known) {
    level_ = {};
    exhausted_ = false;
  }
  // What was shown keeps how it looked.
  if (shown_ && shown_ != known)
    Shown().DropPixels();
  shown_ = known;
  return true;
}

void MapPicture::Keep() {
  if (!Pixels().isNull())
    Shown().kept = true;
}

void MapPicture::FinishLoading() {
  finished_ = true;
  PackAllBut(shown_);
  static_cast<void>(Pixels());
}

// At three bytes a pixel, where no alpha is lost.
void MapPicture::PackAllBut(std::optional<size_t> picture) {
  // A conversion in place would keep the larger block.
  for (size_t other = 0; other < pictures_.size(); ++other)
    if (other != picture && pictures_[other].scaled.format() == QImage::Format_RGB32)
      pictures_[other].scaled =
          std::as_const(pictures_[other].scaled).convertToFormat(QImage::Format_RGB888);
}

const QImage& MapPicture::Pixels() {
  static const QImage none;
  if (!shown_)
    return none;
  if (Shown().pixels.isNull())
    Shown().pixels = PictureReader::Read(Shown().path, screen_);
  // How it last looked, where its file is no more what it was.
  if (Shown().pixels.isNull())
    Shown().pixels = Shown().scaled;
  return Shown().pixels;
}

const QImage& MapPicture::At(const QSize& size) {
  if (!shown_)
    return Pixels();
  Picture& picture = Shown();
  if (picture.scaled.size() != size && !Pixels().isNull())
    picture.scaled = picture.pixels.size() == size ? picture.pixels : Scaled(picture.pixels, size);
  return picture.scaled;
}

const QImage& MapPicture::Best(const QSizeF& whole) {
  const bool suits = !level_.isNull() && !Covers(Pixels(), whole) && !NeedsAreas(level_, whole);
  return suits ? level_ : Pixels();
}

void MapPicture::Paint(QPainter& painter, const QRectF& target, const QSize& size,
                       const QRectF& part) {
  if (!shown_)
    return;
  const QImage& scaled = Shown().scaled;
  const QImage& pixels = IsWhole(part) && scaled.size() == size ? scaled : Pixels();
  // Scaled once for a new picture, not for each step of a resize.
  if (IsWhole(part) && (scaled.isNull() || pixels.hasAlphaChannel()))
    return PaintPart(painter, target, At(size), part);
  if (&pixels == &scaled)
    return PaintPart(painter, target, scaled, part);
  const QImage& best = Best(WholeSize(size, part));
  if (!NeedsAreas(best, WholeSize(size, part)))
    return PaintPart(painter, target, best, part);
  const QImage cut = best.copy(PixelsOf(best, part).toAlignedRect());
  painter.drawImage(target, cut.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

bool MapPicture::IsOpaque() const {
  if (!shown_)
    return false;
  const QImage& seen = Shown().pixels.isNull() ? Shown().scaled : Shown().pixels;
  return !seen.isNull() && !seen.hasAlphaChannel();
}

void MapPicture::PaintPixels(QPainter& painter, const QRectF& target, const QRectF& part) {
  if (shown_)
    PaintPart(painter, target, level_.isNull() ? Pixels() : level_, part);
}

bool MapPicture::Sharpen(const QSize& size, const QRectF& part) {
  if (!shown_)
    return false;
  if (IsWhole(part)) {
    level_ = {};
    exhausted_ = false;
    const bool stale = Shown().scaled.size() != size;
    static_cast<void>(At(size));
    return stale;
  }
  const QSizeF whole = WholeSize(size, part);
  const bool tooSmall = !Covers(level_, whole) && !exhausted_;
  const bool tooLarge = !level_.isNull() && NeedsAreas(level_, whole);
  if (Covers(Pixels(), whole) || !(tooSmall || tooLarge))
    return false;
  return ReadLevel({static_cast<int>(whole.width()), static_cast<int>(whole.height())});
}

// Of a file that changed no pixels are mixed with those shown.
bool MapPicture::ReadLevel(const QSize& cover) {
  const QSize before = level_.isNull() ? Pixels().size() : level_.size();
  QImage read;
  if (StampOf(Shown().path) == Shown().stamp) {
    // Makes room first.
    level_ = {};
    read = PictureReader::Read(Shown().path, cover);
  }
  exhausted_ = read.width() < cover.width() || read.height() < cover.height();
  if (read.size() != Pixels().size() && !read.isNull())
    level_ = std::move(read);
  return (level_.isNull() ? Pixels().size() : level_.size()) != before;
}

qsizetype MapPicture::SizeInBytes() const {
  return shown_ ? Shown().pixels.sizeInBytes() + level_.sizeInBytes() : 0;
}
