// The command lines of the three tools, each as the one text that a process start takes.
#pragma once

#include <string>

#include "core/app_state.h"

/// A factor as plain decimal text with a point, whatever the locale: "1", "0.6", "-1.4".
std::string gainText(double gain);

/// The absolute path of an existing file, in quotes where a command line needs them. Empty where there is no
/// file.
std::string GetShortPath(const std::string& LongPath);

/// Measures the source; paths are short paths.
std::string probeCommand(const std::string& folder, const AppStateRecord& state);

/// Plays the source through the chain.
std::string previewCommand(const std::string& folder, const AppStateRecord& state);

/// Renders the source through the chain into the target.
std::string renderCommand(const std::string& folder, const AppStateRecord& state);
