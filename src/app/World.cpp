#include "app/World.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/files/ProfileFile.h"

namespace {

Edition EditionOf(const ProfileFile& settings) {
  Edition edition;
  edition.withoutExtras = Settings::IsYes(settings, Settings::NoExtras);
  edition.withoutLanguages = Settings::IsYes(settings, Settings::NoLang);
  if (edition.withoutExtras)
    edition.text = u"Lite";
  if (edition.withoutLanguages)
    edition.text = Texts::Join(edition.text, u" ",
                               Texts::Trim(Settings::Read(settings, Settings::LocalizedString)));
  return edition;
}

}  // namespace

World::World(const Text& folder)
    : paths(folder, *cache.Get(ProgramPaths::SettingsIn(folder))),
      edition(EditionOf(*cache.Get(paths.settings))),
      language(paths) {}

Text World::ChosenLanguage() {
  const Text setting = Setting(Settings::Language);
  const TextView chosen = Texts::Trim(setting);
  return Text(chosen.empty() ? LOCAL::German : chosen);
}

std::optional<Text> World::MissingFile() const {
  for (const auto file : {&ProgramPaths::RegionFiles::data, &ProgramPaths::RegionFiles::picture})
    for (const ProgramPaths::RegionFiles& region : paths.regions)
      if (!FileSystem::FileExists(region.*file))
        return region.*file;
  return std::nullopt;
}
