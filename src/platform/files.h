// What the program asks of the file system beside its profile file.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// True where both paths lead to one existing file, by whatever names and links.
bool sameFile(const std::string& one, const std::string& other);

/// Creates or empties the file and writes `content`. False where that fails; never waits for a reader of a
/// named pipe.
bool writeFile(const std::string& path, std::string_view content);

/// Removes the name of a regular file, or of the one that a symbolic link leads to; whoever has the file open
/// keeps it, and the link stays. False where that fails, and for whatever is no regular file.
bool removeFile(const std::string& path);

}  // namespace platform
