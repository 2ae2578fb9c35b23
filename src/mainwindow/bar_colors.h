// The three stages of the bars.
#pragma once

#include "forms/color.h"

inline constexpr forms::Color kPaleGreen = 8454016;
inline constexpr forms::Color kPaleYellow = 8454143;
inline constexpr forms::Color kRed = 255;
inline constexpr forms::Color kBlack = 0;
