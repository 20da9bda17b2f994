#pragma once

#include "platform/Text.h"

#include <optional>
#include <string>
#include <vector>

/// Files as the rules name them. A path is the program folder with names joined to it; the names
/// come from files that were written on systems which ignore letter case and separate with "\".
namespace FileSystem {

/// Between the parts of a composed path.
inline constexpr TextView Separator = u"/";

/// The path in the system's bytes, to open it with and then forget: the exact name first, then
/// part by part without regard to letter case, the first in byte order where several match. None
/// if nothing stands there.
[[nodiscard]] std::optional<std::string> Resolve(TextView path);

/// The path in the system's bytes to create a file under: what exists as `Resolve` finds it, the
/// rest as it stands.
[[nodiscard]] std::string ResolveForWriting(TextView path);

/// Whether the file at the path exists and holds at least one byte. A folder is none.
[[nodiscard]] bool FileExists(TextView path);

/// The file name without its folder and without the part after its last "."; "" without any ".".
[[nodiscard]] Text GetBaseName(TextView path);

/// The names in the folder that are not hidden, files and folders alike, in byte order; none if
/// there is no such folder.
[[nodiscard]] std::vector<Text> Names(TextView folder);

}  // namespace FileSystem
