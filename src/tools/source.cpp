#include "tools/source.h"

#include "core/app_state.h"
#include "forms/application.h"
#include "mainwindow/form1.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/dialogs.h"
#include "tools/form2.h"
#include "tools/tool_output.h"

void OpenSourceFile() {
  constexpr forms::Color kLightGrey = 12632256;
  forms::CommonDialog& dialog = Form1->CDialog;
  Form1->Text1.setBackColor(forms::kButtonFace);
  prepareDialog("Open Source File",
                "WMA Files (*.wma)|*.wma|MP3 Files (*.mp3)|*.mp3|WAV Files (*.wav)|*.wav|All Files (*.*)|*.*",
                4);
  dialog.showOpen();
  if (dialog.fileName().empty()) return;

  AppState.SourcePathShort = GetShortPath(dialog.fileName());
  Form1->Text1.setText("");
  Form1->Text1.setText(AppState.SourcePathShort);
  Form1->Text1.setBackColor(kLightGrey);
  for (const int waitsForSource : {2, 3, 6, 7, 8}) Form1->Command1(waitsForSource).setEnabled(true);
  Form1->GetSourceDuration();
}

std::string GetShortPath(const std::string& LongPath) {
  return platform::shortPath(LongPath);
}

bool isSource(const std::string& path) {
  return platform::sameFile(path, platform::longPath(AppState.SourcePathShort)) || isReadByRender(path);
}

void MainWindow::GetSourceDuration() {
  const auto runner = std::make_shared<DOSOutputs>();
  const std::string probed = AppState.SourcePathShort;
  objDOS.set(runner);
  runner->setCommandLine(probeCommand(platform::programFolder(), AppState));
  runner->ExecuteCommand("");

  // The tool writes its lines bit by bit, so that the first piece seldom reaches the duration.
  if (AppState.SourcePathShort != probed) return;
  if (const auto seconds = durationSecondsOfRun(runner->Outputs())) AppState.SourceSeconds = *seconds;
}

void MainWindow::objDOS_ReceiveOutputs(std::string& CommandOutputs) {
  forms::Application::doEvents();
  blankLineEnds(CommandOutputs);
  if (const auto seconds = durationSeconds(CommandOutputs)) AppState.SourceSeconds = *seconds;
  objDOS.clear();
}
