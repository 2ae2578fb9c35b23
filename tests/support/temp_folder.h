// A folder of a test's own, and the files and fake tools in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/program_folder.h"

namespace support {

/// A new empty folder with a blank in its name, the program's own until it is removed at its end.
class OwnFolder {
 public:
  OwnFolder() { platform::setProgramFolder(mkdtemp(path_.data())); }
  ~OwnFolder() {
    platform::setProgramFolder(before_);
    std::filesystem::remove_all(path_);
  }
  OwnFolder(const OwnFolder&) = delete;

  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_ = std::filesystem::temp_directory_path() / "test folder.XXXXXX";
  std::string before_ = platform::programFolder();
};

/// The bytes of a file, empty where it cannot be read.
inline std::string readFile(const std::string& path) {
  std::ifstream input(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(input), {}};
}

/// Writes a file and returns its path.
inline std::string writeText(const OwnFolder& folder, const std::string& name, const std::string& text) {
  std::ofstream(folder.file(name), std::ios::binary) << text;
  return folder.file(name);
}

/// Writes a shell script that can be started as a program.
inline void writeScript(const OwnFolder& folder, const std::string& name, const std::string& text) {
  std::filesystem::permissions(writeText(folder, name, "#!/bin/sh\n" + text), std::filesystem::perms(0755));
}

/// Runs a shell command to its end. Its status is lost, because children are reaped by the system.
inline void shell(const std::string& command) {
  [[maybe_unused]] const int status = std::system(command.c_str());
}

}  // namespace support
