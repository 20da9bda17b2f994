#include "check/Checks.h"
#include "check/Edits.h"
#include "check/EntityLine.h"
#include "check/Value.h"
#include "check/Words.h"
#include "mapdata/files/StringOps.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

using EntityFile::Position;
using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Words::At;
using Words::Count;
using Words::Decoded;
using Words::Quoted;

namespace {

constexpr int Width = 1024;
constexpr int Height = 768;
constexpr char NoBreakSpace = '\xA0';
constexpr std::string_view LineBlanks = "\t\v\f";

bool IsInside(const Position& position, int width, int height) {
  return position.x >= 0 && position.x <= width && position.y >= 0 && position.y <= height;
}

std::string Bytes(const Position& position) {
  return std::to_string(position.x) + ',' + std::to_string(position.y);
}

// What is wrong with one line.
class LineCheck {
 public:
  LineCheck(const EntityLine& line, Findings& findings)
      : line_(line), findings_(findings), entry_(line.Line().entry), value_(line.Value()) {}

  // Whether there is anything about the line as such that explains every wrong position.
  bool CheckForm() {
    const std::string_view listed = line_.Line().listed;
    if (listed.empty())
      return TellNameless();
    if (listed.find_first_of(LineBlanks) == 0 ||
        listed.find_last_of(LineBlanks) == listed.size() - 1)
      return TellTab(listed);
    if (listed.front() == ';')
      return CheckComment();
    if (listed.front() == '#')
      return TellHash();
    if (entry_.kind != LineKind::KeyWithValue)
      return TellNoEquals();
    if (listed.find(NoBreakSpace) != std::string_view::npos)
      TellNoBreakSpaceInKey(listed);
    if (!line_.IsFound())
      return TellTwin();
    if (value_.empty())
      return Tell(Id::F12, entry_.key, u"a name without a position");
    return false;
  }

  void CheckValue() {
    if (CheckBlanks() || CheckLinkForm() || CheckEquals() || CheckComments() || CheckSeparators())
      return;
    if (Value::Field(value_, 1).empty() || Value::Field(value_, 2).empty())
      Tell(Id::P05, value_, u"one number for two");
    else if (const auto digits = Value::DigitsAlone(value_); !digits)
      Tell(Id::P01, value_, u"no two numbers");
    else
      CheckNumbers(*digits);
  }

 private:
  bool Tell(Id rule, std::string_view words, Text message) {
    line_.Tell(findings_, rule, words, std::move(message));
    return true;
  }

  void Offer(Finding& finding, std::string bytes, bool safe) {
    finding.advice = Join(u"write ", Decoded(bytes));
    finding.edits = {Edits::Replaced(line_.File(), value_, std::move(bytes))};
    finding.isSafe = safe;
  }

  bool TellNameless() { return Tell(Id::F16, line_.Line().text.raw, u"a position without a name"); }

  bool TellTab(std::string_view listed) {
    Finding& finding = line_.Tell(findings_, Id::F13, listed, u"a tab around a name is part of it");
    const std::string_view raw = line_.Line().text.raw;
    std::string spaced(raw.substr(0, raw.find('=')));
    for (char& byte : spaced)
      byte = LineBlanks.find(byte) == std::string_view::npos ? byte : ' ';
    finding.edits = {Edits::Replaced(line_.File(), raw.substr(0, spaced.size()), spaced)};
    // A line less moves the names below it.
    finding.isSafe = entry_.kind == LineKind::KeyWithValue;
    return true;
  }

  bool CheckComment() {
    const bool isComment = line_.Line().text.raw.find('=') == std::string_view::npos;
    const Index::Category* category = line_.Category();
    if (isComment && category && !category->isList) {
      Finding& finding = line_.Tell(findings_, Id::F09, line_.Line().listed,
                                    u"a comment below a header is an entity that is switched off");
      finding.consequence = u"it takes one of the section's 81 markers";
    }
    return true;
  }

  bool TellHash() { return Tell(Id::F08, line_.Line().listed, u"\"#\" begins no comment"); }

  bool TellNoEquals() {
    const std::string_view listed = line_.Line().listed;
    Finding& finding = line_.Tell(findings_, Id::F07, listed, u"a name without \"=\"");
    const size_t digits = listed.find_first_of("0123456789");
    const size_t blank =
        digits == std::string_view::npos ? digits : listed.find_last_of(" \t", digits);
    if (blank != std::string_view::npos && Value::Plain(listed.substr(blank))) {
      const size_t end = listed.find_last_not_of(" \t:", blank) + 1;
      finding.advice =
          Join(u"write ", Decoded(listed.substr(0, end)), u"=", Decoded(listed.substr(blank + 1)));
      finding.edits = {Edits::Replaced(line_.File(), listed.substr(end, blank + 1 - end), "=")};
    }
    return true;
  }

