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
  const Text name = Decoded(entity_.name);
  return Section().listed && !EntityFile::IsDisabled(name) && !EntityFile::IsHiddenFromSearch(name);
}

const Index::Category* EntityLine::Category() const {
  return index_.CategoryOf(entity_.region, Section().name);
}

Text EntityLine::SeenOnMap() const {
  const Index::Category* category = Category();
  if (!category)
    return u"no menu shows it";
  if (category->isList) {
    const auto picked = EntityFile::ReadPicked(index_.files, source_.path, Decoded(Section().name),
                                               Decoded(entity_.name));
    return picked ? Join(u"picked from the list it stands at ", At(*picked))
                  : Text(u"picked from the list it shows nothing");
  }
  const auto& markers = index_.Markers(entity_.region, entity_.section);
  return Join(u"the marker stands at ", At(markers[entity_.number].position));
}

Text EntityLine::SeenBySearch() const {
  const auto found = EntityFile::ReadFound(source_.File(), Section().name, entity_.name);
  return found.invalidLink ? Text(u"the first search ends the program")
                           : Join(u"the search shows it at ", At(found.position));
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
