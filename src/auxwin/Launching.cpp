#include "auxwin/Launching.h"

#include "auxwin/Addresses.h"
#include "auxwin/Documents.h"
#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"

#include <optional>
#include <string_view>

namespace {

constexpr auto HelpFiles = "application/vnd.ms-htmlhelp";
constexpr auto Pages = "text/html";

bool LeadsUp(std::string_view path) {
  for (size_t at = path.find(".."); at != std::string_view::npos; at = path.find("..", at + 1))
    if (path[at - 1] == '/' && (at + 2 == path.size() || path[at + 2] == '/'))
      return true;
  return false;
}

// By the file itself, not the path. A package's program folder consists of links that lead out of
// it.
bool IsBelow(std::string_view file, TextView folder) {
  const auto resolved = FileSystem::Resolve(folder);
  if (!resolved)
    return false;
  std::string_view root = *resolved;
  while (root.ends_with('/'))
    root.remove_suffix(1);
  return file.starts_with(root) && file.substr(root.size()).starts_with('/') &&
         !LeadsUp(file.substr(root.size()));
}

}  // namespace

Launching::Checked Launching::Check(TextView path) const {
  const auto file = FileSystem::FileExists(path) ? FileSystem::Resolve(path) : std::nullopt;
  if (!file)
    return {Desktop::FileMissing, {}};
  const bool allowed = IsBelow(*file, paths_.programFolder) || IsBelow(*file, paths_.languageRoot);
  return {allowed ? Desktop::Started : Desktop::Refused, *file};
}

Desktop::Result Launching::ShellExec(TextView URI) {
  const Addresses::Target target = Addresses::Classify(URI);
  switch (target.kind) {
    case Addresses::Kind::Web:
    case Addresses::Kind::Mail:
      return desktop_.Open(target.address);
    case Addresses::Kind::Path:
      return OpenDocument(target.path);
    case Addresses::Kind::Refused:
      break;
  }
  return Desktop::Refused;
}

Desktop::Result Launching::OpenDocument(TextView path) {
  const Text page = Documents::PageBeside(path);
  if (!page.empty())
    return OpenHelp(path, page);
  const auto [result, file] = Check(path);
  return result == Desktop::Started ? desktop_.Open(file) : result;
}

Desktop::Result Launching::OpenHelp(TextView path, TextView page) {
  const auto [result, file] = Check(path);
  if (result == Desktop::Started && desktop_.HasViewer(HelpFiles) &&
      desktop_.Open(file) == Desktop::Started)
    return Desktop::Started;
  const Desktop::Result asPage = ShowPage(page);
  return asPage == Desktop::FileMissing && !file.empty() ? Desktop::Refused : asPage;
}

Desktop::Result Launching::ShowPage(TextView path) {
  const auto [result, file] = Check(path);
  if (result != Desktop::Started)
    return result;
  if (!desktop_.HasViewer(Pages) || desktop_.Open(file) != Desktop::Started)
    desktop_.ShowPage(file);
  return Desktop::Started;
}

Desktop::Result Launching::StartProgram(TextView path) {
  const auto [result, file] = Check(path);
  return result == Desktop::Started
             ? desktop_.StartProgram(file, NativePath::ToBytes(paths_.programFolder))
             : result;
}
