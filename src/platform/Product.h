#pragma once

#include "platform/Text.h"

/// Who made the program, and which version it is.
namespace Product {

inline constexpr TextView Title = u"Orvalis";
inline constexpr TextView Version = u"1.0.0 RC-27";
inline constexpr TextView Authors = u"Die Orvalis-Kartografen";
inline constexpr TextView EMail = u"kartografen@orvalis.example";
inline constexpr TextView WebSite = u"www.orvalis.example";
inline constexpr TextView Copyright = u"© 2026 Die Orvalis-Entwickler";
inline constexpr TextView Description =
    u"Interaktive Karten von Duskhold, um NPCs, Orte und Gegenstände einfach zu finden.";

}  // namespace Product
