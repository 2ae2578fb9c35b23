#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace {

TEST(Files, AreReplacedByWhatIsWrittenOrRefusedWithoutAWait) {
  const support::OwnFolder own;
  const std::string file = support::writeText(own, "file", "a longer text than the new one");
  EXPECT_TRUE(platform::writeFile(file, "new\r\n"));
  EXPECT_EQ(support::readFile(file), "new\r\n");
  mkfifo(own.file("pipe").c_str(), 0600);
  for (const std::string& path : {own.file("no/folder"), own.file("pipe"), std::string("/dev/full")})
    EXPECT_FALSE(platform::writeFile(path, "x")) << path;
}

}  // namespace
