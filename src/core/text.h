// Small rules of text that hold in the whole program, whatever the locale.
#pragma once

#include <string>

/// `digits` with zeros in front up to `width` characters.
inline std::string padded(const std::string& digits, std::size_t width) {
  return std::string(digits.size() < width ? width - digits.size() : 0, '0') + digits;
}

/// Lower case of an ASCII letter, any other character as it is.
inline char lowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
