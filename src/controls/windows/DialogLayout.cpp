#include "controls/windows/DialogLayout.h"

#include "controls/windows/TextFit.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

using TextFit::Breaks;

namespace {

// What stays free between a grown control and what stopped it.
constexpr int Gap = 4;
// Edges that are this close belong to one column.
constexpr int Tolerance = 2;
constexpr double SmallestPoints = 6;
constexpr double PointStep = 0.25;

using Numbers = std::vector<size_t>;

bool Fits(const QSize& needed, const QSize& given) {
  return needed.width() <= given.width() && needed.height() <= given.height();
}

bool IsClose(int one, int other) {
  return std::abs(one - other) <= Tolerance;
}

bool InRow(const QRect& one, const QRect& other) {
  return one.top() <= other.bottom() && one.bottom() >= other.top();
}

QRect Widened(QRect place, int width) {
  place.setWidth(width);
  return place;
}

class Arrangement {
 public:
  explicit Arrangement(std::span<const DialogLayout::Designed> controls) : designed_(controls) {
    for (const auto& control : controls) {
      base_.push_back(control.rectangle);
      places_.push_back({control.rectangle, control.font});
    }
  }

  std::vector<DialogLayout::Place> Run() {
    for (size_t i = 0; i < places_.size(); ++i)
      if (Wraps(i) && !FitsGrown(i))
        MoveRightOf(i);
    std::vector<bool> done(places_.size(), false);
    for (size_t i = 0; i < places_.size(); ++i)
      if (IsText(i) && !IsA<QPushButton>(i) && !done[i])
        FitColumn(i, done);
    FitButtons();
    return std::move(places_);
  }

 private:
  [[nodiscard]] const QWidget& Control(size_t i) const { return *designed_[i].control; }

  [[nodiscard]] const QWidget* Parent(size_t i) const { return Control(i).parentWidget(); }

  template <typename Type>
  [[nodiscard]] bool IsA(size_t i) const {
    return qobject_cast<const Type*>(&Control(i)) != nullptr;
  }

  [[nodiscard]] bool IsText(size_t i) const {
    return Control(i).isVisibleTo(Parent(i)) && !TextFit::TextOf(Control(i)).isEmpty();
  }

  [[nodiscard]] bool Wraps(size_t i) const {
    return IsText(i) && (IsA<QLabel>(i) || IsA<QRadioButton>(i));
  }

  [[nodiscard]] Numbers Neighbours(size_t of) const {
    Numbers neighbours;
    for (size_t i = 0; i < places_.size(); ++i)
      if (i != of && Parent(i) == Parent(of) && Control(i).isVisibleTo(Parent(i)))
        neighbours.push_back(i);
    return neighbours;
  }

  // A label that is as wide as its text keeps its row while that is empty.
  [[nodiscard]] QRect Taken(size_t i) const {
    const QRect& place = places_[i].rectangle;
    return Widened(place, std::max(place.width(), 1));
  }

  [[nodiscard]] bool IsRightOf(size_t other, const QRect& from) const {
    const QRect place = Taken(other);
    return place.left() > from.left() && place.left() >= from.right() - Gap && InRow(place, from);
  }

  [[nodiscard]] int RightLimit(size_t i, const QRect& from) const {
    int limit = Parent(i)->width() - Gap;
    for (const size_t other : Neighbours(i))
      if (IsRightOf(other, from))
        limit = std::min(limit, Taken(other).left() - Gap);
    return std::max(limit, from.right() + 1);
  }

  [[nodiscard]] int BottomLimit(size_t i, const QRect& from) const {
    int limit = Parent(i)->height() - Gap;
    for (const size_t other : Neighbours(i)) {
      const QRect place = Taken(other);
      if (place.top() > from.bottom() && place.left() <= from.right() &&
          place.right() >= from.left())
        limit = std::min(limit, place.top());
    }
    return std::max(limit, from.bottom() + 1);
  }

  [[nodiscard]] bool FitsIn(size_t i, const QRect& place, Breaks breaks) const {
    return Fits(TextFit::Needed(Control(i), places_[i].font, place.width(), breaks), place.size());
  }

  // Up to `widest` wide, then as high as there is room.
  [[nodiscard]] QRect Grown(size_t i, int widest, Breaks breaks) const {
    QRect place = base_[i];
    while (place.width() < widest && !FitsIn(i, place, breaks))
      place.setWidth(place.width() + 1);
    const int highest = BottomLimit(i, place) - place.top();
    const int needed = TextFit::Needed(Control(i), places_[i].font, place.width(), breaks).height();
    place.setHeight(std::clamp(needed, place.height(), std::max(highest, place.height())));
    return place;
  }

  [[nodiscard]] QRect Grown(size_t i, Breaks breaks) const {
    return Grown(i, RightLimit(i, base_[i]) - base_[i].left(), breaks);
  }

  [[nodiscard]] bool FitsGrown(size_t i) const {
    return FitsIn(i, Grown(i, Breaks::BetweenWords), Breaks::BetweenWords);
  }

  // The controls of its kind and font, one below the other, with the same room to their right.
  [[nodiscard]] Numbers ColumnOf(size_t of) const {
    const int limit = RightLimit(of, base_[of]);
    Numbers column;
    for (size_t i = 0; i < places_.size(); ++i)
      if (IsText(i) && Parent(i) == Parent(of) &&
          Control(i).metaObject() == Control(of).metaObject() &&
          designed_[i].font == designed_[of].font && IsClose(base_[i].left(), base_[of].left()) &&
          IsClose(RightLimit(i, base_[i]), limit))
        column.push_back(i);
    return column;
  }

