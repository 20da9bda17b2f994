#pragma once

#include "app/World.h"
#include "platform/Message.h"
#include "platform/Text.h"

/// What the program says of itself, put together from parts.
namespace ProgramTexts {

/// The main window's caption: title, version and edition, each after a blank.
[[nodiscard]] Text Caption(const Edition& edition);

/// The message for a missing file, in the language of that folder, which becomes the current one.
[[nodiscard]] Message FileNotFound(World& world, const Text& languageFolder, const Text& missing);

}  // namespace ProgramTexts
