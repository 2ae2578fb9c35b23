#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace {

TEST(Files, AreNamedComparedAndWrittenWithoutAWait) {
  const support::OwnFolder own;
  for (const char* name : {"file", "tab\tquote\".wav", "back\\slash"}) {
    const std::string path = support::writeText(own, name, "a longer text than the new one");
    const std::filesystem::path relative = std::filesystem::relative(path);
    EXPECT_EQ(platform::longPath(platform::shortPath(relative)), std::filesystem::absolute(relative));
    std::filesystem::create_symlink(name, path + ".link");
    EXPECT_TRUE(platform::sameFile(path, path + ".link"));
    EXPECT_TRUE(platform::writeFile(path, "new\r\n"));
    EXPECT_EQ(support::readFile(path), "new\r\n");
  }
  EXPECT_EQ(platform::shortPath("/usr"), "/usr");
  EXPECT_EQ(platform::shortPath(own.file("missing")), "");
  EXPECT_EQ(platform::longPath(""), "");
  EXPECT_FALSE(platform::sameFile(own.file("file"), own.file("back\\slash")));
  EXPECT_FALSE(platform::sameFile(own.file("missing"), own.file("missing")));
  mkfifo(own.file("pipe").c_str(), 0600);
  for (const std::string& path : {own.file("no/folder"), own.file("pipe"), std::string("/dev/full")})
    EXPECT_FALSE(platform::writeFile(path, "x")) << path;
}

}  // namespace
