#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

/// What each folder may include of the others; the program's own folders know each other.
const std::set<std::string> kProgram = {"core", "presets", "tools", "mainwindow", "stringwindow"};

bool mayInclude(const std::string& from, const std::string& to) {
  if (from == to) return true;
  return kProgram.contains(from) && (kProgram.contains(to) || to == "forms" || to == "platform");
}

TEST(Layers, IncludeOnlyWhatTheyMayKnow) {
  const std::regex include("#include ([<\"])([^>\"]+)[>\"]");
  const std::regex system(
      "(sys/.*|unistd|fcntl|spawn|poll|signal|sched|dirent|pthread|linux/.*|csignal)(\\.h)?");
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(SOURCE_FOLDER)) {
    if (!entry.is_regular_file()) continue;
    ++files;
    const std::string folder = fs::relative(entry, SOURCE_FOLDER).begin()->string();
    const std::string text = support::readFile(entry.path().string());
    for (std::sregex_iterator hit(text.begin(), text.end(), include), end; hit != end; ++hit) {
      const std::string name = (*hit)[2];
      const std::string line = entry.path().string() + " includes " + name;
      if ((*hit)[1] == "\"") {
        EXPECT_TRUE(mayInclude(folder, name.substr(0, name.find('/')))) << line;
      } else {
        EXPECT_TRUE(name[0] != 'Q' || folder == "forms") << line;
        EXPECT_TRUE(!std::regex_match(name, system) || folder == "platform") << line;
      }
    }
  }
  EXPECT_GT(files, 50) << "nothing to look at in " << SOURCE_FOLDER;
}

}  // namespace
