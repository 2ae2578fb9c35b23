// The choice of a source file.
#pragma once

#include <string>

/// Asks for the source, shows it and opens the buttons that wait for one. A Cancel changes nothing but the
/// colour of the line that shows the source.
void OpenSourceFile();

/// The form of an existing file's path that command lines carry. Empty where the file does not exist.
std::string GetShortPath(const std::string& LongPath);

/// True where the file at `path` is the source, or that of a render that still runs: by whatever name and
/// links. Nothing may write to it.
bool isSource(const std::string& path);
