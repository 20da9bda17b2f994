#include "cli/formats/PagePictures.h"

#include "platform/windows/PictureReader.h"

namespace {

QByteArray MimeType(const QByteArray& format) {
  return format == "ico" ? QByteArrayLiteral("image/x-icon") : "image/" + format;
}

}  // namespace

std::optional<int> PagePictures::NumberOf(const Text& path) {
  const auto [known, isNew] = numbers_.try_emplace(path);
  if (!isNew)
    return known->second;
  const auto picture = PictureReader::ReadEncoded(path);
  if (!picture)
    return std::nullopt;
  elements_ << R"(<script type="text/plain" id="picture-)" + QByteArray::number(count_) +
                   R"(">data:)" + MimeType(picture->format) + ";base64,"
            << picture->bytes.toBase64() << QByteArrayLiteral("</script>\n");
  known->second = count_++;
  return known->second;
}
