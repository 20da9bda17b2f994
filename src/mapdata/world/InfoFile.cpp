#include "mapdata/world/InfoFile.h"

#include "mapdata/files/ProfileLines.h"
#include "platform/Windows1252.h"

namespace {

constexpr TextView LineBreak = u"\\n";
constexpr size_t TooltipLength = 80;

}  // namespace

namespace InfoFile {

Text ReadEntry(const ProfileFile& file, TextView key) {
  const auto bytes = Windows1252::Encode(key);
  return bytes ? Windows1252::Decode(ReadEntry(file, *bytes)) : Text();
}

std::optional<std::string_view> RedirectTarget(std::string_view description) {
  if (!description.starts_with('#'))
    return std::nullopt;
  return ProfileLines::Strip(description.substr(1), " ");
}

std::string_view ReadRedirected(const ProfileFile& file, std::string_view key) {
  const std::string_view description = ReadEntry(file, key);
  const auto target = RedirectTarget(description);
  return target ? ReadEntry(file, *target) : description;
}

Text ReadRedirected(const ProfileFile& file, TextView key,
                    const std::function<Text(TextView)>& targetKey) {
  const auto bytes = Windows1252::Encode(key);
  const std::string_view description = bytes ? ReadEntry(file, *bytes) : std::string_view();
  const auto target = RedirectTarget(description);
  return target ? ReadEntry(file, targetKey(Windows1252::Decode(*target)))
                : Windows1252::Decode(description);
}

Text WithLineBreaks(TextView description) {
  return Texts::ReplaceAll(description, LineBreak, u"\n");
}

Text TooltipOf(TextView description) {
  const Text line = Texts::ReplaceAll(description, LineBreak, u" ");
  if (Texts::Trim(line).empty())
    return {};
  return line.substr(0, TooltipLength) + u"...";
}

}  // namespace InfoFile
