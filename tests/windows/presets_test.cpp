#include "windows/presets.h"

#include "platform/profile_file.h"
#include "support/session.h"

namespace {

class Presets : public support::Session {
 protected:
  /// The bands rise from position `band` on, and from -12 again after 12.
  static void set(int range, int lowCut, int gain, int width, int band) {
    Form1->Option2(range).setValue(true);
    Form1->Option3(lowCut).setValue(true);
    Form1->Slider2.setValue(gain);
    Form1->Slider3.setValue(width);
    for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue((band + 12 + i) % 25 - 12);
  }
  static void load(const std::string& line) {
    platform::writeProfileString("Preset#4", "Frequency", line, AppState.PresetFilePath);
    click(Form1->Option1(4));
  }
};

TEST_F(Presets, SaveNothingWithoutAChoice) {
  SavePreset();
  EXPECT_FALSE(std::filesystem::exists(folder.file("AppPresets.ini")));
}

TEST_F(Presets, RaiseTheEventsOfWhatChangesAndNoOthers) {
  Form1->Slider1(20).setValue(-9);
  Form1->Slider1(30).setValue(5);
  std::string line;
  // The new range puts to 0 what has moved, inside its own click.
  std::string changes = "R1 b20 b30 L0 W G ";
  for (int i = 0; i < 32; ++i) {
    const std::string name = "b" + std::to_string(i) + " ";
    record(Form1->Slider1(i).onChange, name);
    line += std::to_string(i % 4) + ":";
    if (i % 4 != 0) changes += name;
  }
  for (const int i : {0, 1}) {
    record(Form1->Option2(i).onClick, "R" + std::to_string(i) + " ");
    record(Form1->Option3(i).onClick, "L" + std::to_string(i) + " ");
  }
  record(Form1->Slider2.onChange, "G ");
  record(Form1->Slider3.onChange, "W ");
  load(line + "LowCut=0:Range=1:BandWidth=007:AudioGain=-40");
  EXPECT_EQ(events, changes);
  click(Form1->Option1(4));
  EXPECT_EQ(events, changes) << "the same preset again";
  Form1->Command1_Click(8);
  click(Form1->Option1(4));
  EXPECT_EQ(Form1->Command1(8).caption(), "EQ String > Clipboard") << "after a preset that changes nothing";
  EXPECT_EQ(Form1->Label7(7).caption(), "Selected Frequency Value:  0db");
}

TEST_F(Presets, LinesThatNoSaveWroteSetWhatTheyHold) {
  const std::string digits(400, '9');
  const std::pair<std::string, std::vector<int>> rows[] = {
      {"1", {0, 1, -4, 200, 1, 4, 5}},
      {"x:-2:2.5:+9:\377\376:\t5 :", {0, 1, -4, 200, 3, -2, 5, 9, 7, 5, 9}},
      {"99:-99:" + digits + ":-" + digits, {0, 1, -4, 200, 12, -12, 12, -12, 7}},
      {"RANGE=7:7:lowcut=0:bandwidth=9999:audiogain=4000", {0, 0, 10, 254, 3, 7, 5}},
      {"BandWidth=000:AudioGain=-999", {0, 1, -10, 1, 3}},
      {"AudioGain= 69", {0, 1, 3, 200, 3}},
      {"AudioGain=+70", {0, 1, 4, 200, 3}},
      {"AudioGain=1e99", {0, 1, 10, 200, 3}},
      {"BandWidth=x:AudioGain=inf:7:Range=", {0, 1, -4, 200, 3, 4, 7, 6}}};
  for (const auto& [line, expected] : rows) {
    set(0, 1, -4, 200, 3);
    load(line);
    auto found = support::positions();
    found.resize(expected.size());
    EXPECT_EQ(found, expected) << line;
  }
}

TEST_F(Presets, NoPresetWalksAllBandsBackIn33TicksAndIn33MoreWhereTheFirstHasMoved) {
  set(0, 1, -4, 200, 3);
  Form1->Timer3.onTick = nullptr;
  click(Form1->Option1(0));
  EXPECT_EQ(Form1->Slider1(0).value(), 1) << "what a preset that is not stored sets";
  Form1->Timer3_Timer();
  click(Form1->Option1(5));
  EXPECT_TRUE(Form1->Timer3.enabled()) << "a numbered preset stops the way back";
  click(Form1->Option1(0));  // Counts from the beginning.
  for (int tick = 1; tick <= 66; ++tick) {
    EXPECT_TRUE(Form1->Timer3.enabled()) << "before tick " << tick;
    if (tick == 33) Form1->Slider1(0).setValue(2);
    Form1->Timer3_Timer();
    if (tick != 12) continue;
    for (int i = 0; i < 32; ++i) EXPECT_EQ(Form1->Slider1(i).value(), 0) << i;
  }
  EXPECT_FALSE(Form1->Timer3.enabled());
}

}  // namespace
