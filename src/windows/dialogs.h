// The settings that all file dialogs of the program share.
#pragma once

#include <string>

/// Sets up the program's one dialog: no name yet, and the program's folder to begin with. `filterIndex`
/// counts from 1.
void prepareDialog(const std::string& title, const std::string& filter, int filterIndex);
