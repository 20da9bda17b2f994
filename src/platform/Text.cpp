#include "platform/Text.h"

#include "platform/Windows1252.h"

namespace Texts {

TextView Trim(TextView text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == TextView::npos)
    return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text Lower(TextView text) {
  Text lower(text);
  for (char16_t& unit : lower)
    unit = Windows1252::Lower(unit);
  return lower;
}

Text ReplaceAll(TextView text, TextView part, TextView by) {
  if (part.empty())
    return Text(text);
  Text replaced;
  replaced.reserve(text.size() + by.size());
  size_t from = 0;
  for (size_t at = text.find(part); at != TextView::npos; at = text.find(part, from)) {
    replaced.append(text, from, at - from).append(by);
    from = at + part.size();
  }
  return replaced.append(text, from);
}

}  // namespace Texts
