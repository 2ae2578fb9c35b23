// A child process and the one pipe that carries what it prints.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>

#include "platform/descriptor.h"

namespace platform {

/// Waits until `descriptor` has something to read or its other end is closed, or until `milliseconds` have
/// passed (negative: without limit). It may return early; it never reads.
using WaitHook = std::function<void(int descriptor, int milliseconds)>;

/// Sets what a blocking read does while there is nothing to read, so that windows can be repainted meanwhile.
/// An empty hook brings back the plain wait.
void setWaitHook(WaitHook hook);

/// One child, from its start to the end of its output. Its standard output and standard error share one pipe,
/// its standard input is the null device. It gets a session of its own and ignores SIGPIPE, so that it
/// finishes its work when this process ends first. It is reaped by the system and never waited for: from the
/// first start on this process ignores SIGPIPE, and no call that waits for a child can learn how one ended.
/// No shell is involved.
///
/// The child starts on one processor: FFmpeg sizes the thread pool of a filter graph by the processors it may
/// use, and many small filters then spend their time in handshakes. At the first read after half a second all
/// its threads get every processor that this process may use; a child that nobody reads stays on one. Where
/// the system refuses either, nothing else changes.
class ChildProcess {
 public:
  /// Starts `commandLine` (see `parseCommand`). False where no child could be started.
  bool start(const std::string& commandLine);

  /// Blocks until the child has printed something or its output has ended; copies at most `size` bytes into
  /// `buffer` and returns their number, 0 at the end of the output or after any failure.
  std::size_t read(char* buffer, std::size_t size);

 private:
  void waitForOutput() const;
  void widenWhenDue();

  Descriptor output_;
  /// The child's folder of threads, held open until the child may use every processor.
  Descriptor tasks_;
  std::chrono::steady_clock::time_point widenAt_;
};

}  // namespace platform
