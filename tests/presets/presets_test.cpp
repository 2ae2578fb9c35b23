#include "presets/presets.h"

#include "platform/profile_file.h"
#include "support/session.h"

namespace {

constexpr auto kExample =
    "-6:-5:-4:-3:-2:-1:0:1:2:3:4:5:6:7:8:9:10:11:12:-12:-11:-10:-9:-8:-7:0:0:0:0:0:0:0:LowCut=0:Range=0:"
    "BandWidth=025:"
    "AudioGain=140";

/// Positions of all controls as one text.
std::string positions() {
  std::string text;
  for (int i = 0; i < 32; ++i) text += std::to_string(Form1->Slider1(i).value()) + " ";
  text +=
      "gain " + std::to_string(Form1->Slider2.value()) + " width " + std::to_string(Form1->Slider3.value());
  return text + (Form1->Option2(1).value() ? " 6db" : " 12db") +
         (Form1->Option3(0).value() ? " cut" : " full");
}

class Presets : public support::Session {
 protected:
  void store(int preset, const std::string& line) {
    platform::writeProfileString("Preset#" + std::to_string(preset), "Frequency", line,
                                 AppState.PresetFilePath);
  }
  std::string file() { return support::readFile(folder.file("AppPresets.ini")); }

  /// Moves every control somewhere else than the example has it.
  static void moveEverything() {
    for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue(i < 16 ? 9 : -3);
    Form1->Slider2.setValue(-4);
    Form1->Slider3.setValue(200);
  }

  void recordEvents() {
    for (int i = 0; i < 2; ++i) {
      record(Form1->Option2(i).onClick, "R");
      record(Form1->Option3(i).onClick, "L");
    }
    for (int i = 0; i < 32; ++i) record(Form1->Slider1(i).onChange, "b");
    record(Form1->Slider2.onChange, "G");
    record(Form1->Slider3.onChange, "W");
    for (int i = 0; i < 32; ++i) record(Form1->Slider1(i).onScroll, "scroll");
  }

  std::string events;

