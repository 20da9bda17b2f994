#include "platform/PageLimits.h"

#include <algorithm>
#include <array>

namespace {

constexpr size_t Tags = 10'000;
constexpr size_t WordLength = 500;
constexpr size_t NumberLength = 4;
constexpr int Depth = 120;
// Nested tables double the time of all that is in them: at most three.
constexpr int DepthOfTable = 35;

// Closed by what follows: they don't nest, and end a word.
constexpr std::array<TextView, 19> Flat = {
    u"p",    u"br",   u"hr",  u"img",  u"li",   u"dt",   u"dd",    u"tr",    u"td",      u"th",
    u"meta", u"link", u"col", u"html", u"head", u"body", u"thead", u"tbody", u"!doctype"};

bool IsBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

// Colours, which follow a "#", don't count.
bool HasLongNumber(TextView styled) {
  size_t digits = 0;
  bool color = false;
  return std::any_of(styled.begin(), styled.end(), [&](char16_t unit) {
    digits = Texts::IsDigit(unit) ? digits + 1 : 0;
    color = unit == u'#' || (color && digits > 0);
    return digits > NumberLength && !color;
  });
}

class Measure {
 public:
  explicit Measure(TextView page) : rest_(page) {}

  bool Holds() {
    bool holds = rest_.size() <= PageLimits::Characters;
    while (holds && !rest_.empty())
      holds = rest_.front() == u'<' ? TagHolds() : TextHolds(Take(rest_.find(u'<')));
    return holds;
  }

 private:
  TextView Take(size_t length) {
    const TextView taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  TextView TakeUntilAfter(TextView end) {
    const size_t at = rest_.find(end);
    return Take(at == TextView::npos ? at : at + end.size());
  }

  bool TagHolds() {
    if (rest_.starts_with(u"<!--")) {
      TakeUntilAfter(u"-->");
      return true;
    }
    const Text tag = Texts::Lower(TakeUntilAfter(u">").substr(1));
    const bool closes = tag.starts_with(u'/');
    const Text name = tag.substr(closes, tag.find_first_of(u" \t\r\n/>", closes) - closes);
    inStyle_ = !closes && name == u"style";
    if (std::find(Flat.begin(), Flat.end(), name) != Flat.end()) {
      word_ = 0;
    } else {
      const int step = name == u"table" ? DepthOfTable : 1;
      depth_ = std::max(0, depth_ + (closes ? -step : step));
    }
    // Places of the page and names of files may be numbers.
    const bool names = tag.starts_with(u"a ") || tag.starts_with(u"img ");
    return ++tags_ <= Tags && depth_ <= Depth && (names || !HasLongNumber(tag));
  }

  bool TextHolds(TextView text) {
    if (inStyle_)
      return !HasLongNumber(text);
    return std::all_of(text.begin(), text.end(), [this](char16_t unit) {
      word_ = IsBlank(unit) ? 0 : word_ + 1;
      return word_ <= WordLength;
    });
  }

  TextView rest_;
  size_t tags_ = 0;
  int depth_ = 0;
  // Goes on over tags that don't end a word.
  size_t word_ = 0;
  bool inStyle_ = false;
};

}  // namespace

namespace PageLimits {

bool Hold(TextView page) {
  return Measure(page).Holds();
}

}  // namespace PageLimits
