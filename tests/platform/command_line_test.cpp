#include "platform/command_line.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLine, SplitsAtBlanksAndTabsOutsideQuotes) {
  const std::pair<std::string_view, Arguments> cases[] = {
      {" \t ", {}},
      {"  a b\tc ", {"a", "b", "c"}},
      {"-af \"volume=1\",equalizer=f=20", {"-af", "volume=1,equalizer=f=20"}},
      {"x\"a b\"y z", {"xa by", "z"}},
      {"\"\" a\"\"b \"\"", {"", "ab", ""}},
      {"\"a\"\"b\" \"\"\"\"", {"a\"b", "\""}},
      {"\"a b", {"a b"}},
      {"\"a\"\"", {"a\""}},
      {"\"", {""}},
      {"a\\ b\\\"c d\" 'e f' $x *\n", {"a\\", "b\\c d", "'e", "f'", "$x", "*\n"}},
      {"\xC3\xA9\xFF \xE2\x82", {"\xC3\xA9\xFF", "\xE2\x82"}},
  };
  for (const auto& [line, expected] : cases)
    EXPECT_EQ(platform::splitArguments(line), expected) << "of <" << line << ">";
}

TEST(CommandLine, QuotedArgumentSplitsBackIntoItself) {
  Arguments all = {""};  // In the end every text of up to four of the letters below.
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const char letter : {'a', ' ', '\t', '"', '\\'})
      if (all[i].size() < 4) all.push_back(all[i] + letter);
    const std::string quoted = platform::quoteArgument(all[i]);
    EXPECT_EQ(platform::splitArguments("x " + quoted + " y"), (Arguments{"x", all[i], "y"}));
    EXPECT_EQ(quoted == all[i], !all[i].empty() && all[i].find_first_of(" \t\"") == std::string::npos)
        << quoted;
  }
}

TEST(CommandLine, FindsThePrograms) {
  const support::OwnFolder own;
  const std::string folder = own.file("a \\b");
  platform::setProgramFolder(folder);
  std::filesystem::create_directories(folder + "/bin");
  std::filesystem::create_symlink("ffmpeg", folder + "/link");
  for (const char* name : {"ffmpeg", "ffprobe.exe", "both", "both.exe", "bin/tool"})
    support::writeText(own, std::string("a \\b/") + name, "");
  const struct {
    std::string written, name, program;
  } cases[] = {
      {folder + "\\ffmpeg", folder + "\\ffmpeg", folder + "/ffmpeg"},
      {folder + "/ffmpeg", folder + "/ffmpeg", folder + "/ffmpeg"},
      {folder + "\\ffmpeg.exe", folder + "\\ffmpeg.exe", folder + "/ffmpeg"},
      {folder + "\\ffprobe", folder + "\\ffprobe", folder + "/ffprobe.exe"},
      {folder + "\\both.exe", folder + "\\both.exe", folder + "/both.exe"},
      {folder + "\\bin\\tool", folder + "\\bin\\tool", folder + "/bin/tool"},
      {folder + "\\link", folder + "\\link", folder + "/link"},
      {folder + "\\missing", folder + "\\missing", ""},
      {folder + "\\bin", folder + "\\bin", ""},
      {folder + "\\", folder + "\\", ""},
      {"\"" + folder + "\"/ffmpeg", folder + "/ffmpeg", folder + "/ffmpeg"},
      {"\\bin\\\"sh.exe\"", "\\bin\\sh.exe", "/bin/sh"},
      {std::filesystem::relative("/bin/sh").string(), std::filesystem::relative("/bin/sh").string(), ""},
      {"sh", "sh", ""},
      {"\"\"", "", ""},
  };
  for (const auto& [written, name, program] : cases) {
    const platform::Command command = platform::parseCommand(written + "\t-y  -i");
    EXPECT_EQ(command.program, program) << "of <" << written << ">";
    EXPECT_EQ(command.arguments, (Arguments{name, "-y", "-i"}));
  }
}

}  // namespace
