#pragma once

class QEvent;
class QWidget;

/// Tooltips that show a text as it stands: names and descriptions come from files, and the
/// toolkit would take "a < b und c > d" for markup.
namespace PlainToolTip {

/// Shows the widget's `toolTip` if the event asks for it; whether it did.
bool Show(QWidget& widget, QEvent& event);

}  // namespace PlainToolTip
