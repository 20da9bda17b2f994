#pragma once

#include "check/Index.h"

/// What the viewer makes of picture files, by their headers.
namespace Pictures {

/// The size that the viewer would show; none if it shows no picture.
[[nodiscard]] std::optional<PictureSize> SizeOf(TextView path);

}  // namespace Pictures
