#include "platform/files.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "platform/child_process.h"
#include "support/processes.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

TEST(Files, PathsAreTakenApartAndCompared) {
  const support::TempFolder folder;
  for (const char* name : {"plain.wav", "tab\tquote\".wav", "\"", "back\\slash", "\xC3\xA9<b>&"}) {
    const std::string path = support::writeText(folder, name, "");
    EXPECT_EQ(platform::longPath(platform::shortPath(path)), path);
    const std::string relative = fs::relative(path).string();
    EXPECT_EQ(platform::longPath(platform::shortPath(relative)), (fs::current_path() / relative).string());
  }
  EXPECT_EQ(platform::shortPath("/usr"), "/usr");
  EXPECT_EQ(platform::shortPath(folder.file("missing")), "");
  EXPECT_EQ(platform::shortPath(""), "");
  EXPECT_EQ(platform::longPath(""), "");

  const std::string file = support::writeText(folder, "file", "same");
  support::writeText(folder, "copy", "same");
  fs::create_symlink("file", folder.file("link"));
  fs::create_hard_link(file, folder.file("hard"));
  EXPECT_TRUE(platform::sameFile(file, folder.file("link")));
  EXPECT_TRUE(platform::sameFile(file, folder.file("./hard")));
  EXPECT_FALSE(platform::sameFile(file, folder.file("copy")));
  EXPECT_FALSE(platform::sameFile(folder.file("missing"), folder.file("missing")));
}

TEST(Files, WriteFileReplacesTheContentAndNeverWaits) {
  const support::TempFolder folder;
  const std::string file = support::writeText(folder, "file", "a longer text than the new one");
  const std::string large(3000000, 'x');
  for (const std::string& content : {std::string("new\r\n"), large, std::string()}) {
    EXPECT_TRUE(platform::writeFile(file, content));
    EXPECT_TRUE(support::readFile(file) == content) << content.size();
  }
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  for (const std::string& path : {folder.path(), folder.file("no/folder"), folder.file("pipe")})
    EXPECT_FALSE(platform::writeFile(path, "x")) << path;
  EXPECT_FALSE(platform::writeFile("/dev/full", "x"));
  const support::NamedPipe full(folder.file("pipe"));
  EXPECT_FALSE(platform::writeFile(folder.file("pipe"), large));
}

TEST(ProgramFolder, BackslashSeparatesBehindItAlone) {
  const support::OwnFolder own;
  const std::string& folder = own.path();
  EXPECT_EQ(platform::nativePath(folder + "\\a\\b"), folder + "/a/b");
  for (const std::string& path : {folder, folder + "/a\\b", folder + "x\\b", std::string("/a\\b")})
    EXPECT_EQ(platform::nativePath(path), path);
  platform::setProgramFolder("/a/./b\\c/");
  EXPECT_EQ(platform::nativePath(platform::programFolder() + "\\d"), "/a/b\\c/d");
  platform::setProgramFolder("/");
  EXPECT_EQ(platform::nativePath("/\\d"), "//d");
}

TEST(ProgramFolder, HoldsThisProgram) {
  std::printf("<%s>\n", platform::programFolder().c_str());
  bool found = false;
  for (const auto& entry : fs::directory_iterator(platform::programFolder()))
    found = found || platform::sameFile(entry.path().string(), "/proc/self/exe");
  EXPECT_TRUE(found) << platform::programFolder();
}

TEST(ProgramFolder, IsThatOfTheLinkUsedAtTheStart) {
  const support::OwnFolder own;
  fs::create_symlink(fs::read_symlink("/proc/self/exe"), own.file("copy"));
  support::writeScript(own, "start",
                       "cd \"${0%/*}\"; ././copy --gtest_filter=ProgramFolder.HoldsThisProgram");
  platform::ChildProcess child;
  ASSERT_TRUE(child.start(own.path() + "\\start"));
  std::string output;
  char buffer[256];
  while (const std::size_t count = child.read(buffer, sizeof buffer)) output.append(buffer, count);
  EXPECT_NE(output.find("<" + own.path() + ">"), std::string::npos) << output;
  EXPECT_NE(output.find("[  PASSED  ] 1 test"), std::string::npos) << output;
}

}  // namespace
