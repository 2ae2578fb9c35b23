#include "windows/presets.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/app_state.h"
#include "core/preset_line.h"
#include "core/text.h"
#include "platform/profile_file.h"
#include "windows/form1.h"

namespace {

constexpr auto kKey = "Frequency";
/// What a load reads of a line at most.
constexpr std::size_t kMostBytes = 1023;

std::string sectionName(int preset) {
  return "Preset#" + std::to_string(preset);
}

void assign(forms::Slider& slider, std::optional<long long> value) {
  // Any number that an int holds will do: the slider clamps it to its own range.
  if (value) slider.setValue(static_cast<int>(std::clamp(*value, -32768LL, 32767LL)));
}

/// Selects the option whose index the text holds, after the other one of the two is cleared.
void select(forms::ControlArray<forms::OptionButton>& options, std::string_view index) {
  for (const int chosen : {1, 0}) {
    if (index != std::to_string(chosen)) continue;
    options(1 - chosen).setValue(false);
    options(chosen).setValue(true);
  }
}

/// Applies the marked fields of `preset`, and to band number `pass` its element.
void applyPass(const Preset& preset, int pass) {
  AppState.PresetPass += 1;
  select(Form1->Option2, preset.range);
  select(Form1->Option3, preset.lowCut);
  assign(Form1->Slider3, preset.bandWidth);
  assign(Form1->Slider2, preset.gain);
  Form1->Slider2_Scroll();
  const auto element = static_cast<std::size_t>(pass);
  if (AppState.PresetPass <= kBands && element < preset.elements.size())
    assign(Form1->Slider1(pass), wholeNumber(preset.elements[element]));
}

}  // namespace

void SavePreset() {
  if (AppState.PresetNumber == 0) return;
  std::vector<int> positions;
  Form1->Slider1.each([&positions](const forms::Slider& slider) { positions.push_back(slider.value()); });
  // One write that replaces the line, not a delete and a write: a disk that fills up between the two would
  // lose the preset.
  platform::writeProfileString(sectionName(AppState.PresetNumber), kKey, presetLine(positions, AppState),
                               AppState.PresetFilePath);
}

void LoadPreset(int PresetIndex) {
  AppState.PresetPass = 0;
  const std::string line =
      platform::profileString(sectionName(PresetIndex), kKey, "1", kMostBytes, AppState.PresetFilePath);
  const Preset preset = readPreset(line);
  // A pass a character: no line has more elements. What is applied again changes nothing.
  for (int pass = 0; pass < static_cast<int>(line.size()); ++pass) applyPass(preset, pass);
  Form1->Label7(7).setCaption("Selected Frequency Value:  0db");
}

void SelectPreset(int Index) {
  AppState.PresetNumber = Index;
  if (Index == 0) Form1->Timer3.setEnabled(true);
  Form1->Label7(0).setCaption("Preset Settings: " + std::to_string(Index));
  Form1->Label7(0).announce();
  LoadPreset(AppState.PresetNumber);
}

void MainWindow::Option1_Click(int Index) {
  AppState.SweepTicks = 0;
  SelectPreset(Index);
}

void MainWindow::Timer3_Timer() {
  AppState.SweepTicks += 1;
  for (int i = 0; i < Slider1.count(); ++i) {
    forms::Slider& slider = Slider1(i);
    if (slider.value() > 0)
      slider.setValue(slider.value() - 1);
    else if (slider.value() < 0)
      slider.setValue(slider.value() + 1);
  }
  if (AppState.SweepTicks <= 32) return;
  AppState.SweepTicks = 0;
  Timer3.setEnabled(Slider1(0).value() != 0);
}
