// How the program starts and how it stops.
#pragma once

/// Builds the main window, gives the shared values their start and shows the window.
void Main();

/// Unloads all windows and ends the process at once. Nothing is saved; children run on.
[[noreturn]] void CleanUnload();
