// What has to hold between the controls of the main window, what they show and what they stand for.
#pragma once

#include <cmath>
#include <sstream>

#include "core/app_state.h"
#include "windows/form1.h"

namespace support {

/// Collects what is otherwise than expected.
class Differences {
 public:
  void compare(const std::string& what, const auto& found, const auto& expected) {
    if (found != expected) text_ << what << " is " << found << " instead of " << expected << "\n";
  }
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

inline void compareBand(Differences& differences, int i, int limit) {
  const forms::Slider& band = Form1->Slider1(i);
  const forms::Line& bar = Form1->Line4(i);
  const int value = band.value();
  const std::string& text = AppState.BandGainText[static_cast<std::size_t>(i)];
  const std::string name = " of band " + std::to_string(i);
  differences.compare("range" + name, std::max({band.max(), -band.min(), std::abs(value)}), limit);
  differences.compare("ticks" + name, band.tickFrequency(), limit / 6);
  for (const double x : {bar.x1(), bar.x2()})
    differences.compare("place of the bar" + name, x, band.left() - 5);
  differences.compare("bar shown" + name, bar.visible(), Form1->Check1.value() == 1);
  // A band that was never moved is at 0: its bar is as it was made, and until it is composed its text has no
  // sign.
  if (value == 0 && bar.y1() == 20) return;
  const int boost = -value * 12 / limit;
  differences.compare("text" + name, text, (value < 0 ? "" : "-") + std::to_string(std::abs(value)));
  differences.compare("foot of the bar" + name, bar.y2(), Form1->Line1.y1());
  differences.compare("length of the bar" + name, bar.y2() - bar.y1(), boost * 5);
  differences.compare("colour of the bar" + name, bar.borderColor(),
                      boost > 10 ? 0xFFU : (boost > 5 ? 0x80FFFFU : 0x80FF80U));
}

/// The chain as it follows from captions, width and gains, with a comma behind each filter. It follows each
/// change but that of the low cut, which waits for the next one.
inline std::string expectedChain() {
  const std::string cut = "equalizer=f=1:width_type=o:width=25:g=-5,";
  const bool isCut = AppState.EqString.starts_with(cut);
  std::ostringstream chain(isCut ? cut : "", std::ios::ate);
  for (int i = isCut ? 3 : 0; i < 32; ++i) {
    const std::string caption = Form1->Label1(i).caption();
    chain << "equalizer=f=" << std::stod(caption) * (caption.ends_with('K') ? 1000 : 1);
    chain << ":width_type=o:width=" << AppState.BandWidth;
    chain << ":g=" << AppState.BandGainText[static_cast<std::size_t>(i)] << ",";
  }
  return chain.str();
}

/// Tells what does not fit together while no handler runs; empty where all does.
inline std::string outOfStep() {
  Differences differences;
  const int range = AppState.RangeIndex;
  const int limit = range == 0 ? 12 : 6;
  const int gain = Form1->Slider2.value();
  const std::string most = std::to_string(limit);
  const std::string percent = std::to_string(gain * 20) + "%";
  const std::string width = std::to_string(1000 + AppState.BandWidth).substr(1) + " Hz";
  const std::string onOff[] = {"Off", "On"};
  for (int i = 0; i < 32; ++i) compareBand(differences, i, limit);
  if (!AppState.EqString.empty()) differences.compare("chain", AppState.EqString + ",", expectedChain());
  const std::pair<std::string, std::string> captions[] = {
      {Form1->Label2(0).caption(), "+" + most + "db"},
      {Form1->Label2(1).caption(), "-" + most + "db"},
      {Form1->Label7(0).caption(), "Preset Settings: " + std::to_string(AppState.PresetNumber)},
      {Form1->Label7(1).caption(), "EQ Range: +/- " + most + " db"},
      {Form1->Label7(2).caption(), "Low Cut Filter: " + onOff[AppState.LowCutOn]},
      {Form1->Label7(3).caption(), "Indicators: " + onOff[Form1->Check1.value()]},
      {Form1->Label7(5).caption(), "Gain Settings " + percent + " Of Source"},
      {Form1->Label7(6).caption(), "Current Bandwidth: " + width},
      {Form1->Label4(3).caption(), "Gain:" + percent},
      {Form1->Label8(3).caption(), "Current Bandwidth Settings: " + width}};
  for (const auto& [found, expected] : captions) differences.compare("caption", found, expected);
  const int lowCut = AppState.LowCutOn ? 0 : 1;
  differences.compare("LowCutIndex", AppState.LowCutIndex, lowCut);
  for (const int i : {0, 1}) {
    differences.compare("choice of the low cut", Form1->Option3(i).value(), i == lowCut);
    differences.compare("choice of the range", Form1->Option2(i).value(), i == range);
  }
  differences.compare("AudioGain", AppState.AudioGain, gain / 5.0);
  differences.compare("length of the gain bar", Form1->Line10.x1() - Form1->Line10.x2(), gain * 12.5);
  const bool isRed = gain < 1 || gain > 7;
  differences.compare("colour of the gain bar", Form1->Line10.borderColor(),
                      isRed ? 0xFFU : (gain > 5 ? 0x80FFFFU : 0x80FF80U));
  differences.compare("BandWidth", AppState.BandWidth, Form1->Slider3.value());
  return differences.text();
}

/// Where the controls stand: range, low cut, gain and width, and then the bands.
inline std::vector<int> positions() {
  std::vector<int> all{Form1->Option2(1).value(), Form1->Option3(1).value(), Form1->Slider2.value(),
                       Form1->Slider3.value()};
  Form1->Slider1.each([&](const forms::Slider& band) { all.push_back(band.value()); });
  return all;
}

}  // namespace support
