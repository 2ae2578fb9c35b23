#include "platform/profile_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>

#include "support/processes.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

class ProfileFile : public testing::Test {
 protected:
  std::string text(const std::string& content) const { return support::writeText(own_, "file", content); }

  static std::string read(const std::string& file, std::size_t size = 1024) {
    return platform::profileString("Preset#1", "Frequency", "default", size, file);
  }

  static bool write(const std::string& file, std::optional<std::string_view> value) {
    return platform::writeProfileString("Preset#1", "Frequency", value, file);
  }

  support::OwnFolder own_;
};

TEST_F(ProfileFile, Reads) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "default"},
      {"[Preset#1]\r\nFrequency=1:2\r\n", "1:2"},
      {"\xEF\xBB\xBF[preset#1]\nFREQUENCY=a=b;c", "a=b;c"},
      {"\t[ Preset#1 ] ; note\n \tFrequency \t=  1 2\t \r\n", "1 2"},
      {"[Preset#1]\nFrequency=\n", ""},
      {"[Preset#1]\nFrequency=\" a \"\n", " a "},
      {"[Preset#1]\nFrequency='a'\n", "a"},
      {"[Preset#1]\nFrequency=\"a'\n", "\"a'"},
      {"[Preset#1]\nFrequency=\"\n", "\""},
      {"[Preset#1]\nFrequency=1\nFrequency=2\n", "1"},
      {"[Preset#1]\nother=1\n[Preset#1]\nFrequency=2\n", "default"},
      {"[]\n[\n=\n[Preset#1]\n;Frequency=1\n#Frequency=2\nFrequency\n[\n\xFF=\nFrequency=3\n", "3"},
      {"Frequency=0\n[Preset#11]\nFrequency=1\n[Preset#1\nFrequency=2\n", "default"},
      {std::string("\0\n[Preset#1]\nFrequency=\0", 24), std::string(1, '\0')},
  };
  for (const auto& [content, expected] : cases) EXPECT_EQ(read(text(content)), expected) << "of\n" << content;
  const std::string file = text("[Preset#1]\nFrequency=12345\n");
  EXPECT_EQ(read(file, 6), "12345");
  EXPECT_EQ(read(file, 4), "123");
  EXPECT_EQ(read(file, 0), "");
  EXPECT_EQ(read(own_.file("missing"), 4), "def");
}

TEST_F(ProfileFile, WritesOneLineAndLeavesAllOthers) {
  const std::string large = "[A]\nx=" + std::string(1000000, 'y') + "\n";
  const struct {
    std::string before;
    std::optional<std::string_view> value;
    std::string after;
  } cases[] = {
      {"", "1", "[Preset#1]\r\nFrequency=1\r\n"},
      {"\xEF\xBB\xBF", "1", "\xEF\xBB\xBF[Preset#1]\r\nFrequency=1\r\n"},
      {"; note\n\n[A]\nb=c", "1", "; note\n\n[A]\nb=c\r\n[Preset#1]\r\nFrequency=1\r\n"},
      {"[PRESET#1]", "1", "[PRESET#1]\r\nFrequency=1\r\n"},
      {"[Preset#1]\nfrequency = 0\nx=y\n", "1", "[Preset#1]\nFrequency=1\nx=y\n"},
      {"[Preset#1]\r\nFrequency=0\r\n\r\n[A]\r\n", "1", "[Preset#1]\r\nFrequency=1\r\n\r\n[A]\r\n"},
      {"[Preset#1]\nFrequency=0", "1", "[Preset#1]\nFrequency=1"},
      {"[Preset#1]\nx\n;y\n\n \n[A]\nb=c\n", "1", "[Preset#1]\nx\n;y\nFrequency=1\r\n\n \n[A]\nb=c\n"},
      {"[Preset#1]\n[A]\nFrequency=2", "1", "[Preset#1]\nFrequency=1\r\n[A]\nFrequency=2"},
      {large + "[Preset#1]\nFrequency=0\n" + large, "1", large + "[Preset#1]\nFrequency=1\n" + large},
      {"[Preset#1]\nFrequency=0\nFrequency=2\n", std::nullopt, "[Preset#1]\nFrequency=2\n"},
      {"[Preset#1]\r\nx=y\r\nFrequency=0", std::nullopt, "[Preset#1]\r\nx=y\r\n"},
      {"[A]\nFrequency=0\n", std::nullopt, "[A]\nFrequency=0\n"},
      {"[Preset#1]\nFrequency=0\n", "1\n[A]", "[Preset#1]\nFrequency=0\n"},
  };
  for (const auto& [before, value, after] : cases) {
    const std::string file = text(before);
    EXPECT_EQ(write(file, value), value != "1\n[A]");
    EXPECT_TRUE(support::readFile(file) == after) << support::readFile(file).substr(0, 99) << "\nnot\n"
                                                  << after;
  }
}

