#include "windows/form3.h"

#include "core/eq_string.h"
#include "core/text.h"
#include "forms/application.h"

forms::DefaultInstance<EqStringWindow> Form3;

EqStringWindow::EqStringWindow() : Form(kForm3Data) {
  onLoad = [this](int) { Form_Load(); };
  onResize = [this](int) { Form_Resize(); };
  Command1.each([this](auto& button) { button.onClick = [this](int i) { Command1_Click(i); }; });
  Text1.onChange = [this](int) { Text1_Change(); };
  Timer1.onTick = [this](int) { Timer1_Timer(); };
}

void EqStringWindow::Form_Load() {
  Timer1.setEnabled(false);
}

void EqStringWindow::Form_Resize() {
  if (width() <= kForm3Data.leastWidth) setWidth(kForm3Data.leastWidth);
  Text1.setWidth(scaleWidth() - 20);
  Text1.setHeight(scaleHeight() - 70);
  for (int i = 0; i < Command1.count(); ++i) Command1(i).setTop(Text1.height() + 20);
  Command1(1).setLeft(scaleWidth() - 20 - Command1(1).width());
}

void EqStringWindow::ListIndividualStrings() {
  if (Text1.text().empty()) return;
  Text1.setFocus();
  Text1.setSelStart(0);
  Command1(0).setEnabled(false);
  Text1.setEnabled(false);
  // The first pass lists all; those behind it keep the title up for longer the longer the text is.
  const long passes = characterCount(Text1.text()) + 1;
  for (long pass = 0; pass < passes; ++pass) {
    forms::Application::doEvents();
    if (!isLoaded()) return;
    setCaption("Working...");
    Text1.setText(onePerLine(Text1.text()));
  }
  Text1.setEnabled(true);
  Command1(0).setEnabled(true);
  setCaption("Done.");
  // Switched off first: a second listing within the time of the first starts the time anew.
  Timer1.setEnabled(false);
  Timer1.setEnabled(true);
}

void EqStringWindow::Timer1_Timer() {
  setCaption(kForm3Data.caption);
  Timer1.setEnabled(false);
}
