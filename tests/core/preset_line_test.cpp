#include "core/preset_line.h"

#include <gtest/gtest.h>

namespace {

TEST(PresetLine, AGainIsTheNearestPosition) {
  const std::pair<const char*, std::optional<long long>> rows[] = {
      {"140", 7},       {"70", 4},   {"69", 3},   {"-70", -4}, {" +20\t", 1}, {"9999", 500},
      {"-1e99", -1000}, {"inf", {}}, {"nan", {}}, {"1x", {}},  {"", {}}};
  for (const auto& [percent, position] : rows) EXPECT_EQ(gainPosition(percent), position) << percent;
}

}  // namespace