  void TellNoBreakSpaceInKey(std::string_view listed) {
    Finding& finding = line_.Tell(findings_, Id::F15, listed, u"a no-break space in a name");
    finding.consequence =
        Join(finding.consequence, u"; the same name with a plain space is another");
    std::string spaced(listed);
    std::ranges::replace(spaced, NoBreakSpace, ' ');
    finding.edits = {Edits::Replaced(line_.File(), listed, std::move(spaced))};
    finding.isSafe = false;
  }

  bool TellTwin() {
    Finding& finding =
        line_.Tell(findings_, Id::P11, entry_.key,
                   Join(Quoted(Decoded(entry_.key)), u" stands in this section already"));
    const auto first = line_.File().File().Value(line_.Section().name, entry_.key);
    finding.consequence = Join(finding.consequence, u", where the first line of the name says");
    const bool same = first && *first == value_;
    finding.advice = same ? Text(u"remove this line") : Text(u"keep one of the two lines");
    finding.edits = {Edits::WithoutLine(line_.File(), line_.Line())};
    return true;
  }

  bool CheckBlanks() {
    if (value_.find(NoBreakSpace) == std::string_view::npos)
      return false;
    Finding& finding = line_.Tell(findings_, Id::F15, value_, u"a no-break space in a position");
    finding.isSafe = false;
    if (auto spaced = Value::WithPlainSpaces(value_))
      Offer(finding, *std::move(spaced), true);
    return true;
  }

  bool CheckLinkForm() {
    if (!value_.starts_with('#'))
      return false;
    Finding& finding = line_.Tell(findings_, Id::L04, value_, u"a link has a comma behind \"#\"");
    const size_t target = value_.find_first_not_of("#;,.: \t");
    finding.isSafe = false;
    if (target != std::string_view::npos &&
        line_.File().FindSection(value_.substr(target)) != Source::None)
      Offer(finding, "#," + std::string(value_.substr(target)), true);
    return true;
  }

  bool CheckEquals() {
    const size_t equals = value_.rfind('=');
    if (equals == std::string_view::npos || !Value::Plain(value_.substr(equals + 1)))
      return false;
    return Tell(Id::P12, value_,
                Join(u"the name ends at the first \"=\": it is ", Quoted(Decoded(entry_.key))));
  }

  bool CheckComments() {
    const auto end = Value::CommentBehind(value_);
    if (!end)
      return false;
    Finding& finding = line_.Tell(findings_, Id::F10, value_.substr(*end),
                                  u"a comment behind a position is part of it");
    if (value_.substr(0, *end).ends_with('*'))
      finding.consequence = Join(finding.consequence, u", and it is not highlighted");
    Offer(finding, std::string(value_.substr(0, *end)), false);
    return true;
  }

  bool CheckSeparators() {
    if (auto commas = Value::WithCommas(value_)) {
      Finding& finding = line_.Tell(findings_, Id::P02, value_, u"no comma between two numbers");
      Offer(finding, *std::move(commas), value_.find('.') == std::string_view::npos);
      return true;
    }
    if (auto whole = Value::WithoutDecimalCommas(value_)) {
      Finding& finding = line_.Tell(findings_, Id::P03, value_, u"a decimal comma");
      Offer(finding, *std::move(whole), false);
      return true;
    }
    return false;
  }

  // Both fields begin with a number.
  void CheckNumbers(const std::string& digits) {
    const std::string_view mark = Value::Field(value_, 3);
    if (!Value::IsNumber(Value::Field(value_, 1)) || !Value::IsNumber(Value::Field(value_, 2))) {
      if (IsTooLarge())
        return TellOutside();
      Finding& finding = line_.Tell(findings_, Id::P06, value_, u"text behind a number");
      return Offer(finding, digits, Value::HasUnits(value_));
    }
    if (value_.find('.') != std::string_view::npos)
      TellFraction(mark);
    else if (const auto at = Rounded(); !IsInside(at, Width, Height))
      TellOutside();
    if (!mark.empty() && mark != "*") {
      Finding& finding = line_.Tell(findings_, Id::P10, mark, u"only \"*\" highlights");
      finding.advice = u"write *";
      finding.edits = {Edits::Replaced(line_.File(), mark, "*")};
    }
  }

  // Numbers alone, one of them beyond what the readers take.
  [[nodiscard]] bool IsTooLarge() const {
    return value_.find_first_not_of("0123456789,-* \t") == std::string_view::npos;
  }

  [[nodiscard]] Position Rounded() const {
    const auto number = [this](size_t n) {
      return StringOps::LeadingNumber(Value::Field(value_, n));
    };
    return {number(1), number(2)};
  }

  void TellFraction(std::string_view mark) {
    Finding& finding = line_.Tell(findings_, Id::P04, value_, u"a fraction of a unit");
    Offer(finding, Bytes(Rounded()) + (mark == "*" ? ",*" : ""), mark.empty() || mark == "*");
  }

  void TellOutside() {
    const Position at = Rounded();
    Finding& finding = line_.Tell(findings_, Id::P07, value_, u"a position outside the picture");
    if (at.x <= Height && at.y > Height && at.y <= Width)
      finding.advice = Join(u"were X and Y swapped? Else ", finding.advice);
  }

