#include "mapdata/world/Settings.h"

#include "mapdata/files/IniOps.h"

namespace Settings {

Text Read(const ProfileFile& settings, const Entry& entry) {
  return IniOps::IniRead(settings, entry.section, entry.key, entry.defaultValue);
}

bool IsYes(const ProfileFile& settings, const Entry& entry) {
  return Texts::Trim(Texts::Lower(Read(settings, entry))) == u"yes";
}

}  // namespace Settings
