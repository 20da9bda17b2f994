#pragma once

#include "mapdata/display/Plan.h"

#include <QObject>

#include <array>

class NameLabel;
class QWidget;
class ctlLocation;

/// The 81 markers of a category and their name labels: `DOT(0)` to `DOT(80)`, `lblDOT(0)` to
/// `lblDOT(80)`. Marker number i belongs to line i of the category, disabled or not.
class MarkerSlots : public QObject {
  Q_OBJECT

 public:
  static constexpr int Count = static_cast<int>(MapPlan::MaximumMarkers);

  /// Creates all of them on the map, hidden. `between` is a sibling that stays above every label
  /// and below every marker, `above` one that stays above every marker.
  MarkerSlots(QWidget* map, QWidget* between, QWidget* above);

  /// Brings the slot's marker in front of the other markers, its label in front of the other
  /// labels.
  void BringToFront(int slot);

  /// Marker and label of the slot, 0 to 80.
  [[nodiscard]] ctlLocation& Dot(int slot) const { return *dots_[static_cast<size_t>(slot)]; }

  [[nodiscard]] NameLabel& Label(int slot) const { return *labels_[static_cast<size_t>(slot)]; }

 Q_SIGNALS:
  /// The pointer moved over a marker or a label, or double-clicked it.
  void DotMoved(int slot);
  void DotDoubleClicked(int slot);
  void LabelMoved(int slot);
  void LabelDoubleClicked(int slot);

 private:
  QWidget* between_;
  QWidget* above_;
  std::array<ctlLocation*, MapPlan::MaximumMarkers> dots_{};
  std::array<NameLabel*, MapPlan::MaximumMarkers> labels_{};
  int front_ = -1;
};
