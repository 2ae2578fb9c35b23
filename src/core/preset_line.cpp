#include "core/preset_line.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"

namespace {

/// Gain slider positions are worth 20 percent each.
constexpr double kPercentPerPosition = 20;
/// Outside the range of every slider, and small enough for `llround`: "9e99" fits into the four characters.
constexpr double kFarOut = 1000;

std::vector<std::string_view> elementsOf(std::string_view line) {
  std::vector<std::string_view> elements;
  for (;;) {
    const auto colon = line.find(':');
    elements.push_back(line.substr(0, colon));
    if (colon == std::string_view::npos) return elements;
    line.remove_prefix(colon + 1);
  }
}

/// At most `count` characters after the first `marker` of `line`, in any case.
std::string_view field(std::string_view line, std::string_view marker, std::size_t count) {
  const auto place = findAnyCase(line, marker);
  return place == std::string_view::npos ? std::string_view() : line.substr(place + marker.size(), count);
}

std::optional<long long> gainPosition(std::string_view percent) {
  const auto number = decimalNumber(percent);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return std::llround(std::clamp(*number / kPercentPerPosition, -kFarOut, kFarOut));
}

}  // namespace

std::string presetLine(std::span<const int> positions, const AppStateRecord& state) {
  std::string line;
  for (const int position : positions) line += std::to_string(position) + ":";
  line += "LowCut=" + std::to_string(state.LowCutIndex);
  line += ":Range=" + std::to_string(state.RangeIndex);
  line += ":BandWidth=" + padded(std::to_string(state.BandWidth), 3);
  line += ":AudioGain=" + std::to_string(std::lround(state.AudioGain * 100));
  return line;
}

Preset readPreset(std::string_view line) {
  return {.elements = elementsOf(line),
          .range = field(line, "Range=", 1),
          .lowCut = field(line, "LowCut=", 1),
          .bandWidth = wholeNumber(field(line, "BandWidth=", 3)),
          .gain = gainPosition(field(line, "AudioGain=", 4))};
}
