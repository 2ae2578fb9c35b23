#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <system_error>

#include "platform/descriptor.h"

namespace platform {

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

bool removeFile(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = std::filesystem::canonical(path, error);
  return !error && std::filesystem::is_regular_file(file, error) && std::filesystem::remove(file, error);
}

}  // namespace platform
