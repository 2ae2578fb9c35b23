// The start of a render.
#pragma once

/// Asks for the target, creates or empties it and opens the progress window, which starts the render a second
/// later. A Cancel changes nothing.
void SaveAsFile();
