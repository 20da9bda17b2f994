#include "mapdata/world/Portraits.h"

#include "mapdata/files/IniOps.h"

namespace Portraits {

Text ListPath(TextView picturesFolder) {
  return Texts::Join(picturesFolder, u"pic.ini");
}

Text PicturePath(const ProfileFile& list, TextView picturesFolder, TextView key) {
  return Texts::Join(picturesFolder, IniOps::IniRead(list, Section, key, u""));
}

}  // namespace Portraits
