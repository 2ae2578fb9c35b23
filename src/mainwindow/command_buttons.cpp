// The push buttons: each hands its click to the part of the program that does the work.

#include "core/app_state.h"
#include "forms/application.h"
#include "forms/clipboard.h"
#include "mainwindow/form1.h"
#include "presets/presets.h"
#include "stringwindow/form3.h"
#include "tools/form2.h"
#include "tools/render.h"
#include "tools/source.h"

namespace {

constexpr auto kCopied = "Data On Clipboard";

}  // namespace

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
      forms::Clipboard::clear();
      forms::Clipboard::setText(AppState.EqString);
      Command1(8).setCaption(kCopied);
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
  if (Command1(8).caption() == kCopied) Command1(8).setCaption("EQ String > Clipboard");
}
