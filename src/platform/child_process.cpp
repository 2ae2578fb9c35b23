#include "platform/child_process.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/command_line.h"

namespace platform {
namespace {

using std::chrono::steady_clock;

/// How long a child stays on one processor: FFmpeg has opened its source and built its filter graph by then.
constexpr std::chrono::milliseconds kNarrowTime(500);

WaitHook& waitHook() {
  static WaitHook hook;
  return hook;
}

/// Sets what a child inherits and what happens when it ends. SIGPIPE stays ignored across exec; "no wait"
/// does not, so that the child can wait for children of its own.
void prepareSignals() {
  [[maybe_unused]] static const bool prepared = [] {
    signal(SIGPIPE, SIG_IGN);
    struct sigaction reap = {};
    reap.sa_handler = SIG_DFL;
    reap.sa_flags = SA_NOCLDWAIT;
    return sigaction(SIGCHLD, &reap, nullptr) == 0;
  }();
}

/// Keeps the calling thread, and so a child started by it, on the processor that it runs on.
class OneProcessor {
 public:
  OneProcessor() {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    narrowed_ = sched_getaffinity(0, sizeof all_, &all_) == 0 && sched_setaffinity(0, sizeof one, &one) == 0;
  }
  ~OneProcessor() {
    if (narrowed_) sched_setaffinity(0, sizeof all_, &all_);
  }
  OneProcessor(const OneProcessor&) = delete;
  OneProcessor& operator=(const OneProcessor&) = delete;

 private:
  cpu_set_t all_{};
  bool narrowed_ = false;
};

/// What a child is given at its start besides its arguments.
class StartPlan {
 public:
  explicit StartPlan(int writeEnd) {
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_init(&attributes_);
    posix_spawn_file_actions_init(&actions_);
    // The null device comes last: a process without standard streams of its own gets the pipe on 0 to 2,
    // where opening the device first would close it.
    complete_ = posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK) == 0 &&
                posix_spawnattr_setsigmask(&attributes_, &none) == 0 &&
                posix_spawn_file_actions_adddup2(&actions_, writeEnd, STDOUT_FILENO) == 0 &&
                posix_spawn_file_actions_adddup2(&actions_, writeEnd, STDERR_FILENO) == 0 &&
                posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0) == 0;
  }
  ~StartPlan() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  StartPlan(const StartPlan&) = delete;
  StartPlan& operator=(const StartPlan&) = delete;

  /// Process id of the new child, -1 where there is none.
  [[nodiscard]] pid_t run(const Command& command) const {
    std::vector<char*> arguments;
    arguments.reserve(command.arguments.size() + 1);
    for (const std::string& argument : command.arguments)
      arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    pid_t child = -1;
    const OneProcessor narrow;
    const bool started = complete_ && posix_spawn(&child, command.program.c_str(), &actions_, &attributes_,
                                                  arguments.data(), environ) == 0;
    return started ? child : -1;
  }

 private:
  posix_spawnattr_t attributes_;
  posix_spawn_file_actions_t actions_;
  bool complete_ = false;
};

/// Gives every thread listed in the folder `tasks` the processors of the calling thread.
void widenThreads(Descriptor tasks) {
  cpu_set_t all;
  DIR* const folder = fdopendir(tasks.number());
  if (folder == nullptr) return;
  tasks.release();
  if (sched_getaffinity(0, sizeof all, &all) == 0) {
    // A thread inherits the processors of the one that makes it: the second pass is for those that a thread
    // not widened yet has made during the first.
    for (int pass = 0; pass < 2; ++pass) {
      rewinddir(folder);
      while (const dirent* entry = readdir(folder)) {
        pid_t thread = 0;
        std::from_chars(entry->d_name, entry->d_name + std::strlen(entry->d_name), thread);
        if (thread > 0) sched_setaffinity(thread, sizeof all, &all);
      }
    }
  }
  closedir(folder);
}

}  // namespace

void setWaitHook(WaitHook hook) {
  waitHook() = std::move(hook);
}

bool ChildProcess::start(const std::string& commandLine) {
  const Command command = parseCommand(commandLine);
  int ends[2];
  if (command.program.empty() || pipe2(ends, O_CLOEXEC) != 0) return false;
  Descriptor readEnd(ends[0]);
  const Descriptor writeEnd(ends[1]);
  prepareSignals();
  if (fcntl(readEnd.number(), F_SETFL, O_NONBLOCK) != 0) return false;
  const pid_t child = StartPlan(writeEnd.number()).run(command);
  if (child < 0) return false;
  output_ = std::move(readEnd);
  // Opened at once: later the kernel may have given the number to another process.
  const std::string tasks = "/proc/" + std::to_string(child) + "/task";
  tasks_ = Descriptor(open(tasks.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  widenAt_ = steady_clock::now() + kNarrowTime;
  return true;
}

std::size_t ChildProcess::read(char* buffer, std::size_t size) {
  while (output_.isOpen()) {
    widenWhenDue();
    // Read first: a child that prints without a pause costs one system call a piece.
    const ssize_t count = ::read(output_.number(), buffer, size);
    if (count > 0) return static_cast<std::size_t>(count);
    if (count == 0 || (errno != EAGAIN && errno != EINTR)) break;
    if (errno == EAGAIN) waitForOutput();
  }
  return 0;
}

void ChildProcess::waitForOutput() const {
  int milliseconds = -1;
  if (tasks_.isOpen()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(widenAt_ - steady_clock::now());
    milliseconds = static_cast<int>(std::max(left.count(), decltype(left.count()){0}));
  }
  if (waitHook()) {
    waitHook()(output_.number(), milliseconds);
  } else {
    pollfd state{output_.number(), POLLIN, 0};
    poll(&state, 1, milliseconds);
  }
}

void ChildProcess::widenWhenDue() {
  if (tasks_.isOpen() && steady_clock::now() >= widenAt_) widenThreads(std::move(tasks_));
}

}  // namespace platform
