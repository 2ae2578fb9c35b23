#include "windows/form1.h"

#include "core/app_state.h"
#include "windows/source.h"
#include "windows/startup.h"

forms::DefaultInstance<MainWindow> Form1;

MainWindow::MainWindow()
    : Form(kForm1Data), objDOS([this](std::string& piece) { objDOS_ReceiveOutputs(piece); }) {
  onLoad = [this](int) { Form_Load(); };
  onResize = [this](int) { Form_Resize(); };
  onQueryUnload = [this](int) { Form_QueryUnload(); };
  onUnload = [this](int) { Form_Unload(); };
  onTerminate = [this](int) { Form_Terminate(); };
  onMouseMove = [this](int) { Form_MouseMove(); };
  onFileDrop = [this](int) { UseSource(droppedFile()); };

  Command1.each([this](auto& button) { button.onClick = [this](int i) { Command1_Click(i); }; });
  Slider2.onMouseMove = [this](int) { Slider2_MouseMove(); };
  Slider2.onScroll = [this](int) { Slider2_Scroll(); };
  Slider2.onChange = [this](int) { Slider2_change(); };
  Slider3.onScroll = [this](int) { Slider3_Scroll(); };
  Slider3.onChange = [this](int) { Slider3_Change(); };
  Check1.onClick = [this](int) { Check1_Click(); };
  Option1.each([this](auto& option) { option.onClick = [this](int i) { Option1_Click(i); }; });
  Option2.each([this](auto& option) { option.onClick = [this](int i) { Option2_Click(i); }; });
  Option3.each([this](auto& option) {
    option.onClick = [this](int i) { Option3_Click(i); };
    option.onMouseMove = [this](int) { Option3_MouseMove(); };
  });
  Label4.each([this](auto& label) {
    label.onMouseMove = [this](int i) { Label4_MouseMove(i); };
    label.onMouseUp = [this](int i) { Label4_MouseUp(i); };
  });
  Picture1.each([this](auto& box) { box.onMouseMove = [this](int) { Picture1_MouseMove(); }; });
  Picture4.onMouseMove = [this](int) { Picture4_MouseMove(); };
  Text1.onMouseMove = [this](int) { Text1_MouseMove(); };
  Timer3.onTick = [this](int) { Timer3_Timer(); };
}

void MainWindow::Form_Load() {
  Slider2_change();
}

// `CleanUnload` never returns: `Form_Unload` and `Form_Terminate` are not reached.
void MainWindow::Form_QueryUnload() {
  CleanUnload();
}

void MainWindow::Form_Unload() {
  CleanUnload();
}

void MainWindow::Form_Terminate() {
  CleanUnload();
}

void MainWindow::Form_Resize() {
  AppState.WindowMinimised = minimised();
  if (AppState.WindowMinimised) return;
  // Outer sizes, with the frame.
  setWidth(17550);
  setHeight(5415);
}
