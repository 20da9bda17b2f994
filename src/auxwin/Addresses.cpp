#include "auxwin/Addresses.h"

#include "platform/NativePath.h"

#include <algorithm>

namespace {

using Addresses::Kind;
using Addresses::Target;
using Texts::IsDigit;
using Texts::IsLetter;

// What a URI may hold: besides letters and digits, these.
constexpr std::string_view UriCharacters = "-._~:/?#[]@!$&'()*+,;=%";
constexpr std::string_view MailCharacters = "-._~@+";

std::string Encoded(TextView text, std::string_view plain) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  std::string encoded;
  for (const char byte : NativePath::ToBytes(text)) {
    const auto unit = static_cast<unsigned char>(byte);
    if (IsLetter(unit) || IsDigit(unit) || plain.find(byte) != std::string_view::npos)
      encoded.push_back(byte);
    else
      encoded.append({'%', hex[unit / 16], hex[unit % 16]});
  }
  return encoded;
}

TextView Unquoted(TextView text) {
  const bool quoted = text.size() >= 2 && text.front() == u'"' && text.back() == u'"';
  return quoted ? text.substr(1, text.size() - 2) : text;
}

// The scheme in lower case, without its colon; "" if the text has none.
Text SchemeOf(TextView text) {
  const size_t colon = text.find(u':');
  if (colon == TextView::npos || colon == 0 || !IsLetter(text.front()))
    return {};
  const TextView scheme = text.substr(0, colon);
  const bool wellFormed = std::all_of(scheme.begin(), scheme.end(), [](char16_t unit) {
    return IsLetter(unit) || IsDigit(unit) || unit == u'+' || unit == u'-' || unit == u'.';
  });
  return wellFormed ? Texts::Lower(scheme) : Text();
}

Target Web(TextView address, TextView afterScheme) {
  if (!afterScheme.starts_with(u"//") || afterScheme.size() == 2)
    return {};
  return {Kind::Web, Encoded(address, UriCharacters), {}};
}

}  // namespace

namespace Addresses {

Target Classify(TextView uri) {
  const TextView text = Unquoted(Texts::Trim(uri));
  if (text.empty() || text.front() == u'-')
    return {};
  if (Texts::Lower(text.substr(0, 4)) == u"www.")
    return Classify(Texts::Join(u"http://", text));
  const Text scheme = SchemeOf(text);
  if (scheme.empty())
    return {Kind::Path, {}, Text(text)};
  const TextView rest = text.substr(scheme.size() + 1);
  if (scheme == u"http" || scheme == u"https")
    return Web(text, rest);
  if (scheme == u"mailto" && !rest.empty())
    return {Kind::Mail, "mailto:" + Encoded(rest, MailCharacters), {}};
  return {};
}

}  // namespace Addresses
