#pragma once

#include "mapdata/files/ProfileFile.h"
#include "platform/Text.h"

/// The picture list `pic.ini` in the pictures folder: section "pics", an entity's German name as
/// the key, the name of a picture in that folder as the value.
namespace Portraits {

inline constexpr TextView Section = u"pics";

/// The path of the list; the folder's ends with a separator.
[[nodiscard]] Text ListPath(TextView picturesFolder);

/// The path of the entity's picture; the folder itself if it has none.
[[nodiscard]] Text PicturePath(const ProfileFile& list, TextView picturesFolder, TextView key);

}  // namespace Portraits
