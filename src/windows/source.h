// The choice of a source file.
#pragma once

/// Asks for the source, shows it and opens the buttons that wait for one. A Cancel changes nothing but the
/// colour of the line that shows the source.
void OpenSourceFile();
