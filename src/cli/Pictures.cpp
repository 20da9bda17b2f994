#include "cli/Pictures.h"

#include "platform/windows/PictureReader.h"

std::optional<PictureSize> Pictures::SizeOf(TextView path) {
  const auto size = PictureReader::SizeOf(path);
  return size ? std::optional(PictureSize{size->width(), size->height()}) : std::nullopt;
}
