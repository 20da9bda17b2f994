#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityNames.h"
#include "platform/Text.h"

#include <QObject>
#include <QString>

#include <cstddef>

class MapControls;
class MapFocus;
class MapLook;
class NameLabel;
class ctlLocation;

/// What the pointer does on markers and names: shows names and tooltips, asks for information.
class MapPointer : public QObject {
  Q_OBJECT

 public:
  MapPointer(QObject& map, MapControls& controls, MapFocus& focus, MapLook& look,
             IniOps::Cache& cache, const EntityNames& names);

  /// Whether names show only while the pointer is on their marker.
  void SetLabelsOnHover(bool labelsOnHover) { labelsOnHover_ = labelsOnHover; }

  /// What a screen reader says of a highlighted marker.
  void SetHighlightedText(const QString& text) { highlighted_ = text; }

  /// What a screen reader says after the name: whether it is highlighted, and the description's
  /// start.
  [[nodiscard]] QString SpokenDescription(const ctlLocation& marker) const;

 Q_SIGNALS:
  /// The information about this name is wanted.
  void InfoWanted(const Text& name);

 private:
  void DOT_MouseMove(int index);
  void DOT_DblClick(int index);
  void lblDOT_MouseMove(int index);
  void lblDOT_DblClick(int index);
  void lblCaption_MouseMove();
  [[nodiscard]] QString Description(size_t marker) const;
  void ShowDescription(NameLabel& label, size_t marker) const;

  MapControls& controls_;
  MapFocus& focus_;
  MapLook& look_;
  IniOps::Cache& cache_;
  const EntityNames& names_;
  QString highlighted_;
  bool labelsOnHover_ = false;
};
