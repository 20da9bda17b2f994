#include "platform/windows/PictureReader.h"

#include "mapdata/files/FileSystem.h"
#include "platform/PosixFile.h"
#include "platform/windows/QtText.h"

#include <QBuffer>
#include <QFile>
#include <QIODevice>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace {

constexpr size_t MaxFileSize = size_t{64} * 1024 * 1024;
constexpr int MaxSide = 16384;
constexpr qint64 MaxPixels = 40'000'000;
// What the pixels take at 32 bits each. A GIF tells the size of its first frame and takes memory
// for its screen.
constexpr int MaxMebibytes = 153;
constexpr int SmallestPart = 8;

QByteArray Bytes(TextView path) {
  if (path.starts_with(u":/")) {
    QFile file(QtText::ToQt(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  const auto resolved = FileSystem::Resolve(path);
  const auto contents = resolved ? PosixFile::Read(*resolved, MaxFileSize) : std::nullopt;
  return contents ? QByteArray::fromStdString(contents->bytes) : QByteArray();
}

bool IsKnownFormat(const QByteArray& format) {
  constexpr std::array<const char*, 5> known = {"jpeg", "bmp", "gif", "ico", "png"};
  return std::any_of(known.begin(), known.end(),
                     [&format](const char* name) { return format == name; });
}

// A few bytes can claim any size, and some formats take the memory before they look further.
bool IsAllowedSize(const QSize& size) {
  return size.isValid() && std::max(size.width(), size.height()) <= MaxSide &&
         qint64{size.width()} * size.height() <= MaxPixels;
}

QSize PartCovering(const QSize& whole, const QSize& cover) {
  QSize part = whole;
  for (int divisor = 2; divisor <= SmallestPart; divisor *= 2) {
    const QSize next((whole.width() + divisor - 1) / divisor,
                     (whole.height() + divisor - 1) / divisor);
    if (next.width() < cover.width() || next.height() < cover.height())
      break;
    part = next;
  }
  return part;
}

}  // namespace

namespace PictureReader {

QImage Read(TextView path, QSize cover) {
  QByteArray bytes = Bytes(path);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  if (!IsKnownFormat(reader.format()) || !IsAllowedSize(reader.size()))
    return {};
  QImageReader::setAllocationLimit(MaxMebibytes);
  if (cover.isValid() && reader.format() == "jpeg")
    reader.setScaledSize(PartCovering(reader.size(), cover));
  QImage picture;
  if (!reader.read(&picture) || !IsAllowedSize(picture.size()))
    return {};
  return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                           : QImage::Format_RGB32);
}

std::optional<Encoded> ReadEncoded(TextView path) {
  Encoded picture{Bytes(path), {}, {}};
  QBuffer buffer(&picture.bytes);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  picture.format = reader.format();
  picture.size = reader.size();
  if (!IsKnownFormat(picture.format) || !IsAllowedSize(picture.size))
    return std::nullopt;
  return picture;
}

}  // namespace PictureReader
