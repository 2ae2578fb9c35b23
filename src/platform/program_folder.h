// Where the program lives, and how the paths that begin with its folder become paths of this system.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The folder of the name by which the program was started: absolute, symbolic links not resolved, no
/// separator at its end unless it is the root. An installed copy can so live in a per-user folder of links
/// beside its tools and its presets. A relative name counts from the current folder at the first call.
const std::string& programFolder();

/// Puts another folder, absolute, in its place, for a process that acts for a program that lives elsewhere.
void setProgramFolder(std::string_view folder);

/// True where `path` begins with the program's folder and one of the characters `separators` after it.
bool startsInProgramFolder(std::string_view path, std::string_view separators);

/// `path` as a path of this system: where `\` stands after the program's own folder, it and every `\` after
/// it separate folders; everywhere else it is an ordinary character of a name.
std::string nativePath(std::string_view path);

}  // namespace platform
