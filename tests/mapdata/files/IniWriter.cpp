// ini_writer FILE VALUE: writes one setting, to be traced and killed while it does.

#include "mapdata/files/IniOps.h"
#include "platform/NativePath.h"

int main(int argc, char** argv) {
  if (argc != 3)
    return 1;
  IniOps::IniWrite(NativePath::FromBytes(argv[1]), u"general", u"language",
                   NativePath::FromBytes(argv[2]));
  return 0;
}
