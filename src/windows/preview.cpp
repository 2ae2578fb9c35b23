// The preview: the source through the settings of this moment, played by the tool itself.

#include "core/app_state.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "windows/compose_eq_string.h"
#include "windows/form1.h"

void MainWindow::AudioPreview() {
  objDOS.set(std::make_shared<DOSOutputs>());
  Slider2_Scroll();
  Slider3_Scroll();
  for (int i = 0; i < Slider1.count(); ++i) ComposeEqString(i);
  PreviewSound();
}

void MainWindow::PreviewSound() {
  const auto runner = objDOS.get();
  runner->setCommandLine(previewCommand(platform::programFolder(), AppState));
  runner->ExecuteCommand("");
  objDOS.clear();
}