  const EntityLine& line_;
  Findings& findings_;
  const ProfileLines::Entry& entry_;
  std::string_view value_;
};

// The lines of one section that say where something stands.
class SectionCheck {
 public:
  SectionCheck(Index& index, Findings& findings) : index_(index), findings_(findings) {}

  void Add(const Index::Entity& entity) {
    const EntityLine line(index_, entity);
    if (!line.IsSound())
      return;
    LineCheck check(line, findings_);
    if (check.CheckForm())
      return;
    if (line.Read().link)
      return CheckLinked(entity, line);
    const auto at = Value::Plain(line.Value());
    if (!at || !IsMarkPlain(line.Value()))
      return check.CheckValue();
    if (IsInside(*at, Width, Height))
      return CheckPlace(entity, line, *at);
    outside_.push_back({entity, *at});
  }

  // Judges what stands outside by how much does.
  void Close() {
    if (!outside_.empty() && !TellPixels())
      for (const Outside& one : outside_)
        LineCheck(EntityLine(index_, one.entity), findings_).CheckValue();
    outside_.clear();
    points_.clear();
    inside_ = 0;
  }

 private:
  struct Outside {
    Index::Entity entity;
    Position position;
  };

  static constexpr size_t Many = 3;

  static bool IsMarkPlain(std::string_view value) {
    const std::string_view mark = Value::Field(value, 3);
    return mark.empty() || mark == "*";
  }

  void CheckLinked(const Index::Entity& entity, const EntityLine& line) {
    if (const auto found = EntityFile::FoundPosition(line.Read()))
      CheckPoint(entity, line, *found);
  }

  void CheckPlace(const Index::Entity& entity, const EntityLine& line, const Position& at) {
    ++inside_;
    if (at == Position{0, 0})
      line.Tell(findings_, Id::P09, line.Value(), u"a position in the corner");
    else
      CheckPoint(entity, line, at);
  }

  void CheckPoint(const Index::Entity& entity, const EntityLine& line, const Position& at) {
    const Index::Category* category = line.Category();
    if (!category || category->isList || at == Position{0, 0})
      return;
    const auto [first, isNew] = points_.emplace((int64_t{at.y} << 32) + at.x, entity.name);
    if (isNew || first->second == entity.name)
      return;
    Finding& finding =
        line.Tell(findings_, Id::P13, line.Line().entry.key,
                  Join(Quoted(Decoded(first->second)), u" stands at ", At(at), u" too"));
    finding.consequence = u"one of the two can't be pointed at";
  }

  // Whether the section was measured in the picture's own pixels.
  bool TellPixels() {
    if (outside_.size() < Many || outside_.size() < inside_)
      return false;
    const Index::Entity& first = outside_.front().entity;
    const auto size = index_.pictureOf(index_.paths.regions[first.region].picture);
    if (!size || size->width <= Width ||
        !std::ranges::all_of(outside_, [&size](const Outside& one) {
          return IsInside(one.position, size->width, size->height);
        }))
      return false;
    const EntityLine line(index_, first);
    Finding& finding = line.Tell(findings_, Id::P08, line.Value(),
                                 Join(Count(outside_.size(), u"position", u"positions"),
                                      u" beyond the frame, all within the picture"));
    finding.key.clear();
    finding.consequence = Join(u"the whole of ", Quoted(finding.section), u" is displaced, ",
                               Count(outside_.size(), u"marker lies", u"markers lie"), u" outside");
    finding.advice = Join(u"times 1024/", Decoded(std::to_string(size->width)), u" and 768/",
                          Decoded(std::to_string(size->height)));
    finding.edits = Scaled(first, *size);
    return true;
  }

  [[nodiscard]] std::vector<Edit> Scaled(const Index::Entity& first, const PictureSize& size) {
    std::vector<Edit> edits;
    const auto scaled = [](int number, int to, int from) {
      return static_cast<int>(std::nearbyint(static_cast<double>(number) * to / from));
    };
    for (const Index::Entity& entity : index_.entities) {
      if (entity.region != first.region || entity.section != first.section)
        continue;
      const EntityLine line(index_, entity);
      const auto at = Value::Plain(line.Value());
      if (!at)
        continue;
      const std::string mark = Value::Field(line.Value(), 3) == "*" ? ",*" : "";
      edits.push_back(Edits::Replaced(
          line.File(), line.Value(),
          Bytes({scaled(at->x, Width, size.width), scaled(at->y, Height, size.height)}) + mark));
    }
    return edits;
  }

  Index& index_;
  Findings& findings_;
  std::vector<Outside> outside_;
  std::unordered_map<int64_t, std::string_view> points_;
  size_t inside_ = 0;
};

}  // namespace

void Checks::Positions(Index& index, Findings& findings) {
  SectionCheck check(index, findings);
  for (size_t i = 0; i < index.entities.size(); ++i) {
    const Index::Entity& entity = index.entities[i];
    if (i > 0 && (index.entities[i - 1].region != entity.region ||
                  index.entities[i - 1].section != entity.section))
      check.Close();
    check.Add(entity);
  }
  check.Close();
}
