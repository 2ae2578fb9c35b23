// Small rules of text that hold in the whole program, whatever the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// `digits` with zeros in front up to `width` characters.
inline std::string padded(const std::string& digits, std::size_t width) {
  return std::string(digits.size() < width ? width - digits.size() : 0, '0') + digits;
}

/// Lower case of an ASCII letter, any other character as it is.
inline char lowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Place of the first `word` in `text`, letters of ASCII in any case; npos where there is none.
inline std::size_t findAnyCase(std::string_view text, std::string_view word) {
  const auto same = [](char one, char other) { return lowerAscii(one) == lowerAscii(other); };
  const auto hit = std::search(text.begin(), text.end(), word.begin(), word.end(), same);
  return hit == text.end() ? std::string_view::npos : static_cast<std::size_t>(hit - text.begin());
}