TEST_F(ProfileFile, IsNamedByTheProgramsTextAndKeepsLinksAndPermissions) {
  const std::string file = own_.path() + "\\real\\..\\first";
  fs::create_directory(own_.file("real"));
  fs::create_symlink("real/second", own_.file("first"));
  fs::create_symlink("file", own_.file("real/second"));
  EXPECT_TRUE(write(file, std::nullopt));
  EXPECT_FALSE(fs::exists(own_.file("real/file")));
  const mode_t mask = umask(027);
  EXPECT_TRUE(write(file, "1"));
  umask(mask);
  struct stat made {
  }, before{}, after{};
  stat(own_.file("real/file").c_str(), &made);
  EXPECT_EQ(made.st_mode & 0777, 0640U);

  fs::permissions(own_.file("real/file"), fs::perms(0604));
  ASSERT_EQ(geteuid() == 0 ? chown(own_.file("real/file").c_str(), 12, 34) : 0, 0);
  stat(own_.file("real/file").c_str(), &before);
  EXPECT_TRUE(write(file, "2"));
  stat(own_.file("real/file").c_str(), &after);
  EXPECT_EQ(std::tie(after.st_mode, after.st_uid, after.st_gid),
            std::tie(before.st_mode, before.st_uid, before.st_gid));
  EXPECT_TRUE(fs::is_symlink(own_.file("first")) && fs::is_symlink(own_.file("real/second")));
  EXPECT_EQ(read(file), "2");
}

TEST_F(ProfileFile, FailedWriteLeavesTheOldFileAndNoOther) {
  const std::string before = "[Preset#1]\nFrequency=" + std::string(5000, '1') + "\n";
  const std::string file = text(before);
  fs::permissions(own_.path(), fs::perms(0777));
  const std::string result = support::inCopy(own_.file("pipe"), [&]() -> std::string {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit full{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &full);
    const bool fullDisk = write(file, std::string(4500, '2'));
    fs::permissions(file, fs::perms(0444));
    const bool readOnly = (geteuid() == 0 && seteuid(12345) != 0) || write(file, "2");
    return std::string(fullDisk ? "full disk " : "") + (readOnly ? "read-only file " : "") + "tried";
  });
  EXPECT_EQ(result, "tried");
  EXPECT_TRUE(support::readFile(file) == before);
  fs::create_directory(own_.file("folder"));
  fs::create_symlink("loop", own_.file("loop"));
  fs::create_symlink("/dev/zero", own_.file("endless"));
  ASSERT_EQ(mkfifo(own_.file("silent").c_str(), 0600), 0);
  for (const char* name : {"silent", "endless", "folder", "loop", "missing/file", "file/file"}) {
    EXPECT_FALSE(write(own_.file(name), "1")) << name;
    EXPECT_EQ(read(own_.file(name)), "default") << name;
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(own_.path()), {}), 6) << "A temporary file was left.";
}

TEST_F(ProfileFile, AKillAtAnyMomentLeavesEveryPresetWhole) {
  const std::string line(150, 'x');
  std::srand(1);
  for (int preset = 1; preset <= 6; ++preset) {
    ASSERT_TRUE(platform::writeProfileString("Preset#" + std::to_string(preset), "Frequency", line,
                                             own_.file("file")));
  }
  const std::string whole = support::readFile(own_.file("file"));
  for (int round = 0; round < 200; ++round) {
    const pid_t saving = fork();
    if (saving == 0)
      for (;;) write(own_.file("file"), line);
    usleep(static_cast<useconds_t>(std::rand() % 2000));
    kill(saving, SIGKILL);
    waitpid(saving, nullptr, 0);
    ASSERT_EQ(support::readFile(own_.file("file")), whole) << "round " << round;
  }
}

}  // namespace
