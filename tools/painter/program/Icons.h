#pragma once

#include <QImage>

namespace Program {

/// The program's icon, a map with a marker. Small sizes carry fewer details, not smaller ones.
[[nodiscard]] QImage PaintProgramIcon(int side);

/// What a sign on a button, on a list's rows or in the tree of perks stands for.
enum class Sign { Info, Document, Fight, Hunting, Magic, Smith, Thief, Alchemy, Other, Perk, Root };

/// A sign on a transparent ground, 16 x 16 times `scale` pixels.
[[nodiscard]] QImage PaintSign(Sign sign, int scale);

/// `None` is for a language without a picture.
enum class Flag { German, English, French, None };

/// A language's flag, 16 x 16 times `scale` pixels, opaque.
[[nodiscard]] QImage PaintFlag(Flag flag, int scale);

}  // namespace Program
