// The command lines of the three tools, each as the one text that a process start takes.
#pragma once

#include <string>

#include "core/app_state.h"

/// A factor as plain decimal text with a point, whatever the locale: "1", "0.6", "-1.4".
std::string gainText(double gain);

/// The absolute path of an existing file as one argument of a command line, in quotes where it needs them.
/// Empty where there is no file.
std::string GetShortPath(const std::string& LongPath);

/// Measures the source.
std::string probeCommand(const std::string& folder, const AppStateRecord& state);

/// Plays the source through the gain and the chain.
std::string previewCommand(const std::string& folder, const AppStateRecord& state);

/// Renders the source through the gain and the chain into the target.
std::string renderCommand(const std::string& folder, const AppStateRecord& state);
