// The one line of text that holds a preset.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The parts of `line` between its colons; one empty part for an empty line.
std::vector<std::string_view> presetElements(std::string_view line);

/// At most `count` characters behind the first `marker` of `line`, in any case; empty without a marker.
std::string_view presetField(std::string_view line, std::string_view marker, std::size_t count);

/// A whole decimal number with at most one sign; none for any other text. One that is too
/// large for the type is the largest of its sign.
std::optional<long long> wholeNumber(std::string_view text);

/// Gain slider position for a stored percentage: the twentieth part, rounded. None where there is no number.
std::optional<long long> gainPosition(std::string_view percent);
