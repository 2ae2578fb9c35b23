#include "platform/command_line.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/program_folder.h"

namespace platform {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kExtension = ".exe";

bool isFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

/// The file that a program's name stands for, empty where there is none.
std::string findProgram(std::string_view name) {
  const std::size_t kept = startsInProgramFolder(name, kSeparators) ? programFolder().size() : 0;
  std::string path(name);
  std::replace(path.begin() + static_cast<std::ptrdiff_t>(kept), path.end(), '\\', '/');
  if (!path.starts_with('/')) return {};
  if (isFile(path)) return path;
  if (path.ends_with(kExtension))
    path.resize(path.size() - kExtension.size());
  else
    path += kExtension;
  return isFile(path) ? path : std::string();
}

}  // namespace

std::vector<std::string> splitArguments(std::string_view commandLine) {
  std::vector<std::string> arguments;
  std::string argument;
  bool begun = false;
  bool quoted = false;
  for (std::size_t i = 0; i < commandLine.size(); ++i) {
    const char character = commandLine[i];
    if (quoted && commandLine.substr(i, 2) == "\"\"") {
      argument += '"';
      ++i;
    } else if (character == '"') {
      quoted = !quoted;
      begun = true;
    } else if (quoted || kBlanks.find(character) == std::string_view::npos) {
      argument += character;
      begun = true;
    } else if (begun) {
      arguments.push_back(std::exchange(argument, {}));
      begun = false;
    }
  }
  if (begun) arguments.push_back(std::move(argument));
  return arguments;
}

std::string quoteArgument(std::string_view argument) {
  if (!argument.empty() && argument.find_first_of(" \t\"") == std::string_view::npos)
    return std::string(argument);
  std::string quoted = "\"";
  for (const char character : argument) quoted.append(character == '"' ? 2 : 1, character);
  return quoted + '"';
}

std::string firstArgument(std::string_view commandLine) {
  std::vector<std::string> arguments = splitArguments(commandLine);
  return arguments.empty() ? std::string() : std::move(arguments.front());
}

Command parseCommand(std::string_view commandLine) {
  Command command;
  if (startsInProgramFolder(commandLine, kSeparators)) {
    const std::size_t end =
        std::min(commandLine.find_first_of(kBlanks, programFolder().size()), commandLine.size());
    command.arguments = splitArguments(commandLine.substr(end));
    command.arguments.insert(command.arguments.begin(), std::string(commandLine.substr(0, end)));
  } else {
    command.arguments = splitArguments(commandLine);
  }
  if (!command.arguments.empty()) command.program = findProgram(command.arguments.front());
  return command;
}

}  // namespace platform
