#include "mapdata/world/InfoFile.h"

namespace {

constexpr TextView Section = u"info";
constexpr std::string_view SectionBytes = "info";
constexpr TextView LineBreak = u"\\n";
constexpr size_t TooltipLength = 80;

}  // namespace

namespace InfoFile {

Text ReadEntry(IniOps::Snapshot& files, TextView file, TextView key) {
  return files.IniRead(file, Section, key, u"");
}

Text ReadRedirected(IniOps::Snapshot& files, TextView file, TextView key,
                    const std::function<Text(TextView)>& targetKey) {
  Text description = ReadEntry(files, file, key);
  if (!description.starts_with(u'#'))
    return description;
  return ReadEntry(files, file, targetKey(Texts::Trim(TextView(description).substr(1))));
}

std::string_view ReadRedirectedBytes(const ProfileFile& file, std::string_view key) {
  const std::string_view description = file.Read(SectionBytes, key);
  return description.starts_with('#') ? file.Read(SectionBytes, description.substr(1))
                                      : description;
}

Text TooltipOf(TextView description) {
  const Text line = Texts::ReplaceAll(description, LineBreak, u" ");
  if (Texts::Trim(line).empty())
    return {};
  return line.substr(0, TooltipLength) + u"...";
}

}  // namespace InfoFile
