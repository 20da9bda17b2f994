#include "controls/AccessKey.h"

#include <cstddef>

namespace AccessKey {

Text Without(TextView caption) {
  Text shown;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size())
      break;
    shown += caption[i];
  }
  return shown;
}

}  // namespace AccessKey
