#pragma once

#include "platform/Text.h"

/// The name of the file that a map is printed to.
namespace PrintName {

/// The name for a map under this heading, such as "Arvenna - Lehrer.pdf": without what the file
/// systems of the world refuse, and no longer than all of them allow. "Orvalis.pdf" without a
/// heading.
[[nodiscard]] Text Of(TextView heading);

}  // namespace PrintName
