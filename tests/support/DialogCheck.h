#pragma once

class Dialog;

/// Shows the dialog and checks what every dialog promises: its client area is as designed, every
/// control stands at its place and has a name that can be spoken, no text is clipped or covers
/// another, every control is reached with Tab, and Escape closes the dialog.
void CheckDialog(Dialog& dialog);

/// Shows the dialog and checks what holds for texts of any length: nothing is clipped, covered or
/// outside, and every control has a name that can be spoken.
void CheckTexts(Dialog& dialog);
