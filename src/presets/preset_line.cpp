#include "presets/preset_line.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/text.h"

namespace {

/// Gain slider positions are worth 20 percent each.
constexpr double kPercentPerPosition = 20;
/// Outside the range of every slider, and small enough for every type of number.
constexpr double kFarOut = 1000;

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The whole of `text` as a number; a plus sign is no obstacle. One that is too large is the largest of its
/// sign.
template <class Number>
std::optional<Number> parsed(std::string_view text) {
  text = trimmed(text);
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  Number number{};
  const char* const begin = text.data();
  const char* const end = begin + text.size();
  const auto result = std::from_chars(begin, end, number);
  if (result.ec == std::errc::invalid_argument || result.ptr != end) return std::nullopt;
  using Limits = std::numeric_limits<Number>;
  if (result.ec != std::errc()) return text.front() == '-' ? Limits::lowest() : Limits::max();
  return number;
}

}  // namespace

std::vector<std::string_view> presetElements(std::string_view line) {
  std::vector<std::string_view> elements;
  for (;;) {
    const auto colon = line.find(':');
    elements.push_back(line.substr(0, colon));
    if (colon == std::string_view::npos) return elements;
    line.remove_prefix(colon + 1);
  }
}

std::string_view presetField(std::string_view line, std::string_view marker, std::size_t count) {
  const auto place = findAnyCase(line, marker);
  return place == std::string_view::npos ? std::string_view() : line.substr(place + marker.size(), count);
}

std::optional<long long> wholeNumber(std::string_view text) {
  return parsed<long long>(text);
}

std::optional<long long> gainPosition(std::string_view percent) {
  const auto number = parsed<double>(percent);
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return std::llround(std::clamp(*number / kPercentPerPosition, -kFarOut, kFarOut));
}
