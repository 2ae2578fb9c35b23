// Colours as the program writes them: red in the low byte, blue in the high byte.
#pragma once

#include <cstdint>

namespace forms {

/// A colour number 0xBBGGRR, or one of the desktop's own colours below.
using Color = std::uint32_t;

/// The face of buttons and of every surface without a colour of its own.
inline constexpr Color kButtonFace = 0x8000000F;
/// Text on a button face.
inline constexpr Color kButtonText = 0x80000012;
/// Background of boxes that take text.
inline constexpr Color kWindowBackground = 0x80000005;
/// Text on a window background.
inline constexpr Color kWindowText = 0x80000008;

}  // namespace forms
