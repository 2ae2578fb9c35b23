// The one line of text that holds a preset: 32 slider positions, then four marked fields, parted by colons.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/app_state.h"

/// The line of a preset with these positions of the band sliders; the other fields come from `state`.
std::string presetLine(std::span<const int> positions, const AppStateRecord& state);

/// What a preset line holds, as views of it. A field whose marker is missing is empty, or none.
struct Preset {
  /// Between the colons: the positions of the bands come first. One empty element for an empty line.
  std::vector<std::string_view> elements;
  /// Option indices as text.
  std::string_view range, lowCut;
  /// Slider positions.
  std::optional<long long> bandWidth, gain;
};

Preset readPreset(std::string_view line);
