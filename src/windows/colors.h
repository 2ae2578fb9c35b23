// The colours of the windows. Those of bars and marks say how strong a setting is.
#pragma once

#include "forms/color.h"

inline constexpr forms::Color kBlack = 0x000000;
inline constexpr forms::Color kBlue = 0xFF0000;
inline constexpr forms::Color kRed = 0x0000FF;
inline constexpr forms::Color kPaleGreen = 0x80FF80;
inline constexpr forms::Color kPaleYellow = 0x80FFFF;

inline constexpr forms::Color kDarkGrey = 0x404040;
inline constexpr forms::Color kGrey = 0x808080;
inline constexpr forms::Color kLightGrey = 0xC0C0C0;
inline constexpr forms::Color kPaleGrey = 0xE0E0E0;
