#include "platform/ProgramInfo.h"

namespace ProgramInfo {

constinit const TextView Version = ORVALIS_VERSION;

}  // namespace ProgramInfo
