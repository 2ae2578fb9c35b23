// The option groups, the check box and what they show in the status strip.

#include "core/app_state.h"
#include "windows/form1.h"

namespace {

struct Range {
  const char* top;
  const char* bottom;
  int limit;  ///< positions run from -limit to limit
  int tickFrequency;
};

constexpr Range kRanges[] = {{"+12db", "-12db", 12, 2}, {"+6db", "-6db", 6, 1}};

}  // namespace

void MainWindow::Option2_Click(int Index) {
  ApplyRange(Index);
  ShowRange(Index);
}

void MainWindow::ApplyRange(int Index) {
  AppState.RangeIndex = Index;
  const Range& range = kRanges[Index == 0 ? 0 : 1];
  Label2(0).setCaption(range.top);
  Label2(1).setCaption(range.bottom);
  for (int i = 0; i < Slider1.count(); ++i) {
    forms::Slider& slider = Slider1(i);
    slider.setMax(range.limit);
    slider.setMin(-range.limit);
    slider.setValue(0);
    slider.setTickFrequency(range.tickFrequency);
  }
}

void MainWindow::ShowRange(int Index) {
  Label7(1).setCaption(Index == 0 ? "EQ Range: +/- 12 db" : "EQ Range: +/- 6 db");
}

void MainWindow::Option3_Click(int Index) {
  ShowLowCut(Index);
  if (Index == 0) AppState.LowCutOn = true;
  if (Index == 1) AppState.LowCutOn = false;
}

void MainWindow::ShowLowCut(int Index) {
  AppState.LowCutIndex = Index;
  Label7(2).setCaption(Index == 0 ? "Low Cut Filter: On" : "Low Cut Filter: Off");
}

void MainWindow::Check1_Click() {
  ShowIndicatorBars();
  ShowIndicatorState();
}

void MainWindow::ShowIndicatorBars() {
  const bool shown = Check1.value() != 0;
  Line4.each([shown](forms::Line& bar) { bar.setVisible(shown); });
}

void MainWindow::ShowIndicatorState() {
  Label7(3).setCaption(Check1.value() == 1 ? "Indicators: On" : "Indicators: Off");
}