 private:
  void record(forms::Event& event, const std::string& name) {
    event = [this, name, handler = event](int i) {
      events += name + std::to_string(i) + " ";
      handler(i);
    };
  }
};

TEST_F(Presets, TheExampleComesOutByteForByteAndComesBack) {
  click(Form1->Option1(3));
  const int bands[] = {-6, -5, -4, -3,  -2,  -1,  0,  1,  2,  3, 4, 5, 6, 7, 8, 9,
                       10, 11, 12, -12, -11, -10, -9, -8, -7, 0, 0, 0, 0, 0, 0, 0};
  for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue(bands[i]);
  Form1->Slider3.setValue(25);
  Form1->Slider2.setValue(7);
  click(Form1->Option3(0));
  const std::string saved = positions();
  Form1->Command1_Click(7);
  EXPECT_EQ(file(), std::string("[Preset#3]\r\nFrequency=") + kExample + "\r\n");
  SavePreset();
  EXPECT_EQ(file(), std::string("[Preset#3]\r\nFrequency=") + kExample + "\r\n") << "saved twice";
  EXPECT_EQ(AppState.BandWidth, 25);

  moveEverything();
  click(Form1->Option3(1));
  click(Form1->Option2(1));
  click(Form1->Option1(3));
  EXPECT_EQ(positions(), saved);
  EXPECT_EQ(Form1->Label7(0).caption(), "Preset Settings: 3");
  EXPECT_EQ(Form1->Label7(7).caption(), "Selected Frequency Value:  0db");
  EXPECT_EQ(Form1->Label7(4).caption(), "Selected Frequency: 4K") << "the last band that changed";
}

TEST_F(Presets, NoPresetAndAFolderThatTakesNoFileSaveNothing) {
  SavePreset();
  EXPECT_EQ(file(), "");
  click(Form1->Option1(1));
  AppState.PresetFilePath = folder.path() + "\\none\\AppPresets.ini";
  SavePreset();
  EXPECT_EQ(file(), "");
}

TEST_F(Presets, EveryPositionComesBack) {
  click(Form1->Option1(2));
  for (int round = 0; round < 254; ++round) {
    const int limit = round % 2 == 0 ? 12 : 6;
    Form1->Option2(limit == 12 ? 0 : 1).setValue(true);
    Form1->Option3(round / 2 % 2).setValue(true);
    for (int i = 0; i < 32; ++i) Form1->Slider1(i).setValue((round / 2 + i) % (2 * limit + 1) - limit);
    Form1->Slider2.setValue(round % 21 - 10);
    Form1->Slider3.setValue(round + 1);
    const std::string saved = positions();
    SavePreset();
    moveEverything();
    Form1->Option3(1 - round / 2 % 2).setValue(true);
    LoadPreset(2);
    ASSERT_EQ(positions(), saved);
  }
}

TEST_F(Presets, RaiseTheEventsOfWhatChangesAndNoOthers) {
  std::string line = "LowCut=0:Range=1:BandWidth=007:AudioGain=-40";
  std::string changes = "R1 b20 b30 L0 W0 G0 ";
  for (int i = 31; i >= 0; --i) line = std::to_string(i % 4) + ":" + line;
  for (int i = 0; i < 32; ++i) changes += i % 4 != 0 ? "b" + std::to_string(i) + " " : "";
  store(4, line);
  Form1->Slider1(20).setValue(-9);
  Form1->Slider1(30).setValue(5);
  recordEvents();
  click(Form1->Option1(4));
  EXPECT_EQ(events, changes) << "the new range zeroes what has moved, inside its own click";
  events.clear();
  click(Form1->Option1(4));
  EXPECT_EQ(events, "") << "the same preset again";
  Form1->Label7(7).setCaption("");
  store(5, "");
  click(Form1->Option1(5));
  EXPECT_EQ(events + Form1->Label7(0).caption() + Form1->Label7(7).caption(),
            "Preset Settings: 5Selected Frequency Value:  0db");
}

TEST_F(Presets, LinesThatNoSaveWroteSetWhatTheyHold) {
  const std::string digits(400, '9');
  const std::string rest = " 9 9 9 9 9 9 9 9 9 9 9 9 9 9 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 -3 ";
  const struct {
    std::string line, expected;
  } rows[] = {
      {"1", "1 9" + rest + "gain -4 width 200 12db full"},
      {"x:-2:", "9 -2" + rest + "gain -4 width 200 12db full"},
      {"99:-99", "12 -12" + rest + "gain -4 width 200 12db full"},
      {digits + ":" + digits, "9 9" + rest + "gain -4 width 200 12db full"},
      {"2.5:+3", "9 3" + rest + "gain -4 width 200 12db full"},
      {"7:7:RANGE=7:lowcut=0:bandwidth=9999:audiogain=4000", "7 7" + rest + "gain 10 width 254 12db cut"},
      {"7:7:BandWidth=x:AudioGain=", "7 7" + rest + "gain -4 width 200 12db full"},
      {"7:7:BandWidth=000:AudioGain=-999", "7 7" + rest + "gain -10 width 1 12db full"},
      {":::AudioGain=inf:Range=", "9 9" + rest + "gain -4 width 200 12db full"},
      {"\377\376:\t8 ", "9 8" + rest + "gain -4 width 200 12db full"},
  };
  for (const auto& row : rows) {
    moveEverything();
    Form1->Option3(1).setValue(true);
    store(6, row.line);
    click(Form1->Option1(6));
    EXPECT_EQ(positions(), row.expected) << row.line;
  }
  std::string many;
  for (int i = 0; i < 600; ++i) many += "1:";
  store(6, many);
  click(Form1->Option1(6));
  EXPECT_TRUE(positions().starts_with("1 1 1 1 "))
      << "more fields than bands, behind the end of the buffer too";
}

TEST_F(Presets, NoPresetWalksAllBandsBackAndStopsOnTick33) {
  moveEverything();
  Form1->Slider1(5).setValue(-12);
  Form1->Timer3.onTick = nullptr;
  click(Form1->Option1(0));
  EXPECT_EQ(Form1->Slider1(0).value(), 1) << "what a preset that is not stored sets";
  EXPECT_TRUE(Form1->Timer3.enabled());
  for (int tick = 1; tick <= 12; ++tick) Form1->Timer3_Timer();
  for (int i = 0; i < 32; ++i) EXPECT_EQ(Form1->Slider1(i).value(), 0) << i;
  EXPECT_EQ(Form1->Slider2.value(), -4);
  EXPECT_EQ(Form1->Slider3.value(), 200);
  for (int tick = 13; tick <= 32; ++tick) Form1->Timer3_Timer();
  EXPECT_TRUE(Form1->Timer3.enabled());
  Form1->Slider1(0).setValue(2);
  Form1->Timer3_Timer();
  EXPECT_TRUE(Form1->Timer3.enabled()) << "the first band has moved: 33 more";
  for (int tick = 34; tick <= 65; ++tick) Form1->Timer3_Timer();
  EXPECT_TRUE(Form1->Timer3.enabled());
  Form1->Timer3_Timer();
  EXPECT_FALSE(Form1->Timer3.enabled());
  EXPECT_EQ(AppState.SweepTicks, 0);
  AppState.SweepTicks = 20;
  click(Form1->Option1(2));
  EXPECT_EQ(AppState.SweepTicks, 0);
  EXPECT_FALSE(Form1->Timer3.enabled());
}

}  // namespace
