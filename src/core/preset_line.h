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

/// The parts of `line` between its colons; one empty part for an empty line.
std::vector<std::string_view> presetElements(std::string_view line);

/// At most `count` characters after the first `marker` of `line`, in any case; empty without a marker.
std::string_view presetField(std::string_view line, std::string_view marker, std::size_t count);

/// Gain slider position for a stored percentage: the twentieth part, rounded. None where there is no number.
std::optional<long long> gainPosition(std::string_view percent);
