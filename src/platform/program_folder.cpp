#include "platform/program_folder.h"

#include <sys/auxv.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files.h"

namespace platform {
namespace {

/// `folder` without "." parts and without a separator at its end. ".." stays: past a link it leads
/// elsewhere than to the left.
std::string withoutDots(const std::filesystem::path& folder) {
  std::filesystem::path result;
  for (const std::filesystem::path& part : folder)
    if (!part.empty() && part != ".") result /= part;
  return result.string();
}

std::string folderAtStart() {
  const char* const own = "/proc/self/exe";
  std::filesystem::path file;
  std::error_code error;
  // The kernel keeps the name that exec was given: unlike the link in /proc, which is resolved, it shows the
  // symbolic links by which the program was started. It hands the address over as a number.
  if (const auto* name = reinterpret_cast<const char*>(getauxval(AT_EXECFN)))
    file = std::filesystem::absolute(name, error);
  if (error || !sameFile(file.string(), own)) file = std::filesystem::read_symlink(own, error);
  return withoutDots(file.parent_path());
}

std::string& storedFolder() {
  static std::string folder = folderAtStart();
  return folder;
}

}  // namespace

const std::string& programFolder() {
  return storedFolder();
}

void setProgramFolder(std::string_view folder) {
  storedFolder() = withoutDots(folder);
}

bool startsInProgramFolder(std::string_view path, std::string_view separators) {
  const std::size_t length = programFolder().size();
  return path.size() > length && path.starts_with(programFolder()) &&
         separators.find(path[length]) != std::string_view::npos;
}

std::string nativePath(std::string_view path) {
  std::string result(path);
  if (startsInProgramFolder(path, "\\")) {
    std::replace(result.begin() + static_cast<std::ptrdiff_t>(programFolder().size()), result.end(), '\\',
                 '/');
  }
  return result;
}

}  // namespace platform
