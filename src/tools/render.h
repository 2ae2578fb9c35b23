// Rendering the source to a new file.
#pragma once

/// Asks for the target, creates or empties it and opens the progress window, which starts the render a second
/// later. A Cancel changes nothing.
void SaveAsFile();

/// What a target holds until a render writes to it: a short path can be had only of a file that exists.
inline constexpr auto kRenderMarker = "<%TEMPOutPutData%>\r\n";
