#include "mapdata/world/Settings.h"

namespace Settings {

Text Read(IniOps::Snapshot& files, TextView settingsFile, const Entry& entry) {
  return files.IniRead(settingsFile, entry.section, entry.key, entry.defaultValue);
}

bool IsYes(IniOps::Snapshot& files, TextView settingsFile, const Entry& entry) {
  return Texts::Trim(Texts::Lower(Read(files, settingsFile, entry))) == u"yes";
}

}  // namespace Settings
