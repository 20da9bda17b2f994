#pragma once

#include "controls/DialogDesign.h"

class QWidget;

/// The widget for a control of a design, with its name, font and design text; its place is left
/// to the caller.
[[nodiscard]] QWidget* MakeControl(const ControlDesign& design, QWidget* parent);
