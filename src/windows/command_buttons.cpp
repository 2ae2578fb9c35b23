// The push buttons: each hands its click to the part of the program that does the work.

#include "core/app_state.h"
#include "forms/application.h"
#include "windows/clipboard_notice.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/form3.h"
#include "windows/presets.h"
#include "windows/render.h"
#include "windows/source.h"

void MainWindow::Command1_Click(int Index) {
  switch (Index) {
    case 0:
      OpenSourceFile();
      break;
    case 2:
      AudioPreview();
      break;
    case 3:
      SaveAsFile();
      break;
    case 6:
      Form3.load();
      Form3->show(this);
      break;
    case 7:
      SavePreset();
      break;
    case 8:
      CopyToClipboard(Command1(8), AppState.EqString);
      break;
    case 10:
      Form2.unload();
      Form1.unload();
      forms::Application::end();
    default:
      break;
  }
}

void MainWindow::EndClipboardNotice() {
  EndCopyNotice(Command1(8), "EQ String > Clipboard");
}

void MainWindow::EnableSourceButtons(bool Enabled) {
  for (const int i : {2, 3, 7, 8}) {
    forms::CommandButton& button = Command1(i);
    if (Enabled && !button.enabled()) button.announce();
    button.setEnabled(Enabled);
  }
}
