#include "auxwin/PrintName.h"

#include "platform/ProgramInfo.h"

#include <cstddef>

namespace PrintName {

namespace {

// Characters; each may take four bytes of the 255 that a name has.
constexpr size_t Longest = 60;

}  // namespace

Text Of(TextView heading) {
  constexpr TextView refused = u"/\\:*?\"<>|";
  Text name = Texts::ReplaceAll(Texts::Trim(heading), u": ", u" - ").substr(0, Longest);
  for (char16_t& unit : name)
    if (unit < u' ' || unit == 0x7F || refused.find(unit) != TextView::npos)
      unit = u'_';
  // A leading point would hide the file.
  if (name.starts_with(u'.'))
    name.front() = u'_';
  return Texts::Join(name.empty() ? ProgramInfo::Title : Texts::Trim(name), u".pdf");
}

}  // namespace PrintName
