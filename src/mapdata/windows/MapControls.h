#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/display/Layout.h"
#include "platform/Text.h"

#include <QSize>
#include <QString>

#include <vector>

class MapArea;
class MapFocus;
class MapGestures;
struct MapPlan;
class MarkerSlots;
class NameLabel;
class QComboBox;
class QFrame;
class QToolButton;
class QWidget;
class ctlLocation;

/// The widgets of the map: made once, then filled from a plan and moved by a layout.
class MapControls {
 public:
  /// Creates all of them on the map, in stacking order: picture, names, markers, then the rest.
  explicit MapControls(QWidget* map);

  MapControls(const MapControls&) = delete;
  MapControls& operator=(const MapControls&) = delete;

  /// Gives markers, names and heading the plan's texts and colours; the others are hidden.
  void Fill(const MapPlan& plan);

  /// How wide the texts of the plan are, once filled in.
  [[nodiscard]] TextWidths Widths(const MapPlan& plan) const;

  /// Moves everything to its place. The name of marker `hovered` (-1 for none) is always shown.
  void Place(const MapPlan& plan, const MapLayout& layout, int hovered);

  /// Stretches the picture over the map, and puts list and button into its right corner.
  void FitTo(const QSize& map, int windowWidth);

  void ShowList(bool shown);

  /// Fills the list: the prompt, which is selected, and the names in their order.
  void List(const QString& prompt, const std::vector<Text>& names);

  /// Makes the widgets known to the walk by keys and the gestures.
  void AddTo(MapFocus& focus, MapGestures& gestures) const;

  /// The texts of list and button for a screen reader, and the button's tooltip.
  void SetTexts(const QString& spokenPrompt, const QString& infoToolTip);

  /// Selects the list's row of exactly this text; false, and none selected, if there is none.
  bool Select(const QString& row);

  MapArea* imgMap;
  QFrame* linMenuSep;
  NameLabel* lblCaption;
  ctlLocation* ITEM;
  NameLabel* lblMultiInfo;
  MarkerSlots* slots_;
  QComboBox* cboItems;
  QToolButton* btnInfo;

 private:
  [[nodiscard]] ctlLocation& Marker(const MapPlan& plan, size_t number) const;
  [[nodiscard]] NameLabel& Label(const MapPlan& plan, size_t number) const;
  void Empty(const MapPlan& plan);
  void Move(QWidget& widget, const Twips2Pixel_Module::Twips& leftTop) const;

  QWidget* map_;
};
