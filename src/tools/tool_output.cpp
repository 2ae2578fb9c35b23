#include "tools/tool_output.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/text.h"

namespace {

constexpr std::string_view kDuration = "Duration:";
constexpr std::string_view kTime = "time";
constexpr std::size_t kTimeLength = 8;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// At most `count` characters from `from`; empty past the end.
std::string_view part(std::string_view text, std::size_t from, std::size_t count) {
  return from < text.size() ? text.substr(from, count) : std::string_view();
}

std::string secondsText(std::string_view time) {
  const auto seconds = secondsOfTime(time);
  return seconds ? std::to_string(*seconds) : std::string();
}

}  // namespace

std::optional<int> secondsOfTime(std::string_view text) {
  if (text.size() != kTimeLength || text[2] != ':' || text[5] != ':') return std::nullopt;
  std::array<int, 3> fields{};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const char tens = text[3 * i];
    const char ones = text[3 * i + 1];
    if (!isDigit(tens) || !isDigit(ones)) return std::nullopt;
    fields[i] = (tens - '0') * 10 + (ones - '0');
  }
  const auto [hours, minutes, seconds] = fields;
  if (hours > 23 || minutes > 59 || seconds > 59) return std::nullopt;
  return (hours * 60 + minutes) * 60 + seconds;
}

void lineEndsToBlanks(std::string& output) {
  for (auto at = output.find("\r\n"); at != std::string::npos; at = output.find("\r\n", at)) {
    output.erase(at, 1);
    output[at] = ' ';
  }
}

std::optional<std::string> durationSeconds(std::string_view output) {
  const auto hit = output.find(kDuration);
  if (hit == std::string_view::npos) return std::nullopt;
  return secondsText(part(output, hit + kDuration.size() + 1, kTimeLength));
}

std::optional<std::string> durationSecondsOfRun(std::string_view output) {
  constexpr std::size_t kLineEnd = 2;  // Can stand where the blank in front of the time does.
  std::optional<std::string> found;
  for (auto at = output.find(kDuration); at != std::string_view::npos && (!found || found->empty());
       at = output.find(kDuration, at + kDuration.size())) {
    // A tool may print more than there is memory for a second time: only what matters is copied.
    std::string piece(output.substr(at, kDuration.size() + kLineEnd + kTimeLength));
    lineEndsToBlanks(piece);
    found = durationSeconds(piece);
  }
  return found;
}

std::string_view progressTime(std::string_view piece) {
  const auto place = findAnyCase(piece, kTime);
  if (place == std::string_view::npos) return {};
  return part(piece, place + kTime.size() + 1, kTimeLength);
}

std::string percentText(float value, float max) {
  // In whole hundredths: dividing by a hundredth of `max` first would miss an exact half.
  const double hundredths = std::round(static_cast<double>(value) * 10000 / static_cast<double>(max));
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), hundredths / 100,
                                 std::chars_format::fixed, 2)
                       .ptr;
  return padded({buffer.data(), end}, 5);
}
