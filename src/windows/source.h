// The choice of a source file.
#pragma once

#include <string>

/// Asks for the source and takes it over. A Cancel changes nothing but the colour of the line that shows it.
void OpenSourceFile();

/// Makes the file at `Path` the source: shows it, enables the buttons that need one, and measures it.
void UseSource(const std::string& Path);
