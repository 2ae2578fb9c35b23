// What the program reads out of the tools' output, and the numbers that it makes of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Seconds from 00:00:00 to `hh:mm:ss`, hours up to 23. None for any other text, a shorter one included.
std::optional<int> secondsOfTime(std::string_view text);

/// Each carriage return with its line feed becomes one blank.
void lineEndsToBlanks(std::string& output);

/// Whole seconds after the first "Duration:" of `output`, as decimal digits, or the empty text where no time
/// stands there. None without a "Duration:".
std::optional<std::string> durationSeconds(std::string_view output);

/// The same from a whole run's output, in which a tag's text can hold the word before the tool's own line
/// does: a "Duration:" that no time follows is passed over as long as another comes.
std::optional<std::string> durationSecondsOfRun(std::string_view output);

/// The 8 characters after the first "time" of `piece`, in any case, and the one character that follows it;
/// or what there is of them.
std::string_view progressTime(std::string_view piece);

/// `value` in percent of `max`, which is above 0: at least two digits before the point and two after it,
/// "04.50", "100.00".
std::string percentText(float value, float max);
