// Small rules of text that hold in the whole program, whatever the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// `digits` with zeros in front up to `width` characters.
std::string padded(const std::string& digits, std::size_t width);

/// Place of the first `word` in `text`, letters of ASCII in any case; npos where there is none.
std::size_t findAnyCase(std::string_view text, std::string_view word);

/// Number of characters in a UTF-8 text.
long characterCount(const std::string& text);

// Both numbers: blanks around them and a plus sign do not count, any other text is no number, and one that is
// too large for the type is the largest of its sign.

/// A whole decimal number.
std::optional<long long> wholeNumber(std::string_view text);

/// A decimal number with a point; also the words that the standard library takes for infinity and no number.
std::optional<double> decimalNumber(std::string_view text);
