#include <gtest/gtest.h>

#include <regex>

#include "support/temp_folder.h"

namespace {

TEST(Layers, IncludeOnlyWhatTheyMayKnow) {
  const std::regex include("#include ([<\"])([^>\"]+)[>\"]");
  const std::regex system("(sys/.*|linux/.*|unistd|fcntl|spawn|poll|sched|dirent|pthread|c?signal)(\\.h)?");
  int includes = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_FOLDER)) {
    if (!entry.is_regular_file()) continue;
    const std::string folder = *std::filesystem::relative(entry, SOURCE_FOLDER).begin();
    const bool program = folder != "forms" && folder != "platform";  // Which may include all of our own.
    const std::string text = support::readFile(entry.path());
    for (std::sregex_iterator hit(text.begin(), text.end(), include), end; hit != end; ++hit, ++includes) {
      const std::string name = (*hit)[2];
      const bool allowed = (*hit)[1] == "\"" ? program || name.starts_with(folder + "/")
                           : name[0] == 'Q'  ? folder == "forms"
                                             : folder == "platform" || !std::regex_match(name, system);
      EXPECT_TRUE(allowed) << entry.path() << " includes " << name;
    }
  }
  EXPECT_GT(includes, 100) << "nothing to look at in " << SOURCE_FOLDER;
}

}  // namespace
