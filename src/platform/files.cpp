#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/command_line.h"
#include "platform/descriptor.h"

namespace platform {

std::string shortPath(const std::string& longPath) {
  struct stat status = {};
  std::error_code error;
  if (stat(longPath.c_str(), &status) != 0) return {};
  const std::string path = std::filesystem::absolute(longPath, error).string();
  return error ? std::string() : quoteArgument(path);
}

std::string longPath(std::string_view shortPath) {
  std::vector<std::string> arguments = splitArguments(shortPath);
  return arguments.empty() ? std::string() : std::move(arguments.front());
}

bool sameFile(const std::string& one, const std::string& other) {
  struct stat first = {};
  struct stat second = {};
  return stat(one.c_str(), &first) == 0 && stat(other.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool writeFile(const std::string& path, std::string_view content) {
  // O_NONBLOCK: a named pipe without a reader is refused instead of waited for.
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC, 0666));
  return file.isOpen() && writeAll(file, content) && file.close();
}

void removeFile(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_regular_file(path, error)) std::filesystem::remove(path, error);
}

}  // namespace platform
