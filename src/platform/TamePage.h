#pragma once

#include "platform/Text.h"

/// Pages of HTML for a viewer whose layout takes far longer than the page is long when words,
/// tables or numbers are of a size that nobody writes.
namespace TamePage {

/// The page with its text whole: overlong words may break anywhere, tags that nest too deep or are
/// too many are left out, and so are comments and the last digits of huge numbers. A page over
/// 256 Ki characters ends there. What people write comes back as it is.
[[nodiscard]] Text Of(TextView page);

}  // namespace TamePage
