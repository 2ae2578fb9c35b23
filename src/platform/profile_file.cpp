#include "platform/profile_file.h"

#include <ctype.h>
#include <fcntl.h>
#include <locale.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <system_error>

#include "platform/descriptor.h"
#include "platform/program_folder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLineEnd = "\r\n";

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool sameName(std::string_view one, std::string_view other) {
  // The user's own locale may have other pairs of letters: a Turkish one lowers I to a dotless letter.
  static const locale_t kAscii = newlocale(LC_CTYPE_MASK, "C", nullptr);
  const auto lower = [](char c) { return tolower_l(static_cast<unsigned char>(c), kAscii); };
  return std::ranges::equal(trimmed(one), trimmed(other), {}, lower, lower);
}

/// Where the first line of `text` begins: after the mark that some editors put in front of UTF-8.
std::size_t firstLine(std::string_view text) {
  return text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
}

/// What a profile file holds of one section and one key, as offsets into its text.
struct Place {
  bool hasSection = false;
  /// After the last line of the section that is not blank.
  std::size_t sectionEnd = 0;
  bool hasKey = false;
  std::size_t keyBegin = 0;
  /// After the line of the key, its line end included.
  std::size_t keyEnd = 0;
};

Place findKey(std::string_view text, std::string_view section, std::string_view key) {
  Place place;
  for (std::size_t begin = firstLine(text), end = 0; begin < text.size(); begin = end) {
    end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    const std::string_view line = trimmed(text.substr(begin, end - begin));
    const std::size_t bracket = line.starts_with('[') ? line.find(']') : std::string_view::npos;
    if (bracket != std::string_view::npos) {
      if (place.hasSection) break;
      place.hasSection = sameName(line.substr(1, bracket - 1), section);
    }
    if (!place.hasSection || line.empty()) continue;
    place.sectionEnd = end;
    const std::size_t equals = line.find('=');
    // A comment line needs no test: with its ';' or '#' in front it is no name that anybody asks for.
    if (!place.hasKey && equals != std::string_view::npos && sameName(line.substr(0, equals), key)) {
      place.hasKey = true;
      place.keyBegin = begin;
      place.keyEnd = end;
    }
  }
  return place;
}

/// `text` with the line `line` put at `at`, and the line in front of it ended where it was not.
void insertLine(std::string& text, std::size_t at, std::string line) {
  if (at > firstLine(text) && text[at - 1] != '\n') line.insert(0, kLineEnd);
  text.insert(at, line.append(kLineEnd));
}

/// Puts the key's new value into `text`.
void setKey(std::string& text, std::string_view section, std::string_view key, std::string_view value) {
  const Place place = findKey(text, section, key);
  const std::string line = std::string(key).append("=").append(value);
  if (place.hasKey) {
    const std::string_view old = std::string_view(text).substr(place.keyBegin, place.keyEnd - place.keyBegin);
    const std::size_t lineEnd = old.ends_with(kLineEnd) ? 2 : old.ends_with('\n') ? 1 : 0;
    text.replace(place.keyBegin, old.size() - lineEnd, line);
  } else if (place.hasSection) {
    insertLine(text, place.sectionEnd, line);
  } else {
    const std::string header = std::string("[").append(section).append("]").append(kLineEnd);
    insertLine(text, text.size(), header + line);
  }
}

/// The file's whole text and what else there is to know of it.
struct Contents {
  bool exists = false;
  std::string text;
  struct stat status = {};
};

/// Reads a regular file opened with `access`; one that does not exist is empty. Nothing on any failure, so
/// that presets which cannot be read are not taken for none.
std::optional<Contents> readContents(const fs::path& file, int access) {
  Contents contents;
  const Descriptor input(open(file.c_str(), access | O_NONBLOCK | O_CLOEXEC));
  if (!input.isOpen()) return errno == ENOENT ? std::optional(contents) : std::nullopt;
  if (fstat(input.number(), &contents.status) != 0 || !S_ISREG(contents.status.st_mode)) return std::nullopt;
  contents.exists = true;
  char buffer[16384];
  ssize_t count = 0;
  while ((count = read(input.number(), buffer, sizeof buffer)) != 0)
    if (count > 0)
      contents.text.append(buffer, static_cast<std::size_t>(count));
    else if (errno != EINTR)
      return std::nullopt;
  return contents;
}

/// The file that a chain of symbolic links ends at, whether it exists or not; empty where the chain has no
/// end.
fs::path linkTarget(fs::path file) {
  constexpr int mostLinks = 40;  // As many as the system follows itself.
  for (int i = 0; i < mostLinks; ++i) {
    std::error_code error;
    const fs::path next = fs::read_symlink(file, error);
    if (error) return file;
    file = file.parent_path() / next;
  }
  return {};
}

/// Gives a new file the owner and the permissions of the one that it replaces, or those of any new file.
bool takePermissions(const Descriptor& file, const Contents& old) {
  if (!old.exists) {
    const mode_t mask = umask(0);
    umask(mask);
    return fchmod(file.number(), 0666 & ~mask) == 0;
  }
  // Only root can give a file away. For anybody else a file of another owner becomes their own.
  const bool keptOwner = fchown(file.number(), old.status.st_uid, old.status.st_gid) == 0;
  const mode_t mode = old.status.st_mode & 07777;
  return fchmod(file.number(), keptOwner ? mode : mode & 0777) == 0;
}

/// Makes a rename in `folder` last. Some file systems cannot; the rename itself has been done all the same.
void flushFolder(const fs::path& folder) {
  const Descriptor handle(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.isOpen()) fsync(handle.number());
}

/// Puts `text` in the place of `file`, in one step that a crash cannot cut in two.
bool replaceFile(const fs::path& file, const Contents& old, std::string_view text) {
  std::string temporary = file.string() + ".XXXXXX";
  Descriptor output(mkostemp(temporary.data(), O_CLOEXEC));
  if (!output.isOpen()) return false;
  if (writeAll(output, text) && takePermissions(output, old) && fsync(output.number()) == 0 &&
      output.close() && std::rename(temporary.c_str(), file.c_str()) == 0) {
    flushFolder(file.parent_path());
    return true;
  }
  unlink(temporary.c_str());
  return false;
}

std::string_view withoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::string profileString(std::string_view section, std::string_view key, std::string_view defaultText,
                          std::size_t mostBytes, std::string_view file) {
  const std::optional<Contents> contents = readContents(nativePath(file), O_RDONLY);
  const std::string_view text = contents ? std::string_view(contents->text) : std::string_view();
  const Place place = findKey(text, section, key);
  std::string_view value = defaultText;
  if (place.hasKey) {
    const std::string_view line = text.substr(place.keyBegin, place.keyEnd - place.keyBegin);
    value = withoutQuotes(trimmed(line.substr(line.find('=') + 1)));
  }
  return std::string(value.substr(0, mostBytes));
}

bool writeProfileString(std::string_view section, std::string_view key, std::string_view value,
                        std::string_view file) {
  for (const std::string_view part : {section, key, value})
    if (part.find_first_of("\r\n") != std::string_view::npos) return false;
  const fs::path target = linkTarget(nativePath(file));
  // Opened for writing too, although a rename needs no such right: what is read-only stays as it is.
  const std::optional<Contents> old = readContents(target, O_RDWR);
  if (!old) return false;
  std::string text = old->text;
  setKey(text, section, key, value);
  return replaceFile(target, *old, text);
}

}  // namespace platform
