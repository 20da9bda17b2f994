#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>

/// The one way in which picture files are read, whatever stands under their names.
namespace PictureReader {

/// The picture in the file; a null image if there is no such regular file, it is no JPEG, BMP,
/// GIF, ICO or PNG picture, or claims to be larger than 40 million pixels. With a `cover` size
/// (pixels), a JPEG is read at the smallest of 1/1, 1/2, 1/4 and 1/8 of its size that still covers
/// it. A path that begins with ":/" is a picture built into the program.
[[nodiscard]] QImage Read(TextView path, QSize cover = {});

/// A picture as its file has it.
struct Encoded {
  QByteArray bytes;
  /// "jpeg", "bmp", "gif", "ico" or "png".
  QByteArray format;
  QSize size;
};

/// The file of the picture that `Read` would give, by its header alone; none if it gives none for
/// what the header says.
[[nodiscard]] std::optional<Encoded> ReadEncoded(TextView path);

}  // namespace PictureReader
