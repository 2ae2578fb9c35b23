// What the system lets this process have.
#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace support {

/// Sets a soft limit of this process while it lives.
class Limit {
 public:
  Limit(__rlimit_resource what, rlim_t soft) : what_(what) {
    getrlimit(what, &before_);
    const rlimit limit{soft, before_.rlim_max};
    setrlimit(what, &limit);
  }
  ~Limit() { setrlimit(what_, &before_); }

 private:
  __rlimit_resource what_;
  rlimit before_{};
};

/// Bytes of memory of this process.
inline std::size_t memory() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace support
