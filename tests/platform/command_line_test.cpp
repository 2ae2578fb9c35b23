#include "platform/command_line.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace {

TEST(CommandLine, FindsThePrograms) {
  const support::OwnFolder own;
  const std::string& folder = own.path();
  for (const char* name : {"ffmpeg", "ffprobe.exe", "both", "both.exe"}) support::writeText(own, name, "");
  for (const auto& [name, program] :
       {std::pair{"\\ffmpeg.exe", "/ffmpeg"}, {"/ffprobe", "/ffprobe.exe"}, {"\\both.exe", "/both.exe"}}) {
    const platform::Command command = platform::parseCommand(folder + name + "\t-y  -i");
    EXPECT_EQ(command.program, folder + program) << name;
    EXPECT_EQ(command.arguments, (std::vector<std::string>{folder + name, "-y", "-i"}));
  }
  EXPECT_EQ(platform::parseCommand("\"" + folder + "\"/ffmpeg").program, folder + "/ffmpeg");
  EXPECT_EQ(platform::parseCommand("\\bin\\\"sh.exe\"").program, "/bin/sh");
  EXPECT_EQ(platform::parseCommand(std::filesystem::relative("/bin/sh").string()).program, "");
  EXPECT_EQ(platform::parseCommand("sh").program, "");
}

}  // namespace
