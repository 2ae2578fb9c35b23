#include "platform/child_process.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <csignal>

#include "forms/application.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

class ChildProcess : public testing::Test {
 protected:
  /// Makes a shell script, run in the program's folder, a tool and returns the command line that starts it.
  std::string tool(const std::string& text, const std::string& name = "tool") const {
    support::writeScript(own_, name, "cd \"${0%/*}\"\n" + text);
    return own_.path() + "\\" + name;
  }
  static std::string nextOf(platform::ChildProcess& child) {
    char buffer[256];
    return {buffer, child.read(buffer, sizeof buffer)};
  }
  std::string outputOf(const std::string& command) {
    std::string output;
    EXPECT_TRUE(child_.start(command));
    for (std::string piece = nextOf(child_); !piece.empty(); piece = nextOf(child_)) output += piece;
    return output;
  }
  static int processorsOf(pid_t thread) {
    cpu_set_t set;
    return sched_getaffinity(thread, sizeof set, &set) == 0 ? CPU_COUNT(&set) : 0;
  }

  support::OwnFolder own_;
  platform::ChildProcess child_;
};

TEST_F(ChildProcess, FinishesItsWorkWhenItsReaderHasGone) {
  ASSERT_TRUE(child_.start(tool("mkfifo held end; while echo line; do :; done 2>&-; echo finished > end")));
  EXPECT_EQ(nextOf(child_).substr(0, 5), "line\n");
  platform::ChildProcess nested;  // One that would keep the first pipe open if it had a copy of its end.
  ASSERT_TRUE(nested.start(tool("echo up; read -r _ < held", "nested")));
  EXPECT_EQ(nextOf(nested), "up\n");
  EXPECT_EQ(outputOf(tool("timeout 20 cat end", "witness")), "finished\n");
  std::ofstream(own_.file("held")) << "\n";
}

TEST_F(ChildProcess, HasNoInputItsOwnSessionAndNoBlockedSignals) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  sigprocmask(SIG_BLOCK, &all, &before);
  const std::string output =
      outputOf(tool("readlink /proc/$$/fd/0; sed -nE 's/^(NSsid|SigBlk):.//p' /proc/$$/status; echo $$"));
  sigprocmask(SIG_SETMASK, &before, nullptr);
  const std::string pid = output.substr(output.rfind('\n', output.size() - 2) + 1);
  EXPECT_EQ(output, "/dev/null\n" + pid + "0000000000000000\n" + pid);
}

TEST_F(ChildProcess, CallsTheHookWhileThereIsNothingToRead) {
  platform::setWaitHook([this](int, int milliseconds) {
    EXPECT_TRUE(milliseconds >= 0 || fs::exists(own_.file("go"))) << "not in time to widen the child";
    support::writeText(own_, "go", "");
  });
  EXPECT_EQ(outputOf(tool("until [ -e go ]; do sleep 0.01; done; echo late")), "late\n");
  platform::setWaitHook(&forms::Application::waitPainting);  // As at the start of the tests.
}

TEST_F(ChildProcess, StartsOnOneProcessorAndIsGivenAllWithItsThreads) {
  const int all = processorsOf(0);
  child_.start(tool("echo $$; exec ffmpeg -re -filter_threads 4 -f lavfi -i anullsrc -t 9 -f null -"));
  const pid_t pid = std::stoi(nextOf(child_));
  EXPECT_EQ(processorsOf(pid), 1);
  // A tool that is slow to start may have its threads only after it was given all processors.
  int narrow = 0;
  int wide = 0;
  while ((narrow > 0 || wide < 2) && !nextOf(child_).empty()) {
    narrow = 0;
    wide = 0;
    for (const auto& thread : fs::directory_iterator("/proc/" + std::to_string(pid) + "/task"))
      ++(processorsOf(std::stoi(thread.path().filename())) < all ? narrow : wide);
  }
  EXPECT_EQ(narrow, 0);
  EXPECT_GT(wide, 1);
  kill(pid, SIGKILL);
  EXPECT_EQ(processorsOf(0), all) << "The program itself was left with fewer processors.";
}

}  // namespace
