#include "tools/tool_output.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

#include "tools/command_lines.h"

namespace {

TEST(ToolOutput, FindsTheDurationAsTheToolsWriteIt) {
  const std::tuple<const char*, std::optional<std::string>, std::optional<std::string>> rows[] = {
      {"  Duration: 00:03:21.45, start: 0.000000", "201", "201"},
      {"Duration: 00:00:00.40", "0", "0"},
      {"duration: 00:03:21", std::nullopt, std::nullopt},
      {"Duration: 00:00:05 Duration: 00:00:09", "5", "5"},
      {"Duration:", "", ""},
      {"Duration: 00:03:2", "", ""},
      {"Duration: 23:59:59.00", "86399", "86399"},
      {"Duration: 24:00:00.00", "", ""},
      {"Duration: 00:60:00.00", "", ""},
      {"Duration: 00:00:60.00", "", ""},
      {"Duration: -0:00:01.00", "", ""},
      {"Duration: 00:0a:00.00", "", ""},
      {"title: Duration: long\r\n  Duration: 00:00:07.00", "", "7"},
  };
  for (const auto& [output, first, ofRun] : rows) {
    EXPECT_EQ(durationSeconds(output), first) << output;
    EXPECT_EQ(durationSecondsOfRun(output), ofRun) << output;
  }
}

/// Number texts are the same whatever the locale.
TEST(ToolOutput, WritesPercentAndGainWithAPointInEveryLocale) {
  for (const char* locale : {"C", "de_DE.UTF-8"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    const std::tuple<float, float, const char*> percents[] = {
        {0.F, 201.F, "00.00"}, {60.F, 201.F, "29.85"}, {120.F, 201.F, "59.70"}, {201.F, 201.F, "100.00"},
        {1.F, 800.F, "00.13"}, {7.F, 224.F, "03.13"},  {9.F, 100.F, "09.00"}};
    for (const auto& [value, max, text] : percents) EXPECT_EQ(percentText(value, max), text) << locale;
    const std::pair<double, const char*> gains[] = {{1, "1"},           {0.6, "0.6"}, {7 / 5.0, "1.4"},
                                                    {-7 / 5.0, "-1.4"}, {0, "0"},     {-2, "-2"}};
    for (const auto& [gain, text] : gains) EXPECT_EQ(gainText(gain), text) << locale;
  }
  std::setlocale(LC_ALL, "C");
}

}  // namespace
