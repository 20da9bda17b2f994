#include "auxwin/Documents.h"

#include "mapdata/files/FileSystem.h"
#include "mapdata/files/StringOps.h"

namespace {

constexpr TextView HelpExtension = u".chm";
constexpr TextView PageExtension = u".html";

}  // namespace

namespace Documents {

Viewer ViewerOf(TextView name) {
  const Text extension = Texts::Lower(Texts::Trim(StringOps::GetSplitField(name, 2, u".")));
  if (extension == u"exe")
    return Viewer::Program;
  if (extension == u"html")
    return Viewer::Page;
  return extension == u"chm" ? Viewer::Shell : Viewer::None;
}

Text LocalizedCopy(const LOCAL::Language& language, TextView name) {
  if (language.LanguageFolder() == LOCAL::German)
    return {};
  return Texts::Join(language.LanguageRoot(), language.LanguageFolder(), FileSystem::Separator,
                     name);
}

Text PageBeside(TextView path) {
  if (!Texts::Lower(path).ends_with(HelpExtension))
    return {};
  return Texts::Join(path.substr(0, path.size() - HelpExtension.size()), PageExtension);
}

Text Quoted(TextView path) {
  return Texts::Join(u"\"", path, u"\"");
}

bool Exists(TextView path) {
  const Text page = PageBeside(path);
  return FileSystem::FileExists(path) || (!page.empty() && FileSystem::FileExists(page));
}

Text Choose(const LOCAL::Language& language, TextView name, TextView programCopy) {
  Text localized = LocalizedCopy(language, name);
  return !localized.empty() && Exists(localized) ? localized : Text(programCopy);
}

}  // namespace Documents
