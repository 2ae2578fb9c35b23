// The colours of the windows. Those of bars and marks say how strong a setting is.
#pragma once

#include "forms/form_data.h"

inline constexpr forms::Color kBlack = 0x000000;
inline constexpr forms::Color kBlue = 0xFF0000;
inline constexpr forms::Color kRed = 0x0000FF;
inline constexpr forms::Color kPaleGreen = 0x80FF80;
inline constexpr forms::Color kPaleYellow = 0x80FFFF;

inline constexpr forms::Color kDarkGrey = 0x404040;
inline constexpr forms::Color kGrey = 0x808080;
inline constexpr forms::Color kLightGrey = 0xC0C0C0;
inline constexpr forms::Color kPaleGrey = 0xE0E0E0;

/// Of a band's bar at slider position `value`; `min`, below 0, is the strongest boost. A cut is always green;
/// in the wide range a boost is red from 11 dB on.
inline forms::Color barColor(int value, int min) {
  if (value > min / 2.0) return kPaleGreen;
  if (value > min / 1.1) return kPaleYellow;
  return kRed;
}

/// Of the gain bar at position `value`, where `unity` leaves the source as it is.
inline forms::Color gainColor(int value, int unity) {
  if (value <= 0) return kRed;
  if (value <= unity) return kPaleGreen;
  return value < unity * 1.5 ? kPaleYellow : kRed;
}
