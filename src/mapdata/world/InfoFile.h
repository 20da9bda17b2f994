#pragma once

#include "mapdata/files/IniOps.h"
#include "platform/Text.h"

#include <functional>

/// Information files: section "info", an entity's German name as the key, its description as the
/// value. The two characters "\n" in it stand for a line break. A description "#Other" names the
/// entry that is used instead.
namespace InfoFile {

/// The description under the key as it stands; "" if there is none.
[[nodiscard]] Text ReadEntry(IniOps::Snapshot& files, TextView file, TextView key);

/// The description under the key, or the one that it redirects to, one step only. `targetKey`
/// gives the key for the text behind "#".
[[nodiscard]] Text ReadRedirected(IniOps::Snapshot& files, TextView file, TextView key,
                                  const std::function<Text(TextView)>& targetKey);

/// The same where no key is translated, as the bytes that stand in the file, for callers with
/// thousands of questions.
[[nodiscard]] std::string_view ReadRedirectedBytes(const ProfileFile& file, std::string_view key);

/// The start of a description for a tooltip: its first 80 characters and "...", line breaks as
/// blanks; "" for a description of blanks alone.
[[nodiscard]] Text TooltipOf(TextView description);

}  // namespace InfoFile
