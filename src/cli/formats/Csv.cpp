#include "cli/formats/Csv.h"

#include "platform/windows/QtText.h"

#include <initializer_list>

using Texts::Join;

namespace {

constexpr TextView ByteOrderMark = u"\uFEFF";
constexpr TextView LineEnd = u"\r\n";
constexpr TextView NeedsQuotes = u",\"\r\n";

Text Field(TextView value) {
  if (value.find_first_of(NeedsQuotes) == TextView::npos)
    return Text(value);
  return Join(u"\"", Texts::ReplaceAll(value, u"\"", u"\"\""), u"\"");
}

Text Row(std::initializer_list<TextView> values) {
  Text row;
  for (const TextView value : values)
    row += Join(Field(value), u",");
  row.replace(row.size() - 1, 1, LineEnd);
  return row;
}

// Of one of the position's numbers; "" without a position.
Text Coordinate(const Share::Entity& entity, int EntityFile::Position::*number) {
  return entity.position ? QtText::FromQt(QString::number(*entity.position.*number)) : Text();
}

std::string Bytes(const Text& table) {
  return QtText::ToQt(Join(ByteOrderMark, table)).toUtf8().toStdString();
}

}  // namespace

namespace Csv {

std::string OfWorld(std::span<const Share::RegionMap> maps) {
  Text table = Row({u"region", u"section", u"name", u"x", u"y", u"mark", u"link", u"description"});
  for (const Share::RegionMap& map : maps)
    for (const Share::Category& category : map.categories)
      for (const Share::Entity& entity : category.entities)
        table += Row({map.key, category.section, entity.name,
                      Coordinate(entity, &EntityFile::Position::x),
                      Coordinate(entity, &EntityFile::Position::y), entity.highlighted ? u"*" : u"",
                      entity.link, entity.description});
  return Bytes(table);
}

std::string OfHits(std::span<const Share::Hit> hits) {
  Text table = Row({u"region", u"section", u"key", u"name", u"x", u"y", u"description"});
  for (const auto& [map, category, entity] : hits)
    table += Row({map->key, category->section, entity->key, entity->name,
                  Coordinate(*entity, &EntityFile::Position::x),
                  Coordinate(*entity, &EntityFile::Position::y), entity->description});
  return Bytes(table);
}

}  // namespace Csv
