#include "windows/render.h"

#include "core/app_state.h"
#include "tools/render_target.h"
#include "windows/dialogs.h"
#include "windows/form1.h"
#include "windows/form2.h"

void SaveAsFile() {
  forms::CommonDialog& dialog = Form1->CDialog;
  prepareDialog("Save As", "WAV Files (*.wav)|*.wav|WMA Files (*.wma)|*.wma|All File Types (*.*)|*.*", 1);
  dialog.showSave();
  if (dialog.fileName().empty()) return;

  AppState.SavePath = dialog.fileName();
  AppState.SavePathShort = makeTarget(AppState.SavePath, AppState);
  Form2.load();
  Form2->Label1(1).setCaption(AppState.SavePathShort);
  Form2->show(&*Form1);
}
