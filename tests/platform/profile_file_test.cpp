#include "platform/profile_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

class ProfileFile : public testing::Test {
 protected:
  static std::string read(const std::string& file, std::size_t size = 1023) {
    return platform::profileString("Preset#1", "Frequency", "default", size, file);
  }
  static bool write(const std::string& file, std::string_view value) {
    return platform::writeProfileString("Preset#1", "Frequency", value, file);
  }

  support::OwnFolder own_;
};

TEST_F(ProfileFile, Reads) {
  const std::pair<std::string, std::string> cases[] = {
      {"\xEF\xBB\xBF[preset#1]\r\nFREQUENCY=a=b;c", "a=b;c"},
      {"\t[ Preset#1 ] ; note\n \tFrequency \t=  1 2\t \r\n", "1 2"},
      {"[Preset#1]\nFrequency=\" a \"\n", " a "},
      {"[Preset#1]\nFrequency=''\n", ""},
      {"[Preset#1]\nFrequency=\"a'\n", "\"a'"},
      {"[Preset#1]\nFrequency=12345\nFrequency=2\n", "12345"},
      {"[]\n[\n=\n[Preset#1]\n;Frequency=1\n#Frequency=2\nFrequency\n[\n\xFF=\nFrequency=3\n", "3"},
      {"[Preset#11]\nFrequency=1\n[Preset#1\nFrequency=2\n[Preset#1]\n[Preset#1]\nFrequency=4", "default"},
  };
  for (const auto& [content, expected] : cases) {
    const std::string file = support::writeText(own_, "file", content);
    EXPECT_EQ(read(file), expected) << "of\n" << content;
    EXPECT_EQ(read(file, 3), expected.substr(0, 3)) << "of\n" << content;
  }
}

TEST_F(ProfileFile, WritesOneLineAndLeavesAllOthers) {
  const std::string large = "[A]\nx=" + std::string(9000, 'y') + "\n";
  const struct {
    std::string before;
    std::string after;
    std::string_view value = "1";
  } cases[] = {
      {"", "[Preset#1]\r\nFrequency=1\r\n"},
      {";", ";\r\n[Preset#1]\r\nFrequency=1\r\n"},
      {"; note\n\n[A]\nb=c", "; note\n\n[A]\nb=c\r\n[Preset#1]\r\nFrequency=1\r\n"},
      {"[PRESET#1]", "[PRESET#1]\r\nFrequency=1\r\n"},
      {"\xEF\xBB\xBF[PRESET#1]\nfrequency = 0", "\xEF\xBB\xBF[PRESET#1]\nFrequency=1"},
      {"[Preset#1]\r\nFrequency=0\r\n\r\n[A]\r\n", "[Preset#1]\r\nFrequency=1\r\n\r\n[A]\r\n"},
      {"[Preset#1]\nx\n;y\n\n[A]\nFrequency=2\n", "[Preset#1]\nx\n;y\nFrequency=1\r\n\n[A]\nFrequency=2\n"},
      {large + "[Preset#1]\nFrequency=0\n" + large, large + "[Preset#1]\nFrequency=1\n" + large},
      {"[Preset#1]\nFrequency=0\n", "[Preset#1]\nFrequency=0\n", "1\n[A]"},
  };
  for (const auto& [before, after, value] : cases) {
    const std::string file = support::writeText(own_, "file", before);
    EXPECT_EQ(write(file, value), value != "1\n[A]");
    EXPECT_EQ(support::readFile(file), after);
  }
}

TEST_F(ProfileFile, KeepsLinksAndPermissions) {
  const std::string file = own_.path() + "\\real\\..\\first";
  const std::string target = own_.file("real/file");
  fs::create_directory(own_.file("real"));
  fs::create_symlink("real/second", own_.file("first"));
  fs::create_symlink("file", own_.file("real/second"));
  EXPECT_TRUE(write(file, "1"));
  EXPECT_NE(fs::status(target).permissions(), fs::perms(0600)) << "those of a temporary file";
  fs::permissions(target, fs::perms(0604));
  EXPECT_TRUE(write(file, "2"));
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0604));
  EXPECT_TRUE(fs::is_symlink(own_.file("first")));
  EXPECT_TRUE(fs::is_symlink(own_.file("real/second")));
}

TEST_F(ProfileFile, AFullDiskLeavesTheOldTextAndNoOtherFile) {
  const std::string file = own_.file("file");
  EXPECT_TRUE(write(file, "1"));
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full{4096, before.rlim_max};
  signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &full);
  EXPECT_FALSE(write(file, std::string(4500, '2')));
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(read(file), "1");
  EXPECT_EQ(std::distance(fs::directory_iterator(own_.path()), {}), 1);
}

}  // namespace
