#include "cli/formats/Json.h"

#include "platform/windows/QtText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using QtText::ToQt;

namespace {

constexpr int FrameHeight = 768;
constexpr TextView Note =
    u"Positions are points of a picture in a frame of 1024 x 768, y upwards from its lower edge; "
    u"they "
    u"are no longitude and latitude.";

QJsonObject ObjectOf(const Share::Hit& hit) {
  const auto& position = hit.entity->position;
  return {{QStringLiteral("region"), ToQt(hit.map->key)},
          {QStringLiteral("section"), ToQt(hit.category->section)},
          {QStringLiteral("key"), ToQt(hit.entity->key)},
          {QStringLiteral("name"), ToQt(hit.entity->name)},
          {QStringLiteral("x"), position ? QJsonValue(position->x) : QJsonValue()},
          {QStringLiteral("y"), position ? QJsonValue(position->y) : QJsonValue()},
          {QStringLiteral("description"), ToQt(hit.entity->description)}};
}

QJsonValue PointOf(const Share::Entity& entity) {
  if (!entity.position)
    return {};
  return QJsonObject{{QStringLiteral("type"), QStringLiteral("Point")},
                     {QStringLiteral("coordinates"),
                      QJsonArray{entity.position->x, FrameHeight - entity.position->y}}};
}

QJsonObject FeatureOf(const Share::Hit& hit) {
  QJsonObject properties = ObjectOf(hit);
  properties.insert(QStringLiteral("category"), ToQt(hit.category->caption));
  properties.insert(QStringLiteral("mark"), hit.entity->highlighted);
  if (!hit.entity->link.empty())
    properties.insert(QStringLiteral("link"), ToQt(hit.entity->link));
  return {{QStringLiteral("type"), QStringLiteral("Feature")},
          {QStringLiteral("geometry"), PointOf(*hit.entity)},
          {QStringLiteral("properties"), properties}};
}

}  // namespace

namespace Json {

std::string OfHits(std::span<const Share::Hit> hits) {
  QJsonArray all;
  for (const Share::Hit& hit : hits)
    all.append(ObjectOf(hit));
  return QJsonDocument(all).toJson().toStdString();
}

std::string GeoJsonOf(std::span<const Share::RegionMap> maps, TextView title) {
  QJsonArray features;
  for (const Share::RegionMap& map : maps)
    for (const Share::Category& category : map.categories)
      for (const Share::Entity& entity : category.entities)
        features.append(FeatureOf({&map, &category, &entity}));
  const QJsonObject collection = {{QStringLiteral("type"), QStringLiteral("FeatureCollection")},
                                  {QStringLiteral("title"), ToQt(title)},
                                  {QStringLiteral("note"), ToQt(Note)},
                                  {QStringLiteral("features"), features}};
  return QJsonDocument(collection).toJson().toStdString();
}

}  // namespace Json
