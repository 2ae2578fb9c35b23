// Copying text, and the button that says for a while that it did.
#pragma once

#include <string>
#include <string_view>

#include "forms/buttons.h"

/// Puts `text` on the clipboard and has `button` say so.
void CopyToClipboard(forms::CommandButton& button, const std::string& text);

/// Gives `button` its caption back where it says that something was copied; any other caption stays.
void EndCopyNotice(forms::CommandButton& button, std::string_view caption);
