#pragma once

#include "platform/Text.h"

#include <string>

/// What a text that is to be opened stands for. It may come from a file: only what is known to be
/// harmless is accepted, and nothing that a program could take for an option.
namespace Addresses {

/// What can be done with a text that shall be opened.
enum class Kind { Web, Mail, Path, Refused };

/// A classified text: an address ready to be handed over (ASCII, as in a URI), or a path.
struct Target {
  Kind kind = Kind::Refused;
  std::string address;
  Text path;
};

/// Classifies the text without blanks and one pair of double quotes around it. Addresses of the web
/// stay as they are but for characters that no URI may hold; one without scheme that begins with
/// "www." gets "http://". A mail address can't bring headers of its own. Any other scheme, and
/// what begins with "-", is refused.
[[nodiscard]] Target Classify(TextView uri);

}  // namespace Addresses
