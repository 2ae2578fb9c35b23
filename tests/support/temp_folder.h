// A folder of a test's own, and the files and fake tools in it.
#pragma once

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/program_folder.h"

namespace support {

/// A new empty folder with a blank in its name, removed at its end with all that is in it.
class TempFolder {
 public:
  TempFolder() : path_((std::filesystem::temp_directory_path() / "test folder.XXXXXX").string()) {
    if (mkdtemp(path_.data()) == nullptr) path_.clear();
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// A temporary folder that is the program's own while it lives.
class OwnFolder : public TempFolder {
 public:
  OwnFolder() { platform::setProgramFolder(path()); }
  ~OwnFolder() { platform::setProgramFolder(before_); }

 private:
  std::string before_ = platform::programFolder();
};

/// The bytes of a file, empty where it cannot be read.
inline std::string readFile(const std::string& path) {
  std::ifstream input(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

/// Writes a file and returns its path.
inline std::string writeText(const TempFolder& folder, const std::string& name, const std::string& text) {
  std::ofstream(folder.file(name), std::ios::binary) << text;
  return folder.file(name);
}

/// Writes a shell script that can be started as a program, and returns its path.
inline std::string writeScript(const TempFolder& folder, const std::string& name, const std::string& text) {
  const std::string path = writeText(folder, name, "#!/bin/sh\n" + text);
  std::filesystem::permissions(path, std::filesystem::perms(0755));
  return path;
}

/// Runs a shell command to its end. Its status is lost, because children are reaped by the system.
inline void shell(const std::string& command) {
  [[maybe_unused]] const int status = std::system(command.c_str());
}

}  // namespace support
