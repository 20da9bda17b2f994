#pragma once

#include "platform/Text.h"

/// The "&" signs of captions: one stands before the letter that becomes the access key, two show
/// one.
namespace AccessKey {

/// The caption as it is shown where it has no access key, and as it is spoken.
[[nodiscard]] Text Without(TextView caption);

}  // namespace AccessKey
