#pragma once

#include "check/Finding.h"

/// How mistakes are mended.
namespace Edits {

/// Other bytes for a part of the file.
[[nodiscard]] Edit Replaced(const Source& source, std::string_view part, std::string bytes);

/// The lines of one section moved to the end of another one above it, the header gone.
[[nodiscard]] std::vector<Edit> Merged(const Source& source, const Source::Section& into,
                                       const Source::Section& from);

/// The whole line gone, with its end.
[[nodiscard]] Edit WithoutLine(const Source& source, const Source::Line& line);

/// The bytes of the file with those of the edits that are of this file. Edits that overlap an
/// earlier one are left out.
[[nodiscard]] std::string Applied(const Source& source, std::vector<Edit> edits);

}  // namespace Edits
