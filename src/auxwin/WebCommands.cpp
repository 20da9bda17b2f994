#include "auxwin/WebCommands.h"

#include "auxwin/Documents.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/Settings.h"
#include "platform/Desktop.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <array>

namespace {

constexpr TextView HelpFile = u"orvalis.chm";
constexpr TextView ReadMe = u"readme.html";

struct WebCommand {
  TextView name;
  TextView address;
  /// Overrides the address, if the command has one.
  const Settings::Entry* setting = nullptr;
};

constexpr TextView Downloads = u"http://www.orvalis.example/download/";

constexpr std::array<WebCommand, 9> WebCommandTable = {{
    {u"miUpdateOrvalis", Downloads, &Settings::Download},
    {u"miDownloadTranslatorSDK", Downloads, &Settings::TranslatorKit},
    {u"miUpdate", u"http://www.duskhold.example/patches/", &Settings::GamePatch},
    {u"miDuskholdHomeSite", u"http://www.duskhold.example/"},
    {u"miPublisherForum", u"http://forum.nachtwacht-verlag.example/duskhold/"},
    {u"miFanSiteA", u"http://www.duskhold-archiv.example/"},
    {u"miFanSiteB", u"http://www.am-lagerfeuer.example/"},
    {u"miFanSiteC", u"http://www.kartenstube.example/"},
    {u"miFanSiteD", u"http://www.wanderers-rast.example/"},
}};

}  // namespace

void WebCommands::miHelp_Click() {
  const Text localized = Documents::LocalizedCopy(language_, HelpFile);
  if (!localized.empty() &&
      launching_.ShellExec(Documents::Quoted(localized)) > Desktop::LastFailure)
    return;
  launching_.ShellExec(Documents::Quoted(Texts::Join(paths_.programFolder, HelpFile)));
}

void WebCommands::miReadMe_Click() {
  PosixFile::ChangeFolder(NativePath::ToBytes(paths_.programFolder));
  launching_.ShowPage(
      Documents::Choose(language_, ReadMe, Texts::Join(paths_.programFolder, ReadMe)));
}

void WebCommands::OpenWebSite(TextView command) {
  for (const WebCommand& row : WebCommandTable) {
    if (row.name != command)
      continue;
    IniOps::Cache afresh;
    IniOps::Snapshot files(afresh);
    const Text setting =
        row.setting ? Settings::Read(files.File(paths_.settings), *row.setting) : Text();
    const TextView address = Texts::Trim(setting);
    launching_.ShellExec(address.empty() ? row.address : address);
    return;
  }
}
