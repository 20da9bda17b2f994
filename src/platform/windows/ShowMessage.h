#pragma once

#include "platform/Message.h"

class QWidget;

/// The icon of a message box.
enum class MessageIcon { Information, Critical };

/// Shows a modal message box with an OK button and waits for it. The text is shown as it stands,
/// never as markup.
void ShowMessage(QWidget* parent, MessageIcon icon, const Message& message);
