#pragma once

#include "controls/DialogDesign.h"

class QWidget;

/// The widget for a control of a design, with its name, font and text; the caller places it.
[[nodiscard]] QWidget* MakeControl(const ControlDesign& design, QWidget* parent);
