// The two sliders that all bands share: the gain in front of the chain and the width of every filter.

#include "core/app_state.h"
#include "core/text.h"
#include "windows/colors.h"
#include "windows/compose_eq_string.h"
#include "windows/form1.h"

namespace {

/// Position of the gain slider that leaves the source as it is.
constexpr int kUnity = 5;

}  // namespace

void MainWindow::Slider2_Scroll() {
  ShowGainBar();
  ShowGain(Slider2.value());
}

void MainWindow::Slider2_change() {
  Slider2_Scroll();
}

void MainWindow::ShowGain(int Value) {
  AppState.AudioGain = static_cast<double>(Value) / kUnity;
  const std::string percent = std::to_string(Value * 100 / kUnity);
  Label7(5).setCaption("Gain Settings " + percent + "% Of Source");
  Label4(3).setCaption("Gain:" + percent + "%");
}

void MainWindow::ShowGainBar() {
  const int value = Slider2.value();
  const double middle = Slider2.left() + Slider2.width() / 2;
  Line10.setBorderColor(gainColor(value, kUnity));
  Line10.setX2(middle);
  Line10.setX1(middle + value / 2.0 * 25);
  EndClipboardNotice();
}

void MainWindow::Slider3_Scroll() {
  ShowBandWidth(Slider3.value());
  for (int i = 0; i < Slider1.count(); ++i) ComposeEqString(i);
}

void MainWindow::Slider3_Change() {
  Slider3_Scroll();
}

void MainWindow::ShowBandWidth(int Value) {
  AppState.BandWidth = Value;
  const std::string width = padded(std::to_string(Value), 3);
  Label8(3).setCaption("Current Bandwidth Settings: " + width + " Hz");
  Label7(6).setCaption("Current Bandwidth: " + width + " Hz");
  EndClipboardNotice();
}
