// What follows the mouse: the band marker, the gain labels, which are lit and clicked, and the tips of the
// low-cut buttons.

#include "windows/colors.h"
#include "windows/form1.h"

void MainWindow::Slider1_MouseMove(int Index) {
  if (!Label6.visible()) Label6.setVisible(true);
  Label6.setLeft(Slider1(Index).left() + Picture1(0).left() + Label6.width() / 2);
  HighlightBandLabel(Index);
  ResetGainLabels();
}

void MainWindow::HighlightBandLabel(int Index) {
  for (int i = 0; i < Slider1.count(); ++i) Label1(i).setForeColor(i == Index ? kRed : kBlack);
}

void MainWindow::Form_MouseMove() {
  if (!Label6.visible()) return;
  Label6.setVisible(false);
  HighlightBandLabel(-1);  // none
}

void MainWindow::Label4_MouseMove(int Index) {
  Label4.each([Index](forms::Label& label) { label.setForeColor(label.index() == Index ? kBlue : kBlack); });
}

void MainWindow::Slider2_MouseMove() {
  ResetGainLabels();
}

void MainWindow::Picture1_MouseMove() {
  ResetGainLabels();
}

void MainWindow::Picture4_MouseMove() {
  ResetGainLabels();
}

void MainWindow::Text1_MouseMove() {
  ResetGainLabels();
}

void MainWindow::ResetGainLabels() {
  Label4.each([](forms::Label& label) { label.setForeColor(kBlack); });
}

void MainWindow::Label4_MouseUp(int Index) {
  switch (Index) {
    case 0:
      Slider2.setValue(0);
      break;
    case 1:
      Slider2.setValue(Slider2.value() - 1);
      break;
    case 2:
      Slider2.setValue(Slider2.value() + 1);
      break;
    default:
      return;
  }
  Slider2_Scroll();
}

void MainWindow::Option3_MouseMove() {
  constexpr auto kCuts = "Cuts Potentially Damaging Frequencies 25Hz 20Hz 19Hz ";
  const std::string notSelected = std::string(" (Not Selected) ") + kCuts;
  Option3(0).setToolTipText(Option3(0).value() ? std::string(" (Selected) ") + kCuts : notSelected);
  Option3(1).setToolTipText(Option3(1).value() ? " (Selected) Allows Frequencies 25Hz 20Hz 19Hz "
                                               : notSelected);
}
