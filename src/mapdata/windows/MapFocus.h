#pragma once

#include "mapdata/display/MarkerWalk.h"

#include <QBasicTimer>
#include <QObject>

#include <optional>
#include <vector>

class FocusRing;
class NameLabel;
class QKeyEvent;
class QWidget;
class ctlLocation;

/// The keyboard on the map. All markers are one Tab stop; the arrow keys walk from marker to
/// marker, Home and End to the first and the last, Page Up and Page Down through their order, Enter
/// does what a double click does. The marker with the focus has a ring, and acts as if the pointer
/// were on it.
class MapFocus : public QObject {
  Q_OBJECT

 public:
  explicit MapFocus(QWidget* map);

  /// Takes in a marker and its name. The first ones added come first.
  void Add(ctlLocation* marker, NameLabel* name);

  /// The points of the markers, in the order in which they were added; none for one that is not on
  /// the map. A hidden marker that has one is outside of a closer view.
  void SetPoints(std::vector<std::optional<MarkerWalk::Point>> points);

  /// The markers that are shown now, in their order.
  [[nodiscard]] std::vector<ctlLocation*> Markers() const;

  /// How many markers were added before this one.
  [[nodiscard]] size_t NumberOf(const ctlLocation& marker) const;

  /// The marker that the keyboard is on, null if it is elsewhere.
  [[nodiscard]] ctlLocation* Current() const;

  /// Does again what resting on that marker does, after the map was drawn anew.
  void Resume();

  /// Leaves the ring out of what is drawn, as on paper.
  void SetRingLeftOut(bool leftOut);

 Q_SIGNALS:
  /// The walk comes to the marker of this number, which must be shown when this returns.
  void Reached(size_t number);
  /// Escape was pressed: the focus leaves the map.
  void Left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  struct Spot {
    ctlLocation* marker;
    NameLabel* name;
  };

  void MakeTabStop(ctlLocation* marker);
  void TakeFocus(ctlLocation& marker, Qt::FocusReason reason);
  void Rest(ctlLocation& marker);
  void Leave();
  void ShowRing();
  [[nodiscard]] bool Press(ctlLocation& marker, const QKeyEvent& key);
  void Walk(ctlLocation& from, int key);

  QWidget* map_;
  FocusRing* ring_;
  [[nodiscard]] NameLabel& NameOf(const ctlLocation& marker) const;

  std::vector<Spot> spots_;
  std::vector<std::optional<MarkerWalk::Point>> points_;
  ctlLocation* tabStop_ = nullptr;
  // The marker that had the focus when another window became active.
  const ctlLocation* left_ = nullptr;
  QBasicTimer untilTip_;
  bool ringLeftOut_ = false;
};
