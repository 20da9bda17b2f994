#include "mapdata/files/NameHash.h"

#include <random>

NameHash::Drawn NameHash::Draw() {
  std::random_device device;
  std::uniform_int_distribution<uint64_t> below(1U << 31U, Prime - 1);
  return {below(device), below(device)};
}
