#include "auxwin/Launching.h"

#include "auxwin/Addresses.h"
#include "auxwin/Documents.h"
#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"

#include <filesystem>

namespace {

constexpr auto HelpFiles = "application/vnd.ms-htmlhelp";
constexpr auto Pages = "text/html";

// Without "." and ".." parts, whatever they would lead out of.
std::string Plain(TextView path) {
  return std::filesystem::path(NativePath::ToBytes(path)).lexically_normal().native();
}

bool IsBelow(TextView path, TextView folder) {
  return Plain(path).starts_with(Plain(folder));
}

std::string BytesToOpen(TextView path) {
  return FileSystem::FileExists(path) ? FileSystem::Resolve(path).value_or("") : std::string();
}

}  // namespace

bool Launching::IsAllowed(TextView path) const {
  return path.starts_with(FileSystem::Separator) &&
         (IsBelow(path, paths_.programFolder) || IsBelow(path, paths_.languageRoot));
}

Desktop::Result Launching::ShellExec(TextView URI) {
  const Addresses::Target target = Addresses::Judge(URI);
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
  if (!page.empty() && IsAllowed(path))
    return OpenHelp(path, page);
  const std::string bytes = BytesToOpen(path);
  if (bytes.empty())
    return Desktop::FileMissing;
  return IsAllowed(path) ? desktop_.Open(bytes) : Desktop::Refused;
}

Desktop::Result Launching::OpenHelp(TextView path, TextView page) {
  const std::string bytes = BytesToOpen(path);
  if (!bytes.empty() && desktop_.HasViewer(HelpFiles) && desktop_.Open(bytes) == Desktop::Started)
    return Desktop::Started;
  const Desktop::Result asPage = ShowPage(page);
  return asPage == Desktop::FileMissing && !bytes.empty() ? Desktop::Refused : asPage;
}

Desktop::Result Launching::ShowPage(TextView path) {
  const std::string bytes = BytesToOpen(path);
  if (bytes.empty())
    return Desktop::FileMissing;
  if (!IsAllowed(path))
    return Desktop::Refused;
  if (!desktop_.HasViewer(Pages) || desktop_.Open(bytes) != Desktop::Started)
    desktop_.ShowPage(bytes);
  return Desktop::Started;
}

Desktop::Result Launching::StartProgram(TextView path) {
  const std::string bytes = BytesToOpen(path);
  if (bytes.empty())
    return Desktop::FileMissing;
  if (!IsAllowed(path))
    return Desktop::Refused;
  return desktop_.StartProgram(bytes, NativePath::ToBytes(paths_.programFolder));
}
