// Processes around a test: a copy of it that may be spoilt, and a named pipe to meet a child at.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <string>

namespace support {

/// A named pipe with both ends held open, so that neither side waits for the other to open it.
class NamedPipe {
 public:
  explicit NamedPipe(const std::string& path) {
    mkfifo(path.c_str(), 0600);
    descriptor_ = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
  }
  ~NamedPipe() { close(descriptor_); }
  NamedPipe(const NamedPipe&) = delete;
  NamedPipe& operator=(const NamedPipe&) = delete;

  void send(const std::string& text) const {
    [[maybe_unused]] const ssize_t count = write(descriptor_, text.data(), text.size());
  }

  /// The next text of at most 256 bytes, empty where none comes for a long time.
  std::string receive() const {
    pollfd state{descriptor_, POLLIN, 0};
    poll(&state, 1, 20000);
    char buffer[256];
    const ssize_t count = read(descriptor_, buffer, sizeof buffer);
    return count > 0 ? std::string(buffer, static_cast<std::size_t>(count)) : std::string();
  }

 private:
  int descriptor_;
};

/// Runs `work` in a copy of this process and returns its short text, which comes through a pipe to be made at
/// `path`.
inline std::string inCopy(const std::string& path, const std::function<std::string()>& work) {
  const NamedPipe result(path);
  if (fork() == 0) {
    result.send(work());
    _exit(0);
  }
  return result.receive();
}

}  // namespace support
