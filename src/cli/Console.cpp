#include "cli/Console.h"

#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace {

struct Likeness {
  char16_t unit;
  std::string_view ascii;
};

constexpr auto Likenesses = std::to_array<Likeness>({
    {u'Ä', "Ae"}, {u'Ö', "Oe"},  {u'Ü', "Ue"}, {u'ä', "ae"}, {u'ö', "oe"}, {u'ü', "ue"},
    {u'ß', "ss"}, {u'É', "E"},   {u'È', "E"},  {u'À', "A"},  {u'Ç', "C"},  {u'é', "e"},
    {u'è', "e"},  {u'ê', "e"},   {u'à', "a"},  {u'â', "a"},  {u'ç', "c"},  {u'î', "i"},
    {u'ï', "i"},  {u'ô', "o"},   {u'û', "u"},  {u'ù', "u"},  {u'œ', "oe"}, {u'’', "'"},
    {u'–', "-"},  {u'…', "..."}, {u'“', "\""}, {u'”', "\""}, {u'„', "\""},
});

bool IsControl(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || (unit >= 0x202A && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
}

std::string Escaped(char16_t unit) {
  std::array<char, 8> number{};
  std::snprintf(number.data(), number.size(), unit < 0x100 ? "\\x%02x" : "\\u%04x",
                static_cast<unsigned>(unit));
  return number.data();
}

std::string AsAscii(char16_t unit) {
  for (const Likeness& likeness : Likenesses)
    if (likeness.unit == unit)
      return std::string(likeness.ascii);
  return "?";
}

bool IsUtf8Locale() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"})
    if (const std::string_view value = Console::Environment(name); !value.empty())
      return value.find("UTF-8") != std::string_view::npos ||
             value.find("utf8") != std::string_view::npos;
  return false;
}

size_t TerminalWidth() {
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

}  // namespace

namespace Console {

std::string_view Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::vector<Text> FromArguments(const std::vector<std::string>& arguments) {
  std::vector<Text> texts;
  std::ranges::transform(arguments, std::back_inserter(texts), &NativePath::FromBytes);
  return texts;
}

Style OfOutput() {
  const bool terminal = ::isatty(STDOUT_FILENO) == 1;
  const bool colour = terminal && Environment("NO_COLOR").empty() && Environment("TERM") != "dumb";
  return {colour, !IsUtf8Locale(), terminal ? TerminalWidth() : 0};
}

std::string Printable(TextView text, const Style& style) {
  std::string bytes;
  for (size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    const bool pair = unit >= 0xD800 && unit < 0xDC00 && at + 1 < text.size();
    if (IsControl(unit))
      bytes += Escaped(unit);
    else if (unit >= 0x80 && style.ascii)
      bytes += AsAscii(unit);
    else if (unit >= 0xDC80 && unit <= 0xDCFF)
      bytes += Escaped(static_cast<char16_t>(unit - 0xDC00));
    else
      bytes += NativePath::ToBytes(text.substr(at, pair ? 2 : 1));
    at += pair ? 1 : 0;
  }
  return bytes;
}

bool Write(const std::string& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = ::write(STDOUT_FILENO, bytes.data() + done, bytes.size() - done);
    if (written < 0 && errno != EINTR)
      return false;
    done += written > 0 ? static_cast<size_t>(written) : 0;
  }
  return true;
}

bool Put(const std::string& output, const std::string& bytes) {
  const bool toOutput = output == "-";
  if (toOutput ? Write(bytes) : PosixFile::Replace(output, bytes))
    return true;
  Complain((toOutput ? "the output" : output) + " could not be written");
  return false;
}

void Complain(const std::string& message) {
  std::fputs(("orvalis-world: " + message + "\n").c_str(), stderr);
}

}  // namespace Console
