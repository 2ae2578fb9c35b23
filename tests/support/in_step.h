// What has to hold between the controls of the main window, what they show and what they stand for.
#pragma once

#include <cmath>
#include <sstream>

#include "core/app_state.h"
#include "windows/form1.h"

namespace support {

/// What was found to differ from what was expected.
struct Differences {
  std::ostringstream text = {};
  void same(const std::string& what, const auto& found, const auto& expected) {
    if (found != expected) text << what << " is " << found << " instead of " << expected << "\n";
  }
};

inline void compareBands(Differences& faults, const AppStateRecord& state, int limit) {
  // The chain follows each change but that of the low cut, which waits for the next one.
  const std::string cut = "equalizer=f=1:width_type=o:width=25:g=-5,";
  const bool isCut = state.EqString.starts_with(cut);
  std::ostringstream chain(isCut ? cut : "", std::ios::ate);
  for (int i = 0; i < 32; ++i) {
    const forms::Slider& band = Form1->Slider1(i);
    const int value = band.value();
    const std::string name = " of band " + std::to_string(i), caption = Form1->Label1(i).caption();
    faults.same("range" + name, std::max({band.max(), -band.min(), std::abs(value)}), limit);
    faults.same("ticks" + name, band.tickFrequency(), limit / 6);
    // A band that was never moved is at 0; its text has no sign, and its bar is as it was made.
    const std::string& text = state.BandGainText[static_cast<std::size_t>(i)];
    const std::string moved = value < 0 ? std::to_string(-value) : "-" + std::to_string(value);
    faults.same("text" + name, text, value == 0 && text == "0" ? text : moved);
    const double bar = Form1->Line4(i).y1() - Form1->Line4(i).y2(), made = 20 - band.height();
    faults.same("bar" + name, bar, value == 0 && bar == made ? made : value * 60 / limit);
    faults.same("bar shown" + name, Form1->Line4(i).visible(), Form1->Check1.value() == 1);
    if (isCut && i < 3) continue;
    chain << "equalizer=f=" << std::stod(caption) * (caption.ends_with('K') ? 1000 : 1);
    chain << ":width_type=o:width=" << state.BandWidth << ":g=" << text << ",";
  }
  if (!state.EqString.empty()) faults.same("chain", state.EqString + ",", chain.str());
}

/// Tells what does not fit together while no handler runs; empty where all does.
inline std::string outOfStep() {
  Differences faults;
  const AppStateRecord& state = AppState;
  const int range = state.RangeIndex, limit = range == 0 ? 12 : 6, gain = Form1->Slider2.value();
  compareBands(faults, state, limit);
  faults.same("chosen range", Form1->Option2(range).value() - Form1->Option2(1 - range).value(), 1);
  faults.same("chosen low cut", Form1->Option3(0).value() - Form1->Option3(1).value(),
              state.LowCutOn ? 1 : -1);
  faults.same("LowCutIndex", state.LowCutIndex, state.LowCutOn ? 0 : 1);
  faults.same("AudioGain", state.AudioGain, gain / 5.0);
  faults.same("BandWidth", state.BandWidth, Form1->Slider3.value());
  const std::string percent = std::to_string(gain * 20) + "%", onOff[] = {"Off", "On"};
  const std::string width = std::to_string(1000 + state.BandWidth).substr(1) + " Hz";
  const std::string most = std::to_string(limit);
  faults.same("scale", Form1->Label2(0).caption() + Form1->Label2(1).caption(),
              "+" + most + "db-" + most + "db");
  faults.same("Label7(0)", Form1->Label7(0).caption(),
              "Preset Settings: " + std::to_string(state.PresetNumber));
  faults.same("Label7(1)", Form1->Label7(1).caption(), "EQ Range: +/- " + most + " db");
  faults.same("Label7(2)", Form1->Label7(2).caption(), "Low Cut Filter: " + onOff[state.LowCutOn]);
  faults.same("Label7(3)", Form1->Label7(3).caption(), "Indicators: " + onOff[Form1->Check1.value()]);
  faults.same("Label7(5)", Form1->Label7(5).caption(), "Gain Settings " + percent + " Of Source");
  faults.same("Label7(6)", Form1->Label7(6).caption(), "Current Bandwidth: " + width);
  faults.same("Label4(3)", Form1->Label4(3).caption(), "Gain:" + percent);
  faults.same("Label8(3)", Form1->Label8(3).caption(), "Current Bandwidth Settings: " + width);
  faults.same("length of the gain bar", Form1->Line10.x1() - Form1->Line10.x2(), gain * 12.5);
  int lit = 0;
  for (int i = 0; i < 4; ++i) lit += Form1->Label4(i).foreColor() == 0xFF0000;
  faults.same("more than one lit gain label", lit > 1, false);
  return faults.text.str();
}

/// Where the controls stand: range, low cut, gain and width, and then the bands.
inline std::vector<int> positions() {
  std::vector<int> all{Form1->Option2(1).value(), Form1->Option3(1).value()};
  all.insert(all.end(), {Form1->Slider2.value(), Form1->Slider3.value()});
  Form1->Slider1.each([&](const forms::Slider& band) { all.push_back(band.value()); });
  return all;
}

}  // namespace support
