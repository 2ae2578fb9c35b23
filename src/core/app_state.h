// The one record of values that the whole program shares.
#pragma once

#include <array>
#include <string>

#include "core/band_table.h"

/// What the controls stand for, kept up to date by their events, and what files are in use.
struct AppStateRecord {
  std::string EqString;                          ///< the filter chain as last composed, empty at start
  std::array<std::string, kBands> BandGainText;  ///< what goes after `g=`, in dB
  int BandWidth = 0;                             ///< 1 to 254, octaves in the chain
  double AudioGain = 0;                          ///< linear factor, -2 to 2 in steps of 0.2
  bool LowCutOn = false;
  int LowCutIndex = 1;  ///< as the window shows at start; 0 is on, 1 is off
  int RangeIndex = 0;   ///< 0 is +/- 12 dB, 1 is +/- 6 dB
  int PresetNumber = 0;
  std::string PresetFilePath;
  int PresetPass = 0;
  std::string SourcePathShort;
  std::string SourceSeconds;  ///< decimal digits, or empty
  std::string SavePath;
  std::string SavePathShort;
  bool WindowMinimised = false;
  int SweepTicks = 0;
};

inline AppStateRecord AppState;

/// Sets the bandwidth to 1 and every band's gain text to "0".
void SetBandDefaults();
