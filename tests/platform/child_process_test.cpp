#include "platform/child_process.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <csignal>
#include <sstream>

#include "support/processes.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

class ChildProcess : public testing::Test {
 protected:
  ~ChildProcess() override { platform::setWaitHook({}); }

  /// Makes a shell script, run in the program's folder, a tool and returns the command line that starts it.
  std::string tool(const std::string& text, const std::string& name = "tool") const {
    support::writeScript(own_, name, "cd \"${0%/*}\"\n" + text);
    return own_.path() + "\\" + name;
  }

  std::string next() {
    char buffer[256];
    return {buffer, child_.read(buffer, sizeof buffer)};
  }

  std::string outputOf(const std::string& command) {
    std::string output;
    EXPECT_TRUE(child_.start(command));
    for (std::string piece = next(); !piece.empty(); piece = next()) output += piece;
    return output;
  }

  static long openDescriptors() { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); }

  static cpu_set_t processorsOf(pid_t thread) {
    cpu_set_t set;
    CPU_ZERO(&set);
    sched_getaffinity(thread, sizeof set, &set);
    return set;
  }

  support::OwnFolder own_;
  platform::ChildProcess child_;
};

TEST_F(ChildProcess, JoinsBothStreamsAndHasTheNullDeviceAsInput) {
  EXPECT_EQ(outputOf(tool("for i in 1 2; do echo out$i; echo err$i >&2; done")), "out1\nerr1\nout2\nerr2\n");
  EXPECT_EQ(outputOf(tool("readlink /proc/$$/fd/0; cat; echo \"$#$1\" >&2") + " \"a b\""),
            "/dev/null\n1a b\n");
  EXPECT_EQ(outputOf(tool("echo before; kill -9 $$; echo after")), "before\n");
  EXPECT_EQ(outputOf(tool("")), "");
  EXPECT_EQ(next(), "");
}

TEST_F(ChildProcess, ThatCannotBeStartedLeavesNothingOpen) {
  const long before = openDescriptors();
  ASSERT_TRUE(child_.start(tool("echo an earlier child")));
  support::writeText(own_, "plain", "#!/bin/sh\n");
  fs::permissions(support::writeText(own_, "bare", "echo started"), fs::perms(0755));
  for (const char* name : {"missing", "plain", "bare", "."}) {
    EXPECT_FALSE(child_.start(own_.path() + "\\" + name)) << name;
    EXPECT_EQ(next(), "") << name;
  }
  EXPECT_FALSE(child_.start(""));
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(ChildProcess, FinishesItsWorkWhenItsReaderHasGone) {
  const support::NamedPipe held(own_.file("held")), done(own_.file("done"));
  ASSERT_TRUE(child_.start(tool("while echo line; do :; done 2>&-; echo finished > done")));
  EXPECT_EQ(next().substr(0, 5), "line\n");
  platform::ChildProcess nested;  // One that would keep the first pipe open if it had a copy of its end.
  ASSERT_TRUE(nested.start(tool("echo up; read -r _ < held", "nested")));
  char buffer[8];
  EXPECT_EQ(nested.read(buffer, sizeof buffer), 3U);
  child_.close();
  EXPECT_EQ(done.receive(), "finished\n");
  held.send("\n");
  EXPECT_EQ(nested.read(buffer, sizeof buffer), 0U);
}

TEST_F(ChildProcess, HasItsOwnSessionAndFreshSignals) {
  fs::create_symlink("/bin/sed", own_.file("sed"));
  sigset_t blocked;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigprocmask(SIG_BLOCK, &blocked, nullptr);
  std::istringstream output(
      outputOf(own_.path() + "\\sed -nE s/^(Pid|NSsid|SigBlk|SigIgn):.//p /proc/self/status"));
  sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
  unsigned long process = 0, session = 1, mask = 1, ignored = 0;
  output >> process >> session >> std::hex >> mask >> ignored;
  EXPECT_EQ(session, process);
  EXPECT_EQ(mask, 0U);
  EXPECT_NE(ignored & (1U << (SIGPIPE - 1)), 0U) << std::hex << ignored;
}

TEST_F(ChildProcess, WorksWithItsParentsStandardStreamsClosed) {
  const std::string command = tool("readlink /proc/$$/fd/0; echo out; echo err >&2");
  for (int first = 0; first < 3; ++first) {
    for (int last = first; last < 3; ++last) {
      const std::string output = support::inCopy(own_.file("result"), [&] {
        for (int stream = first; stream <= last; ++stream) close(stream);
        return outputOf(command);
      });
      EXPECT_EQ(output, "/dev/null\nout\nerr\n") << "without " << first << " to " << last;
    }
  }
}

TEST_F(ChildProcess, CallsTheHookWhileThereIsNothingToRead) {
  const support::NamedPipe held(own_.file("held"));
  std::size_t calls = 0;
  platform::setWaitHook([&](int descriptor, int milliseconds) {
    held.send(++calls == 1 ? "\n" : "");
    pollfd state{descriptor, POLLIN, 0};
    poll(&state, 1, milliseconds);
  });
  EXPECT_EQ(outputOf(tool("read -r _ < held; echo late")), "late\n");
  EXPECT_GE(calls, 1U);
  calls = 1;
  const std::size_t size = outputOf(tool("dd if=/dev/zero bs=64k count=200 status=none")).size();
  EXPECT_EQ(size, 200U * 65536U);
  EXPECT_LT(calls, size / 256 / 16) << "A read that need not wait called the hook.";
}

TEST_F(ChildProcess, StartsOnOneProcessorAndIsGivenAllWithItsThreads) {
  const cpu_set_t all = processorsOf(0);
  ASSERT_TRUE(
      child_.start(tool("echo $$ $(sed -n 's/^Cpus_allowed_list:.//p' /proc/$$/status)\n"
                        "exec ffmpeg -v error -re -filter_threads 4 -f lavfi -i anullsrc -t 5 -f null -")));
  std::istringstream line(next());
  pid_t pid = 0;
  std::string first;
  line >> pid >> first;
  ASSERT_GT(pid, 0);
  EXPECT_EQ(first.find_first_not_of("0123456789"), std::string::npos) << first;
  int narrow = 0, wide = 0;
  platform::setWaitHook([&](int descriptor, int milliseconds) {
    if (milliseconds <
        0) {  // Nothing is left to be done in time: all threads have been given all processors.
      for (const auto& task : fs::directory_iterator("/proc/" + std::to_string(pid) + "/task")) {
        const cpu_set_t set = processorsOf(std::stoi(task.path().filename()));
        ++(CPU_EQUAL(&set, &all) ? wide : narrow);
      }
      kill(pid, SIGKILL);
    }
    pollfd state{descriptor, POLLIN, 0};
    poll(&state, 1, milliseconds);
  });
  EXPECT_EQ(next(), "");
  EXPECT_EQ(narrow, 0);
  EXPECT_GT(wide, 1);
  const cpu_set_t after = processorsOf(0);
  EXPECT_TRUE(CPU_EQUAL(&all, &after)) << "The program itself was left with fewer processors.";
}

}  // namespace
