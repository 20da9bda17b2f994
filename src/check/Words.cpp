#include "check/Words.h"

#include "platform/Windows1252.h"

#include <algorithm>

using Texts::Join;

namespace Words {

Text Decoded(std::string_view bytes) {
  return Windows1252::Decode(bytes);
}

std::string Encoded(TextView text) {
  return Windows1252::Encode(text).value_or(std::string());
}

std::string Folded(std::string_view bytes) {
  std::string folded(bytes);
  std::ranges::transform(folded, folded.begin(), [](char byte) {
    return static_cast<char>(Windows1252::Fold(static_cast<unsigned char>(byte)));
  });
  return folded;
}

Text Number(size_t number) {
  return Decoded(std::to_string(number));
}

Text At(const EntityFile::Position& position) {
  return Decoded(std::to_string(position.x) + ',' + std::to_string(position.y));
}

Text Quoted(TextView words) {
  return Join(u"\"", words, u"\"");
}

Text Count(size_t number, TextView singular, TextView plural) {
  return Join(Number(number), u" ", number == 1 ? singular : plural);
}

}  // namespace Words
