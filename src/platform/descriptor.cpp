#include "platform/descriptor.h"

#include <unistd.h>

#include <cerrno>

namespace platform {

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this != &other) {
    close();
    number_ = other.release();
  }
  return *this;
}

bool Descriptor::close() {
  return !isOpen() || ::close(release()) == 0;
}

bool writeAll(const Descriptor& file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t count = ::write(file.number(), content.data(), content.size());
    if (count > 0)
      content.remove_prefix(static_cast<std::size_t>(count));
    else if (count == 0 || errno != EINTR)
      return false;
  }
  return true;
}

}  // namespace platform
