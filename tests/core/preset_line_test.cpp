#include "core/preset_line.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

TEST(PresetLine, HoldsThePositionsAndFourMarkedFields) {
  std::array<int, 32> positions{};
  std::iota(positions.begin(), positions.begin() + 19, -6);
  AppStateRecord state;
  state.LowCutIndex = 0;
  state.BandWidth = 25;
  state.AudioGain = 7 / 5.0;
  EXPECT_EQ(presetLine(positions, state),
            "-6:-5:-4:-3:-2:-1:0:1:2:3:4:5:6:7:8:9:10:11:12:0:0:0:0:0:0:0:0:0:0:0:0:0:"
            "LowCut=0:Range=0:BandWidth=025:AudioGain=140");
}

TEST(PresetLine, AGainIsTheNearestPosition) {
  const std::pair<const char*, std::optional<long long>> rows[] = {
      {"140", 7},       {"70", 4},   {"69", 3},   {"-70", -4}, {" +20\t", 1}, {"9999", 500},
      {"-1e99", -1000}, {"inf", {}}, {"nan", {}}, {"1x", {}},  {"", {}}};
  for (const auto& [percent, position] : rows) EXPECT_EQ(gainPosition(percent), position) << percent;
}

TEST(PresetLine, AFieldIsWhatStandsBehindTheFirstMarkerInAnyCase) {
  EXPECT_EQ(presetField("range=1:Range=2", "Range=", 1), "1");
  EXPECT_EQ(presetField("BandWidth=12", "BandWidth=", 3), "12");
  EXPECT_EQ(presetField("BandWidth=", "BandWidth=", 3), "");
  EXPECT_EQ(presetField("Band", "BandWidth=", 3), "");
}

}  // namespace
