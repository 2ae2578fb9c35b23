#include "platform/command_line.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLine, SplitsAtBlanksAndTabsOutsideQuotes) {
  const std::pair<std::string_view, Arguments> cases[] = {
      {" \t ", {}},
      {"  a b\tc ", {"a", "b", "c"}},
      {"x\"a b\"y,\"c\td\" z", {"xa by,c\td", "z"}},
      {"\"\" a\"\"b \"a\"\"b\" \"\"\"\"", {"", "ab", "a\"b", "\""}},
      {"\"a b", {"a b"}},
      {"a\\ b\\\"c d\" 'e f' $x *\n", {"a\\", "b\\c d", "'e", "f'", "$x", "*\n"}},
  };
  for (const auto& [line, expected] : cases)
    EXPECT_EQ(platform::splitArguments(line), expected) << "of <" << line << ">";
}

TEST(CommandLine, APathIsOneArgumentWhateverItsName) {
  const support::OwnFolder own;
  for (const char* name : {"file", "tab\tquote\".wav", "back\\slash"}) {
    const auto relative = std::filesystem::relative(support::writeText(own, name, ""));
    const std::string path = std::filesystem::absolute(relative);
    const std::string quoted = platform::quotedPath(relative);
    EXPECT_EQ(platform::splitArguments("-i " + quoted), (Arguments{"-i", path}));
    EXPECT_EQ(platform::unquotedPath(quoted), path);
  }
  EXPECT_EQ(platform::quotedPath("/usr"), "/usr") << "no quotes where none are needed";
  EXPECT_EQ(platform::quotedPath(own.file("missing")), "");
  EXPECT_EQ(platform::unquotedPath(""), "");
}

TEST(CommandLine, FindsThePrograms) {
  const support::OwnFolder own;
  const std::string& folder = own.path();
  for (const char* name : {"ffmpeg", "ffprobe.exe", "both", "both.exe"}) support::writeText(own, name, "");
  for (const auto& [name, program] :
       {std::pair{"\\ffmpeg.exe", "/ffmpeg"}, {"/ffprobe", "/ffprobe.exe"}, {"\\both.exe", "/both.exe"}}) {
    const platform::Command command = platform::parseCommand(folder + name + "\t-y  -i");
    EXPECT_EQ(command.program, folder + program) << name;
    EXPECT_EQ(command.arguments, (Arguments{folder + name, "-y", "-i"}));
  }
  EXPECT_EQ(platform::parseCommand("\"" + folder + "\"/ffmpeg").program, folder + "/ffmpeg");
  EXPECT_EQ(platform::parseCommand("\\bin\\\"sh.exe\"").program, "/bin/sh");
  EXPECT_EQ(platform::parseCommand(std::filesystem::relative("/bin/sh").string()).program, "");
  EXPECT_EQ(platform::parseCommand("sh").program, "");
}

}  // namespace
