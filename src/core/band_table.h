// The 32 bands of the equalizer, and the filter that stands in for the lowest three.
#pragma once

#include <array>
#include <string_view>

/// Number of bands.
inline constexpr int kBands = 32;

/// With low cut on, the bands below this index are not in the chain.
inline constexpr int kFirstBandAboveLowCut = 3;

/// One band: its caption on the window, and its filter up to the width.
struct Band {
  std::string_view caption;
  std::string_view filterHead;
};

/// In the order of rising frequency, which is the order of the chain.
inline constexpr std::array<Band, kBands> BandTable{{
    {"19hz", "equalizer=f=19:width_type=o:width="},   {"20hz", "equalizer=f=20:width_type=o:width="},
    {"25hz", "equalizer=f=25:width_type=o:width="},   {"31.5hz", "equalizer=f=31.5:width_type=o:width="},
    {"33hz", "equalizer=f=33:width_type=o:width="},   {"40hz", "equalizer=f=40:width_type=o:width="},
    {"50hz", "equalizer=f=50:width_type=o:width="},   {"63hz", "equalizer=f=63:width_type=o:width="},
    {"75hz", "equalizer=f=75:width_type=o:width="},   {"80hz", "equalizer=f=80:width_type=o:width="},
    {"125hz", "equalizer=f=125:width_type=o:width="}, {"160hz", "equalizer=f=160:width_type=o:width="},
    {"250hz", "equalizer=f=250:width_type=o:width="}, {"313hz", "equalizer=f=313:width_type=o:width="},
    {"400hz", "equalizer=f=400:width_type=o:width="}, {"450hz", "equalizer=f=450:width_type=o:width="},
    {"500hz", "equalizer=f=500:width_type=o:width="}, {"630hz", "equalizer=f=630:width_type=o:width="},
    {"1K", "equalizer=f=1000:width_type=o:width="},   {"1.25K", "equalizer=f=1250:width_type=o:width="},
    {"1.6K", "equalizer=f=1600:width_type=o:width="}, {"2K", "equalizer=f=2000:width_type=o:width="},
    {"2.5K", "equalizer=f=2500:width_type=o:width="}, {"3.15K", "equalizer=f=3150:width_type=o:width="},
    {"4K", "equalizer=f=4000:width_type=o:width="},   {"5K", "equalizer=f=5000:width_type=o:width="},
    {"6.3K", "equalizer=f=6300:width_type=o:width="}, {"8K", "equalizer=f=8000:width_type=o:width="},
    {"10K", "equalizer=f=10000:width_type=o:width="}, {"12.5K", "equalizer=f=12500:width_type=o:width="},
    {"16K", "equalizer=f=16000:width_type=o:width="}, {"20K", "equalizer=f=20000:width_type=o:width="},
}};

/// Stands first in the chain with low cut on: 1 Hz, 25 octaves wide, 5 dB down. No control changes it.
inline constexpr std::string_view kLowCutFilter = "equalizer=f=1:width_type=o:width=25:g=-5";
