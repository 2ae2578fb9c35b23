#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

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
  const auto runner = start("head -c 600 /dev/zero | tr '\\0' x > \"$0.x\"; cat \"$0.x\" >&2");
  const std::string output = runner->ExecuteCommand();
  EXPECT_EQ(output, std::string(600, 'x'));
  EXPECT_EQ(runner->Outputs(), output);
  ASSERT_EQ(pieces.size(), 4U);
  EXPECT_EQ(pieces[0].size(), 256U);
  EXPECT_EQ(pieces[1].size(), 256U);
  EXPECT_EQ(pieces[2].size(), 88U);
  EXPECT_EQ(pieces[3], "");
}

TEST_F(Runner, RaisesOneEmptyPieceForAChildThatPrintsNothingAndNoneWithoutAChild) {
  EXPECT_EQ(start("exit 1")->ExecuteCommand(), "");
  EXPECT_EQ(pieces, std::vector<std::string>{""});
  pieces.clear();
  const auto runner = start("echo old");
  runner->ExecuteCommand();
  pieces.clear();
  EXPECT_EQ(runner->ExecuteCommand(folder.path() + "\\missing"), "");
  EXPECT_TRUE(pieces.empty());
  EXPECT_EQ(runner->Outputs(), "old\n") << "the output of the run before";
  EXPECT_EQ(runner->CommandLine(), folder.path() + "\\missing");
  EXPECT_EQ(DOSOutputs().ExecuteCommand(), "");
}

TEST_F(Runner, KeepsTheOutputWhateverTheHandlerDoesToItsCopy) {
  then = [](std::string& piece) { piece = "changed"; };
  EXPECT_EQ(start("printf 'a\\000b\\377'")->ExecuteCommand(), std::string("a\0b\377", 4));
}

TEST_F(Runner, CutsTheConnectionAtOnceAlsoInsideTheHandler) {
  then = [this](std::string&) { objDOS.clear(); };
  EXPECT_EQ(start("echo one; sleep 0.05; echo two")->ExecuteCommand(), "one\ntwo\n");
  EXPECT_EQ(pieces, std::vector<std::string>{"one\n"});
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
  const auto run = [&] { ASSERT_EQ(start("")->ExecuteCommand(folder.path() + "\\echo hello"), "hello\n"); };
  for (int i = 0; i < 500; ++i) run();
  const Holdings before = holdings();
  for (int i = 500; i < 10000; ++i) {
    pieces.clear();
    ASSERT_EQ(std::make_shared<DOSOutputs>()->ExecuteCommand(folder.path() + "\\echo hello"), "hello\n");
  }
  const Holdings after = holdings();
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_LE(after.children, 1) << "the last one may be on its way out";
  EXPECT_LT(after.memory - before.memory, 8192) << "KiB";
}

}  // namespace
