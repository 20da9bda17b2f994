#include "app/StartUp.h"

#include "i18n/LOCAL.h"
#include "i18n/WindowTexts.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Settings.h"
#include "platform/NativePath.h"
#include "platform/ProgramInfo.h"

#include <array>

using FileSystem::Separator;
using Texts::Join;
using WindowTexts::Row;

namespace {

constexpr std::array<TextView, 5> RegionStems = {u"arvenna", u"skaldor", u"sarrakh", u"ostrakh",
                                                 u"ancestors"};

}  // namespace

namespace StartUp {

ProgramPaths ComposePaths(IniOps::Snapshot& files, const Text& programFolder) {
  ProgramPaths paths;
  const Text base = Join(programFolder, Separator);
  const auto folder = [&](const Settings::Entry& entry) {
    return Join(base, Settings::Read(files.File(paths.settings), entry), Separator);
  };
  paths.programFolder = base;
  paths.settings = Join(base, u"orvalis.ini");
  paths.extrasFolder = folder(Settings::ExtrasFolder);
  paths.picturesFolder = folder(Settings::PicturesFolder);
  paths.languageRoot = folder(Settings::LanguageRoot);
  paths.infoData = Join(base, u"info.data");
  for (size_t i = 0; i < RegionStems.size(); ++i)
    paths.regions[i] = {Join(base, RegionStems[i], u".data"), Join(base, RegionStems[i], u".jpg")};
  return paths;
}

Edition ReadEdition(IniOps::Snapshot& files, const ProgramPaths& paths) {
  Edition edition;
  edition.withoutExtras = Settings::IsYes(files.File(paths.settings), Settings::NoExtras);
  edition.withoutLanguages = Settings::IsYes(files.File(paths.settings), Settings::NoLang);
  if (edition.withoutExtras)
    edition.text = u"Lite";
  if (edition.withoutLanguages)
    edition.text =
        Join(edition.text, u" ",
             Texts::Trim(Settings::Read(files.File(paths.settings), Settings::LocalizedString)));
  return edition;
}

Text Caption(const Edition& edition) {
  return Join(ProgramInfo::Title, u" ", ProgramInfo::Version, u" ", edition.text);
}

Text ChosenLanguage(IniOps::Snapshot& files, const ProgramPaths& paths) {
  const Text setting = Settings::Read(files.File(paths.settings), Settings::Language);
  const TextView chosen = Texts::Trim(setting);
  return Text(chosen.empty() ? LOCAL::German : chosen);
}

std::optional<Text> MissingFile(const ProgramPaths& paths) {
  for (const auto file : {&ProgramPaths::Region::data, &ProgramPaths::Region::picture})
    for (const ProgramPaths::Region& region : paths.regions)
      if (!FileSystem::FileExists(region.*file))
        return region.*file;
  return std::nullopt;
}

Message FileNotFound(IniOps::Snapshot& files, const ProgramPaths& paths, const Text& languageFolder,
                     const Text& missing) {
  LOCAL::Language language(paths.infoData);
  language.StartUp(files, paths.languageRoot, languageFolder);
  const Text text = Texts::ReplaceAll(language.Lookup(files, Row(u"ui", u"FileNotFound")),
                                      TextRow::Placeholder, NativePath::ForDisplay(missing));
  return {Texts::ReplaceAll(text, u"\\n", u"\r\n"),
          language.Lookup(files, Row(u"ui", u"FileNotFoundCaption"))};
}

}  // namespace StartUp
