#include "platform/TamePage.h"

#include <algorithm>
#include <array>

namespace {

constexpr size_t MostCharacters = size_t{256} * 1024;
constexpr size_t MostTags = 10'000;
constexpr size_t LongestWord = 500;
constexpr size_t LongestNumber = 4;
constexpr size_t LongestEntity = 10;
// Each table within a table doubles the time that all in it takes.
constexpr int DeepestTable = 3;
constexpr int DeepestElement = 100;
constexpr char16_t BreakHere = 0x200B;

// They are closed by what follows, so that they don't nest.
constexpr std::array<TextView, 19> Flat = {
    u"p",    u"br",   u"hr",  u"img",  u"li",   u"dt",   u"dd",    u"tr",    u"td",      u"th",
    u"meta", u"link", u"col", u"html", u"head", u"body", u"thead", u"tbody", u"!doctype"};

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

bool EndsWord(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

// Numbers with fewer digits; colours, which follow a "#", stay.
Text WithShortNumbers(TextView styled) {
  Text result;
  size_t digits = 0;
  bool color = false;
  for (const char16_t unit : styled) {
    digits = IsDigit(unit) ? digits + 1 : 0;
    color = unit == u'#' || (color && digits > 0);
    if (digits <= LongestNumber || color)
      result += unit;
  }
  return result;
}

// A place of the page or a file's name keeps its digits.
bool NamesSomething(TextView tag) {
  return tag.starts_with(u"a ") || tag.starts_with(u"img ");
}

class Tamer {
 public:
  explicit Tamer(TextView page) : rest_(page.substr(0, MostCharacters)) {}

  Text Run() {
    while (!rest_.empty())
      rest_.front() == u'<' ? TakeTag() : TakeText();
    return std::move(result_);
  }

 private:
  // How deep a kind of element nests, and how many of those open now were left out.
  struct Nesting {
    int most;
    int open = 0;
    int leftOut = 0;

    bool Open() {
      ++(open < most ? open : leftOut);
      return leftOut == 0;
    }

    bool Close() {
      const bool kept = leftOut == 0;
      int& count = kept ? open : leftOut;
      count = std::max(0, count - 1);
      return kept;
    }
  };

  TextView Take(size_t length) {
    const TextView taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  TextView TakeUntilAfter(TextView end) {
    const size_t at = rest_.find(end);
    return Take(at == TextView::npos ? at : at + end.size());
  }

  void TakeTag() {
    if (rest_.starts_with(u"<!--")) {
      TakeUntilAfter(u"-->");
      return;
    }
    const TextView tag = TakeUntilAfter(u">");
    const Text inside = Texts::Lower(tag.substr(1));
    const bool closes = inside.starts_with(u'/');
    const Text name = inside.substr(closes, inside.find_first_of(u" \t\r\n/>", closes) - closes);
    inStyle_ = !closes && name == u"style";
    if (!IsKept(name, closes))
      return;
    result_ += NamesSomething(inside) ? Text(tag) : WithShortNumbers(tag);
  }

  bool IsKept(TextView name, bool closes) {
    if (++tags_ > MostTags)
      return false;
    if (std::find(Flat.begin(), Flat.end(), name) != Flat.end())
      return true;
    Nesting& nesting = name == u"table" ? tables_ : elements_;
    return closes ? nesting.Close() : nesting.Open();
  }

  void TakeText() {
    const TextView text = Take(rest_.find(u'<'));
    if (inStyle_)
      result_ += WithShortNumbers(text);
    else
      AddWords(text);
  }

  void AddWords(TextView text) {
    size_t entity = LongestEntity;
    for (const char16_t unit : text) {
      word_ = EndsWord(unit) ? 0 : word_ + 1;
      entity = unit == u'&' ? 0 : unit == u';' ? LongestEntity : entity + 1;
      if (word_ > LongestWord && entity > LongestEntity) {
        result_ += BreakHere;
        word_ = 1;
      }
      result_ += unit;
    }
  }

  TextView rest_;
  Text result_;
  Nesting tables_{DeepestTable};
  Nesting elements_{DeepestElement};
  size_t tags_ = 0;
  // Of the word that goes on, whatever tags stand in it.
  size_t word_ = 0;
  bool inStyle_ = false;
};

}  // namespace

namespace TamePage {

Text Of(TextView page) {
  return Tamer(page).Run();
}

}  // namespace TamePage
