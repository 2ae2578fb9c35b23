#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace {

constexpr std::string_view kBlanks = " \t";

/// Lower case of an ASCII letter, any other character as it is. The library's own depends on the locale.
char lowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

template <class Number>
std::optional<Number> parsed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const std::string_view rest(end, static_cast<std::size_t>(text.data() + text.size() - end));
  if (error == std::errc::invalid_argument || rest.find_first_not_of(kBlanks) != std::string_view::npos)
    return std::nullopt;
  using Limits = std::numeric_limits<Number>;
  if (error == std::errc::result_out_of_range)
    return text.starts_with('-') ? Limits::lowest() : Limits::max();
  return number;
}

}  // namespace

std::string padded(const std::string& digits, std::size_t width) {
  return std::string(digits.size() < width ? width - digits.size() : 0, '0') + digits;
}

std::size_t findAnyCase(std::string_view text, std::string_view word) {
  const auto same = [](char one, char other) { return lowerAscii(one) == lowerAscii(other); };
  const auto hit = std::search(text.begin(), text.end(), word.begin(), word.end(), same);
  return hit == text.end() ? std::string_view::npos : static_cast<std::size_t>(hit - text.begin());
}

long characterCount(const std::string& text) {
  // All bytes but those that carry a character on.
  return std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
}

std::optional<long long> wholeNumber(std::string_view text) {
  return parsed<long long>(text);
}

std::optional<double> decimalNumber(std::string_view text) {
  return parsed<double>(text);
}
