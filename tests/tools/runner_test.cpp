#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "support/temp_folder.h"
#include "tools/dos_outputs.h"

namespace {

/// A form's variable with a record of what its handler was given.
class Runner : public testing::Test {
 protected:
  std::shared_ptr<DOSOutputs> start(const std::string& script) {
    const auto runner = std::make_shared<DOSOutputs>();
    objDOS.set(runner);
    support::writeScript(folder, "tool", script);
    runner->setCommandLine(folder.path() + "\\tool");
    return runner;
  }

  support::OwnFolder folder;
  std::vector<std::string> pieces;
  std::function<void(std::string&)> then = [](std::string&) {};
  RunnerVariable objDOS{[this](std::string& piece) {
    pieces.push_back(piece);
    then(piece);
  }};
};

TEST_F(Runner, HandsOnPiecesOf256BytesAndAnEmptyOneAtTheEnd) {
  const auto runner = start("head -c 300 /dev/zero | tr '\\0' x >&2");
  EXPECT_EQ(runner->ExecuteCommand(), std::string(300, 'x'));
  EXPECT_EQ(pieces, (std::vector<std::string>{std::string(256, 'x'), std::string(44, 'x'), ""}));
  EXPECT_EQ(runner->ExecuteCommand(), std::string(300, 'x')) << "the second run alone";
}

TEST_F(Runner, RaisesNothingWithoutAChildAndKeepsTheOutputOfTheRunBefore) {
  const auto runner = start("echo before");
  runner->ExecuteCommand();
  pieces.clear();
  EXPECT_EQ(runner->ExecuteCommand(folder.path() + "\\missing"), "");
  EXPECT_TRUE(pieces.empty());
  EXPECT_EQ(runner->Outputs(), "before\n");
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

#ifndef TESSAVANE_SANITIZED  // The sanitizer itself needs more than any such limit.
TEST_F(Runner, ReadsToTheEndWhatThereIsNoMemoryFor) {
  rlimit before{};
  getrlimit(RLIMIT_AS, &before);
  then = [this, before](std::string&) {
    objDOS.clear();  // The record would need as much again.
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit full{pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + 10'000'000, before.rlim_max};
    setrlimit(RLIMIT_AS, &full);
  };
  // More than the 64 MB that glibc sets aside for each thread.
  const auto runner = start("head -c 100000000 /dev/zero; echo > \"$0.done\"");
  const std::string& output = runner->ExecuteCommand();
  setrlimit(RLIMIT_AS, &before);
  EXPECT_GT(output.size(), 1'000'000U);
  EXPECT_LT(output.size(), 100'000'000U);
  EXPECT_TRUE(std::filesystem::exists(folder.file("tool.done")));
}
#endif

}  // namespace
