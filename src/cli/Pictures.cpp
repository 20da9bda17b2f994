#include "cli/Pictures.h"

#include "platform/windows/PictureReader.h"

std::optional<PictureSize> Pictures::SizeOf(TextView path) {
  const auto picture = PictureReader::ReadEncoded(path);
  if (!picture)
    return std::nullopt;
  return PictureSize{picture->size.width(), picture->size.height()};
}
