// The one text of a command line, split into what a child process is given.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Arguments of `commandLine`, in order. Blanks and tabs separate; a pair of double quotes groups and is
/// removed, and what touches it belongs to the same argument; inside quotes two double quotes stand for one.
/// A quote that is never closed groups to the end. No text makes it fail.
std::vector<std::string> splitArguments(std::string_view commandLine);

/// `argument` in a form that `splitArguments` gives back as one argument: unchanged where it is not empty and
/// has no blank, tab or double quote, else in double quotes with inner quotes doubled.
std::string quoteArgument(std::string_view argument);

/// The first argument of `commandLine`, such as the path in a quoted one. Empty where there is none.
std::string firstArgument(std::string_view commandLine);

/// A command line taken apart for a process start.
struct Command {
  /// Path of the tool's file, empty where there is no such file.
  std::string program;
  /// All arguments, the program's name as written first.
  std::vector<std::string> arguments;
};

/// Splits `commandLine` and finds its program. A name that begins with the program's own folder is read up to
/// the first blank or tab after that folder, so that the folder's name may have blanks. `\` separates
/// folders in the program's name, and ".exe" may be missing or too much. Nothing is looked up anywhere else:
/// not in the search path, and a name that is not absolute finds nothing.
Command parseCommand(std::string_view commandLine);

}  // namespace platform
