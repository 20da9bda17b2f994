#pragma once

#include "mapdata/files/ProfileFile.h"
#include "platform/Text.h"

#include <functional>
#include <optional>
#include <string_view>

/// Information files: section "info", an entity's German name as the key, its description as the
/// value, all in Windows-1252. The two characters "\n" in it stand for a line break. A description
/// "#Other" names the entry that is used instead.
namespace InfoFile {

inline constexpr std::string_view Section = "info";

/// The description under the key as it stands, a view into the file; "" if there is none.
[[nodiscard]] inline std::string_view ReadEntry(const ProfileFile& file, std::string_view key) {
  return file.Read(Section, key);
}

/// The same as text.
[[nodiscard]] Text ReadEntry(const ProfileFile& file, TextView key);

/// The entry that the description names instead of itself; none if it is a description.
[[nodiscard]] std::optional<std::string_view> RedirectTarget(std::string_view description);

/// The description under the key, or the one that it redirects to, one step only.
[[nodiscard]] std::string_view ReadRedirected(const ProfileFile& file, std::string_view key);

/// The same as text. `targetKey` gives the key for the text behind "#".
[[nodiscard]] Text ReadRedirected(const ProfileFile& file, TextView key,
                                  const std::function<Text(TextView)>& targetKey);

/// The description with line breaks in the place of "\\n".
[[nodiscard]] Text WithLineBreaks(TextView description);

/// The start of a description for a tooltip: its first 80 characters and "...", line breaks as
/// blanks; "" for a description of blanks alone.
[[nodiscard]] Text TooltipOf(TextView description);

}  // namespace InfoFile
