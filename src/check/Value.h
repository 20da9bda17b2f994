#pragma once

#include "mapdata/world/EntityFile.h"
#include "platform/Text.h"

#include <optional>
#include <string>
#include <string_view>

/// What somebody meant by the value of an entity's line.
namespace Value {

/// The position of a value that all readers understand alike: two whole numbers, and perhaps a
/// mark. None for any other.
[[nodiscard]] std::optional<EntityFile::Position> Plain(std::string_view value);

/// A comment behind a position: where the position ends. None if there is none.
[[nodiscard]] std::optional<size_t> CommentBehind(std::string_view value);

/// The value with commas where other separators stand between two numbers; none if it isn't of
/// that form.
[[nodiscard]] std::optional<std::string> WithCommas(std::string_view value);

/// The value without the words behind its two numbers; none if it isn't of that form.
[[nodiscard]] std::optional<std::string> DigitsAlone(std::string_view value);

/// Whether what stands behind its numbers are units of length in pictures.
[[nodiscard]] bool HasUnits(std::string_view value);

/// The value with plain spaces for no-break ones; none if they don't all stand around numbers.
[[nodiscard]] std::optional<std::string> WithPlainSpaces(std::string_view value);

/// The value without the fractions behind decimal commas; none if it has no decimal comma.
[[nodiscard]] std::optional<std::string> WithoutDecimalCommas(std::string_view value);

/// Field `n` of the value, counted from 1, without blanks.
[[nodiscard]] std::string_view Field(std::string_view value, size_t n);

/// Whether the field is a number, fractions allowed.
[[nodiscard]] bool IsNumber(std::string_view field);

}  // namespace Value
