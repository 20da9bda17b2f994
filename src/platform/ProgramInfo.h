#pragma once

#include "platform/Text.h"

/// What the program says of itself.
namespace ProgramInfo {

inline constexpr TextView Title = u"Orvalis";
/// As the build names it.
extern const TextView Version;
inline constexpr TextView Copyright = u"© 2026 Die Orvalis-Kartografen";
inline constexpr TextView Description =
    u"Interaktive Karten von Duskhold, um NPCs, Orte und Gegenstände einfach zu finden.";

/// The makers, as the about window and the language dialog name them.
inline constexpr TextView Author = u"Die Orvalis-Kartografen";
inline constexpr TextView EMail = u"kartografen@orvalis.example";
inline constexpr TextView WebSite = u"www.orvalis.example";

}  // namespace ProgramInfo
