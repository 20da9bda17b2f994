// Any bytes as a picture file. The first byte chooses the size that the picture is to cover.

#include "Fuzz.h"
#include "platform/windows/PictureReader.h"

#include <algorithm>

namespace {

constexpr qint64 MaximumPixels = 40'000'000;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  static const Fuzz::InputFile file;
  if (size == 0)
    return 0;
  const int cover = data[0];
  file.Hold({reinterpret_cast<const char*>(data) + 1, size - 1});
  const QImage picture = PictureReader::Read(file.Path(), {cover, cover});
  Fuzz::Require(qint64{picture.width()} * picture.height() <= MaximumPixels,
                "no picture is larger than promised");
  Fuzz::Require(picture.isNull() || picture.depth() == 32, "every picture is ready to be painted");
  return 0;
}
