// A profile file: "[section]" lines with "key=value" lines below them, which people edit by hand as well.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// Of both functions: the first section of a name counts, and in it the first line of a key. Names compare
// without case (ASCII), blanks around names and values do not count, lines that begin with ';' or '#' are
// comments. `file` is taken through `nativePath`.

/// The value of the key, or `defaultText` where the file, the section or the key is missing; of either at
/// most `mostBytes`. A value in a pair of single or double quotes comes without them.
std::string profileString(std::string_view section, std::string_view key, std::string_view defaultText,
                          std::size_t mostBytes, std::string_view file);

/// Sets the key, creating file, section and line as needed. All other lines stay byte for byte, and so do the
/// file's permissions and a symbolic link that leads to it. The new text replaces the old one as a whole or
/// not at all. False, with the old text in place, on any failure: no write access, no space, no regular file,
/// a line break in one of the texts.
bool writeProfileString(std::string_view section, std::string_view key, std::string_view value,
                        std::string_view file);

}  // namespace platform
