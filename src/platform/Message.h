#pragma once

#include "platform/Text.h"

/// What a message box says.
struct Message {
  Text text;
  Text caption;
};
