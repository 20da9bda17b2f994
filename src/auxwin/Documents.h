#pragma once

#include "i18n/LOCAL.h"
#include "platform/Text.h"

/// Which copy of a document is opened, and with what.
namespace Documents {

/// What shows a document, chosen by the extension of its name.
enum class Viewer { None, Program, Page, Shell };

/// The viewer for a name: by the text between its first and its second "." without blanks, in any
/// letter case: "exe" a program, "html" a page, "chm" the desktop; anything else nothing.
[[nodiscard]] Viewer ViewerOf(TextView name);

/// The path of the copy in the chosen language's folder; "" while that language is German, which
/// has no folder.
[[nodiscard]] Text LocalizedCopy(const LOCAL::Language& language, TextView name);

/// The page of HTML of the same name beside a help file, shown where nothing shows help files; ""
/// for any other path.
[[nodiscard]] Text PageBeside(TextView path);

/// The path between double quotes, as the desktop is asked for documents.
[[nodiscard]] Text Quoted(TextView path);

/// Whether the document, or the page that stands for it, is there and not empty.
[[nodiscard]] bool Exists(TextView path);

/// The localized copy if it exists, else the program's own at `programCopy`.
[[nodiscard]] Text Choose(const LOCAL::Language& language, TextView name, TextView programCopy);

}  // namespace Documents
