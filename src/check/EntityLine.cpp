#include "check/EntityLine.h"

#include "check/Words.h"

using Texts::Join;
using Words::At;
using Words::Decoded;

bool EntityLine::IsFound() const {
  const auto value = source_.File().Value(Section().name, entity_.name);
  return value && value->data() == Value().data();
}

bool EntityLine::IsSearched() const {
  return Section().listed && !entity_.IsDisabled() && !EntityFile::IsHiddenFromSearch(entity_.name);
}

const Index::Category* EntityLine::Category() const {
  return index_.CategoryOf(entity_);
}

Text EntityLine::SeenOnMap() const {
  const Index::Category* category = Category();
  if (!category)
    return u"no menu shows it";
  const EntityFile::Entity read = Read();
  if (!category->isList)
    return Join(u"the marker stands at ", At(EntityFile::MarkerPosition(read)));
  const auto picked = EntityFile::PickedPosition(read);
  return picked ? Join(u"picked from the list it stands at ", At(*picked))
                : Text(u"picked from the list it shows nothing");
}

Text EntityLine::SeenBySearch() const {
  const auto found = EntityFile::FoundPosition(Read());
  return found ? Join(u"the search shows it at ", At(*found))
               : Text(u"the first search ends the program");
}

Text EntityLine::Seen() const {
  return IsSearched() ? Join(SeenOnMap(), u", ", SeenBySearch()) : SeenOnMap();
}

Finding& EntityLine::Tell(Findings& findings, Rules::Id rule, std::string_view words,
                          Text message) const {
  Finding& finding = findings.Add(rule, source_, words);
  finding.section = Decoded(Section().name);
  finding.key = Decoded(entity_.name);
  finding.message = std::move(message);
  finding.consequence = Seen();
  return finding;
}
