#pragma once

#include "i18n/InterfaceTexts.h"
#include "i18n/LOCAL.h"
#include "i18n/TextRow.h"
#include "mapdata/files/IniOps.h"
#include "platform/Text.h"

#include <span>
#include <vector>

/// The languages that a user can choose from, and the choice itself.
namespace LanguageList {

/// A language as the list names it, with the paths of its file and its flag; either may be missing.
struct Entry {
  Text name;
  Text file;
  Text flag;
};

/// What a language says of itself.
struct Details {
  Text language;
  Text version;
  Text author;
  Text website;
  Text email;
};

/// The entries of the folder, files and folders alike, hidden ones left out: "." and ".." first,
/// an empty text last; empty if there is no such folder. The path, with a separator at its end,
/// stands in front of all but the last if `blnWithPath`.
[[nodiscard]] std::vector<Text> EnumFoldersEx(TextView strPath, bool blnWithPath);

/// Every entry of the language root as a language; "?" is the name of one that declares none.
[[nodiscard]] std::vector<Entry> Read(IniOps::Snapshot& files, TextView languageRoot);

/// The details that a language file declares, each "" if it is missing; those of the built-in
/// language for `LOCAL::BuiltIn`.
[[nodiscard]] Details ReadDetails(IniOps::Snapshot& files, const Text& file);

/// The path of a language's flag, for that of its language file.
[[nodiscard]] Text FlagOf(TextView languageFile);

/// Makes the language of the file (or `LOCAL::BuiltIn`) the current one, stores that in the
/// settings, builds its table of entity names, and gives the main window's texts in it.
[[nodiscard]] InterfaceTexts Select(IniOps::Snapshot& files, LOCAL::Language& language,
                                    TextView settings, const Text& file,
                                    std::span<const TextRow> menus);

}  // namespace LanguageList
