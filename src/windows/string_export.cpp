// The string window's buttons: its text goes to a file or to the clipboard, as the box shows it.

#include "core/app_state.h"
#include "platform/files.h"
#include "tools/render_target.h"
#include "windows/clipboard_notice.h"
#include "windows/dialogs.h"
#include "windows/form1.h"
#include "windows/form3.h"

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
  if (dialog.fileName().empty() || useOf(dialog.fileName(), AppState) != FileUse::None) return;
  platform::writeFile(dialog.fileName(), Text1.text() + "\r\n");
}

void EqStringWindow::CopyText() {
  CopyToClipboard(Command1(3), Text1.text());
}

void EqStringWindow::Text1_Change() {
  EndCopyNotice(Command1(3), "Copy to Clipboard");
}
