#pragma once

#include "platform/Text.h"

#include <string>

/// Paths as the system has them (bytes) and as the program keeps, compares and shows them (texts).
namespace NativePath {

/// The path as text: UTF-8, where a byte that is none stands as the lone unit 0xDC00 + byte, so
/// that `ToBytes` gives exactly the same path back.
[[nodiscard]] Text FromBytes(std::string_view path);

/// The bytes of a path made by `FromBytes` and any text joined to it.
[[nodiscard]] std::string ToBytes(TextView path);

/// The path as a person reads it: bytes that are no UTF-8 as Windows-1252.
[[nodiscard]] Text ForDisplay(TextView path);

/// The name of a directory entry as its maker saw it: valid UTF-8, else Windows-1252.
[[nodiscard]] Text EntryName(std::string_view name);

}  // namespace NativePath
