#include "auxwin/WebCommands.h"

#include "auxwin/Documents.h"
#include "mapdata/IniOps.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <array>

namespace {

constexpr TextView HelpFile = u"orvalis.chm";
constexpr TextView ReadMe = u"readme.html";

struct WebCommand {
  TextView name;
  /// In section "urls" of the settings; empty for a command without a setting.
  TextView key;
  TextView address;
};

constexpr TextView Downloads = u"http://www.orvalis.example/download/";

constexpr std::array<WebCommand, 9> WebCommandTable = {{
    {u"miUpdateOrvalis", u"Download", Downloads},
    // The key has always been spelled this way in settings files.
    {u"miDownloadTranslatorSDK", u"tranlatorsdk", Downloads},
    {u"miUpdate", u"duskholdpatch", u"http://www.duskhold.example/patches/"},
    {u"miDuskholdHomeSite", u"", u"http://www.duskhold.example/"},
    {u"miPublisherForum", u"", u"http://forum.nachtwacht-verlag.example/duskhold/"},
    {u"miFanSiteA", u"", u"http://www.duskhold-archiv.example/"},
    {u"miFanSiteB", u"", u"http://www.am-lagerfeuer.example/"},
    {u"miFanSiteC", u"", u"http://www.kartenstube.example/"},
    {u"miFanSiteD", u"", u"http://www.wanderers-rast.example/"},
}};

Text Quoted(TextView path) {
  return Texts::Join(u"\"", path, u"\"");
}

}  // namespace

void WebCommands::miHelp_Click() {
  const Text localized = Documents::LocalizedCopy(language_, HelpFile);
  if (!localized.empty() && launching_.ShellExec(Quoted(localized)) > Desktop::LastFailure)
    return;
  launching_.ShellExec(Quoted(Texts::Join(paths_.programFolder, HelpFile)));
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
    const Text setting =
        row.key.empty() ? Text() : IniOps::IniRead(paths_.settings, u"urls", row.key, u"");
    const TextView address = Texts::Trim(setting);
    launching_.ShellExec(address.empty() ? row.address : address);
    return;
  }
}
