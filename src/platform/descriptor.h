// One open file descriptor and its only owner.
#pragma once

#include <string_view>
#include <utility>

namespace platform {

/// Closes what it holds at its end. Without a descriptor its number is -1, as a failed system call returns
/// it.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept;

  [[nodiscard]] int number() const { return number_; }
  [[nodiscard]] bool isOpen() const { return number_ >= 0; }

  /// Gives the descriptor to the caller, who has to close it.
  int release() { return std::exchange(number_, -1); }

  /// Closes now. False where the system reports that something written before did not get through.
  bool close();

 private:
  int number_;
};

/// Writes all of `content`. False, with a part of it written, where that fails or would have to wait.
bool writeAll(const Descriptor& file, std::string_view content);

}  // namespace platform
