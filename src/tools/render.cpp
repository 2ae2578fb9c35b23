#include "tools/render.h"

#include "core/app_state.h"
#include "mainwindow/form1.h"
#include "platform/files.h"
#include "tools/dialogs.h"
#include "tools/form2.h"
#include "tools/source.h"

void SaveAsFile() {
  forms::CommonDialog& dialog = Form1->CDialog;
  prepareDialog("Save As", "WAV Files (*.wav)|*.wav|WMA Files (*.wma)|*.wma|All File Types (*.*)|*.*", 1);
  dialog.showSave();
  if (dialog.fileName().empty()) return;

  AppState.SavePath = dialog.fileName();
  if (isSource(AppState.SavePath)) {
    // Without a target the tool refuses, whatever else is chosen before it starts.
    AppState.SavePathShort.clear();
  } else {
    if (!isWrittenByRender(AppState.SavePath)) platform::writeFile(AppState.SavePath, kRenderMarker);
    AppState.SavePathShort = GetShortPath(AppState.SavePath);
  }
  Form2.load();
  Form2->Label1(1).setCaption(AppState.SavePathShort);
  Form2->show(&*Form1);
}
