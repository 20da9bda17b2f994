#include "mapdata/windows/MapPointer.h"

#include "mapdata/windows/MapControls.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapLook.h"
#include "mapdata/windows/MarkerSlots.h"
#include "mapdata/windows/NameLabel.h"
#include "mapdata/windows/ctlLocation.h"
#include "mapdata/world/InfoFile.h"
#include "platform/windows/QtText.h"

MapPointer::MapPointer(QObject& map, MapControls& controls, MapFocus& focus, MapLook& look,
                       IniOps::Cache& cache, const EntityNames& names)
    : QObject(&map), controls_(controls), focus_(focus), look_(look), cache_(cache), names_(names) {
  connect(controls.lblCaption, &NameLabel::MouseMove, this, &MapPointer::lblCaption_MouseMove);
  connect(controls.slots_, &MarkerSlots::DotMoved, this, &MapPointer::DOT_MouseMove);
  connect(controls.slots_, &MarkerSlots::DotDoubleClicked, this, &MapPointer::DOT_DblClick);
  connect(controls.slots_, &MarkerSlots::LabelMoved, this, &MapPointer::lblDOT_MouseMove);
  connect(controls.slots_, &MarkerSlots::LabelDoubleClicked, this, &MapPointer::lblDOT_DblClick);
}

void MapPointer::DOT_MouseMove(int index) {
  controls_.slots_->BringToFront(index);
  look_.Hover(index, labelsOnHover_);
}

void MapPointer::DOT_DblClick(int index) {
  const auto& markers = look_.Plan().markers;
  if (static_cast<size_t>(index) < markers.size())
    Q_EMIT InfoWanted(markers[static_cast<size_t>(index)].name);
}

void MapPointer::lblDOT_MouseMove(int index) {
  controls_.slots_->BringToFront(index);
  ShowDescription(controls_.slots_->Label(index), static_cast<size_t>(index));
}

void MapPointer::lblDOT_DblClick(int index) {
  const auto& markers = look_.Plan().markers;
  if (static_cast<size_t>(index) < markers.size())
    Q_EMIT InfoWanted(markers[static_cast<size_t>(index)].caption);
}

void MapPointer::lblCaption_MouseMove() {
  ShowDescription(*controls_.lblCaption, 0);
}

void MapPointer::ShowDescription(NameLabel& label, size_t marker) const {
  const QString description = Description(marker);
  if (!description.isEmpty())
    label.setToolTip(description);
}

QString MapPointer::SpokenDescription(const ctlLocation& marker) const {
  const size_t number = focus_.NumberOf(marker);
  const QString mark = marker.Highlighted() ? highlighted_ + QStringLiteral(". ") : QString();
  return mark + Description(look_.Plan().single ? number : number - 1);
}

QString MapPointer::Description(size_t marker) const {
  const auto& markers = look_.Plan().markers;
  if (marker >= markers.size())
    return {};
  IniOps::Snapshot files(cache_);
  const Text key = Texts::Lower(names_.Key(markers[marker].caption));
  return QtText::ToQt(InfoFile::TooltipOf(InfoFile::ReadEntry(files.File(names_.InfoPath()), key)));
}