  // Moves the controls beside the column to the right by what it lacks, as far as half of each is
  // left.
  void MoveRightOf(size_t first) {
    std::set<size_t> beside;
    int missing = 0;
    for (const size_t i : ColumnOf(first)) {
      const int limit = RightLimit(i, base_[i]);
      for (const size_t other : Neighbours(i))
        if (IsRightOf(other, base_[i]) && Taken(other).left() - Gap <= limit + Tolerance)
          beside.insert(other);
      const int whole = Parent(i)->width() - base_[i].left();
      const QRect wanted = Grown(i, whole, Breaks::BetweenWords);
      missing = std::max(missing, wanted.right() + 1 - limit);
    }
    for (const size_t other : beside)
      missing = std::min(missing, RoomToMove(other));
    for (const size_t other : beside)
      Move(other, missing);
  }

  [[nodiscard]] int RoomToMove(size_t i) const {
    const int room = RightLimit(i, base_[i]) - base_[i].left();
    const int least = IsText(i) && !IsA<QLabel>(i)
                          ? TextFit::Needed(Control(i), places_[i].font, room).width()
                          : room / 2;
    const bool movedBefore = base_[i] != designed_[i].rectangle;
    return movedBefore ? 0 : std::max(0, room - least);
  }

  void Move(size_t i, int distance) {
    const int room = RightLimit(i, base_[i]) - base_[i].left() - distance;
    base_[i] = Widened(base_[i].translated(distance, 0), std::min(base_[i].width(), room));
    places_[i].rectangle = base_[i];
  }

  void FitColumn(size_t first, std::vector<bool>& done) {
    if (FitsGrown(first)) {
      places_[first].rectangle = Grown(first, Breaks::BetweenWords);
      return;
    }
    const Numbers column = ColumnOf(first);
    for (const size_t i : column)
      done[i] = true;
    const auto between = [&] { return GrowAll(column, Breaks::BetweenWords); };
    const auto anywhere = [&] { return GrowAll(column, Breaks::Anywhere); };
    if (!InSmallerType(column, between))
      InSmallerType(column, anywhere);
  }

  bool GrowAll(const Numbers& column, Breaks breaks) {
    for (const size_t i : column)
      places_[i].rectangle = base_[i];
    bool fits = true;
    for (const size_t i : column) {
      places_[i].rectangle = Grown(i, breaks);
      fits = fits && FitsIn(i, places_[i].rectangle, breaks);
    }
    return fits;
  }

  // Tries an arrangement in ever smaller type; false if even the smallest does not fit.
  template <typename Try>
  bool InSmallerType(const Numbers& controls, const Try& arrange) {
    const double designed = designed_[controls.front()].font.pointSizeF();
    const auto steps = static_cast<int>((designed - SmallestPoints) / PointStep);
    for (int step = 0; step <= steps; ++step) {
      for (const size_t i : controls)
        places_[i].font.setPointSizeF(designed - step * PointStep);
      if (arrange())
        return true;
    }
    return false;
  }

  void FitButtons() {
    Numbers buttons;
    for (size_t i = 0; i < places_.size(); ++i)
      if (IsText(i) && IsA<QPushButton>(i))
        buttons.push_back(i);
    // From right to left, so that each knows what is left of its row.
    std::sort(buttons.begin(), buttons.end(),
              [this](size_t one, size_t other) { return base_[one].left() > base_[other].left(); });
    if (!buttons.empty())
      InSmallerType(buttons, [&] { return WidenButtons(buttons) || SpreadButtons(buttons); });
  }

  [[nodiscard]] int ButtonWidth(size_t i) const {
    const QSize needed = TextFit::Needed(Control(i), places_[i].font, base_[i].width());
    return std::max(base_[i].width(), needed.width());
  }

  bool WidenButtons(const Numbers& buttons) {
    for (const size_t i : buttons)
      places_[i].rectangle = base_[i];
    return std::all_of(buttons.begin(), buttons.end(), [this](size_t i) {
      QRect& place = places_[i].rectangle;
      place.setWidth(ButtonWidth(i));
      return place.right() < RightLimit(i, base_[i]);
    });
  }

  // Each row ends where it ended, or at the next edge, and takes the free space to its left.
  bool SpreadButtons(const Numbers& buttons) {
    bool fits = true;
    for (const size_t i : buttons) {
      int right = Parent(i)->width() - Gap;
      int left = 0;
      for (const size_t other : Neighbours(i)) {
        const QRect place = Taken(other);
        if (InRow(place, base_[i]) && base_[other].left() > base_[i].left())
          right = std::min(right, place.left() - Gap);
        else if (InRow(place, base_[i]) && !IsA<QPushButton>(other))
          left = std::max(left, place.right() + Gap);
      }
      QRect& place = places_[i].rectangle;
      place = Widened(base_[i], ButtonWidth(i));
      place.moveLeft(std::min(place.left(), right - place.width()));
      fits = fits && place.left() > left;
    }
    return fits;
  }

  std::span<const DialogLayout::Designed> designed_;
  // As designed, but for what a column has moved.
  std::vector<QRect> base_;
  std::vector<DialogLayout::Place> places_;
};

}  // namespace

namespace DialogLayout {

std::vector<Place> Arrange(std::span<const Designed> controls) {
  return Arrangement(controls).Run();
}

}  // namespace DialogLayout
