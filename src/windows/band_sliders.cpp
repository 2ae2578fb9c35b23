// The 32 band sliders, their read-outs and their bars.

#include "core/app_state.h"
#include "core/eq_string.h"
#include "windows/colors.h"
#include "windows/compose_eq_string.h"
#include "windows/form1.h"

void MainWindow::Slider1_Scroll(int Index) {
  ShowSelectedBand(Index);
  ComposeEqString(Index);
}

void MainWindow::Slider1_Change(int Index) {
  Slider1_Scroll(Index);
}

void MainWindow::ShowSelectedBand(int Index) {
  const forms::Slider& slider = Slider1(Index);
  Label7(4).setCaption("Selected Frequency: " + Label1(Index).caption());
  Label7(7).setCaption("Selected Frequency Value: " + bandGainText(slider.value()) + "db");

  // A bar at either end of its slider is 60 pixels long, in both ranges.
  const int pixelsPerStep = AppState.RangeIndex == 0 ? 5 : 10;
  const double middle = slider.top() + slider.height() / 2;
  forms::Line& bar = Line4(Index);
  bar.setY1(middle + slider.value() * pixelsPerStep);
  bar.setY2(middle);
  bar.setBorderColor(barColor(slider.value(), slider.min()));
}
