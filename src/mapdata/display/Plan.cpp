#include "mapdata/display/Plan.h"

namespace {

using EntityFile::Position;
using Marker = MapPlan::Marker;

std::vector<Marker> MarkersOf(const ViewState& view, const EntityNames& names,
                              IniOps::Snapshot& files) {
  std::vector<Marker> markers;
  for (const EntityFile::Marker& entity : EntityFile::ReadMarkers(
           files.File(view.DataFile), view.CategoryKey, files, names, MapPlan::MaximumMarkers))
    markers.push_back({.position = entity.position,
                       .name = entity.name,
                       .caption = Texts::Padded(entity.name),
                       .highlighted = entity.highlighted,
                       .shown = !entity.disabled,
                       .captionShown = !entity.disabled && !view.LabelsOnHover});
  return markers;
}

// None where the file has no position for it.
std::vector<Marker> Picked(const ViewState& view, const Text& name, const EntityNames& names,
                           IniOps::Snapshot& files) {
  const auto position =
      EntityFile::ReadPicked(files.File(view.DataFile), view.CategoryKey, names.Key(name));
  if (!position)
    return {};
  return {{.position = *position, .name = name, .caption = Texts::Padded(name)}};
}

// A hit whose name is in the hidden list is picked there: both put blanks around its name.
std::vector<Marker> Found(const ViewState& view, const EntityNames& names,
                          IniOps::Snapshot& files) {
  const ViewState::Found& found = *view.found;
  auto picked = found.row.empty() ? std::vector<Marker>() : Picked(view, found.row, names, files);
  for (Marker& marker : picked)
    marker.caption = Texts::Padded(marker.caption);
  if (!picked.empty())
    return picked;
  return {{.position = found.at,
           .name = view.SelectedEntity,
           .caption = Texts::Padded(view.SelectedEntity),
           .shown = found.row.empty(),
           .atPosition = true}};
}

}  // namespace

MapPlan Plan(const ViewState& view, const EntityNames& names, IniOps::Snapshot& files) {
  switch (view.kind) {
    case ViewState::Kind::Nothing:
      break;
    case ViewState::Kind::Markers:
      return {false, MarkersOf(view, names, files),
              Texts::Padded(Texts::ReplaceAll(view.Heading, u"&", u""))};
    case ViewState::Kind::List:
    case ViewState::Kind::Hit:
      if (view.found)
        return {true, Found(view, names, files), view.Heading};
      return {true,
              view.SelectedEntity.empty() ? std::vector<Marker>()
                                          : Picked(view, view.SelectedEntity, names, files),
              view.Heading};
  }
  return {};
}
