// The string window's buttons: its text goes to a file or to the clipboard, as the box shows it.

#include "forms/clipboard.h"
#include "mainwindow/form1.h"
#include "platform/files.h"
#include "stringwindow/form3.h"
#include "tools/dialogs.h"
#include "tools/source.h"

namespace {

constexpr auto kCopied = "Data On Clipboard";

}  // namespace

void EqStringWindow::Command1_Click(int Index) {
  switch (Index) {
    case 0:
      SaveText();
      break;
    case 1:
      unload();
      break;
    case 2:
      ListIndividualStrings();
      break;
    case 3:
      CopyText();
      break;
    default:
      break;
  }
}

void EqStringWindow::SaveText() {
  forms::CommonDialog& dialog = Form1->CDialog;
  prepareDialog("Save As", "Text Files (*.txt)|*.txt|All File Types (*.*)|*.*", 1);
  dialog.showSave();
  if (dialog.fileName().empty() || isSource(dialog.fileName())) return;
  platform::writeFile(dialog.fileName(), Text1.text() + "\r\n");
}

void EqStringWindow::CopyText() {
  forms::Clipboard::clear();
  forms::Clipboard::setText(Text1.text());
  Command1(3).setCaption(kCopied);
}

void EqStringWindow::Text1_Change() {
  if (Command1(3).caption() == kCopied) Command1(3).setCaption("Copy to Clipboard");
}
