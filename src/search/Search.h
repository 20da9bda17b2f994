#pragma once

#include "app/World.h"
#include "mapdata/files/IniOps.h"
#include "platform/Message.h"
#include "platform/Text.h"
#include "search/EntityCache.h"

#include <cstddef>
#include <variant>

namespace LOCAL {
class Language;
}

/// Finding an entity of any region by the start of its name or a part of its description. Letter
/// case and blanks count, and a search never starts over by itself.
namespace Search {

/// What is searched: the start of names, or anything within descriptions.
enum class Mode { Names = 0, Descriptions = 1 };

/// What the search keeps while the program runs.
struct State {
  /// The term of the last search from the dialog, as typed.
  Text SearchTerm;
  /// Chosen in the dialog, also in a cancelled one.
  Mode SearchMode = Mode::Names;
  /// The record found last; stays when nothing is found.
  size_t LastFoundIndex = 0;
  /// Filled by the first search.
  EntityCache Cache;
};

/// The record found.
struct Hit {
  size_t index;
};

/// No record is left that fits.
struct NothingFound {};

/// An invalid link leaves nothing to go on with: the program tells of it and ends.
using Outcome = std::variant<Hit, NothingFound, InvalidLink>;

/// Searches all entities from the first one for `term` in the mode of the state; fills the cache
/// before if it is empty. Names are compared as they are shown in the language of this moment.
[[nodiscard]] Outcome FindFirst(State& state, IniOps::Snapshot& files, const World& world,
                                TextView term);

/// Searches on behind the record found last. Names are compared as they were shown when the cache
/// was filled.
[[nodiscard]] Outcome FindNext(State& state);

/// Tells that the term is nowhere, in the language of the moment.
[[nodiscard]] Message NotFoundMessage(const State& state, IniOps::Snapshot& files,
                                      const LOCAL::Language& language);

/// Tells which link leads nowhere, for the author of the data file.
[[nodiscard]] Message InvalidLinkMessage(const InvalidLink& link);

/// The heading of a record that is shown: what was searched for.
[[nodiscard]] Text ResultHeading(const State& state, IniOps::Snapshot& files,
                                 const LOCAL::Language& language);

}  // namespace Search
