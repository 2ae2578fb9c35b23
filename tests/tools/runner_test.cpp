#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "support/limit.h"
#include "support/temp_folder.h"
#include "tools/dos_outputs.h"

namespace {

/// A form's variable with a record of what its handler was given.
class Runner : public testing::Test {
 protected:
  std::shared_ptr<DOSOutputs> start(const std::string& script) {
    const auto runner = std::make_shared<DOSOutputs>();
    objDOS.set(runner);
    runner->setCommandLine(tool(script));
    return runner;
  }

  std::string tool(const std::string& script) {
    const std::string name = "tool" + std::to_string(++scripts_);
    support::writeScript(folder, name, script);
    return folder.path() + "\\" + name;
  }

  support::OwnFolder folder;
  std::vector<std::string> pieces;
  std::function<void(std::string&)> then = [](std::string&) {};
  RunnerVariable objDOS{[this](std::string& piece) {
    pieces.push_back(piece);
    then(piece);
  }};

 private:
  int scripts_ = 0;
};

TEST_F(Runner, HandsOnPiecesOf256BytesAndAnEmptyOneAtTheEnd) {
  const auto runner = start("head -c 300 /dev/zero | tr '\\0' x >&2");
  EXPECT_EQ(runner->ExecuteCommand(), std::string(300, 'x'));
  EXPECT_EQ(runner->Outputs(), std::string(300, 'x'));
  EXPECT_EQ(pieces, (std::vector<std::string>{std::string(256, 'x'), std::string(44, 'x'), ""}));
  pieces.clear();
  EXPECT_EQ(runner->ExecuteCommand(folder.path() + "\\missing"), "");
  EXPECT_TRUE(pieces.empty()) << "without a child";
  EXPECT_EQ(runner->Outputs().size(), 300U) << "the output of the run before";
  EXPECT_EQ(runner->CommandLine(), folder.path() + "\\missing");
  EXPECT_EQ(DOSOutputs().ExecuteCommand(), "");
}

TEST_F(Runner, LetsTheHandlerChangeItsCopyAndCutTheConnectionAtOnce) {
  then = [this](std::string& piece) {
    piece = "changed";
    objDOS.clear();
  };
  EXPECT_EQ(start("printf 'a\\000b\\377'; sleep 0.05; echo two")->ExecuteCommand(),
            std::string("a\0b\377two\n", 8));
  EXPECT_EQ(pieces, std::vector<std::string>{std::string("a\0b\377", 4)});
}

TEST_F(Runner, NestsRunsThatShareNothing) {
  std::string inner;
  then = [&](std::string&) {
    if (!inner.empty()) return;
    RunnerVariable other([](std::string&) {});
    other.set(std::make_shared<DOSOutputs>());
    inner = other.get()->ExecuteCommand(tool("echo inner"));
  };
  EXPECT_EQ(start("echo outer; sleep 0.05; echo more")->ExecuteCommand(), "outer\nmore\n");
  EXPECT_EQ(inner, "inner\n");
  EXPECT_EQ(pieces.back(), "");
}

TEST_F(Runner, DoesWithoutWhatTheSystemRefuses) {
  const auto runner = start("head -c 150000000 /dev/zero");
  {
    const support::Limit descriptors(RLIMIT_NOFILE, 3);
    EXPECT_EQ(runner->ExecuteCommand(), "") << "no descriptor for the pipe";
  }
#ifndef TESSAVANE_SANITIZED  // The sanitizer itself needs more than any such limit.
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  std::size_t handedOn = 0;
  then = [&](std::string& piece) {
    handedOn += piece.size();
    pieces.clear();
  };
  const support::Limit memory(RLIMIT_AS, static_cast<rlim_t>(pages * sysconf(_SC_PAGESIZE) + 70000000));
  const std::size_t kept = runner->ExecuteCommand().size();
  EXPECT_EQ(handedOn, 150000000U) << "no memory for the output";
  EXPECT_TRUE(kept > 1000000 && kept < 70000000) << kept;
#endif
}

/// Resident memory in KiB, open descriptors, children.
struct Holdings {
  long memory = 0, descriptors = 0, children = 0;
};

Holdings holdings() {
  Holdings now;
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (word == "VmRSS:") status >> now.memory;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
    ++now.descriptors;
  std::ifstream children("/proc/thread-self/children");
  for (std::string child; children >> child;) ++now.children;
  return now;
}

TEST_F(Runner, LeavesNothingBehindAfterTenThousandRuns) {
  std::filesystem::create_symlink("/bin/echo", folder.file("echo"));
  Holdings before;
  for (int i = 0; i < 10000; ++i) {
    if (i == 500) before = holdings();
    ASSERT_EQ(std::make_shared<DOSOutputs>()->ExecuteCommand(folder.path() + "\\echo hello"), "hello\n");
  }
  const Holdings after = holdings();
  EXPECT_LE(after.descriptors, before.descriptors);
  EXPECT_LE(after.children, 1) << "the last one may be on its way out";
  EXPECT_LT(after.memory - before.memory, 8192) << "KiB";
}

}  // namespace
