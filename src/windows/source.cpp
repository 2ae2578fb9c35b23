#include "windows/source.h"

#include "core/app_state.h"
#include "forms/application.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/tool_output.h"
#include "windows/colors.h"
#include "windows/dialogs.h"
#include "windows/form1.h"

void OpenSourceFile() {
  forms::CommonDialog& dialog = Form1->CDialog;
  Form1->Text1.setBackColor(forms::kButtonFace);
  prepareDialog("Open Source File",
                "WMA Files (*.wma)|*.wma|MP3 Files (*.mp3)|*.mp3|WAV Files (*.wav)|*.wav|All Files (*.*)|*.*",
                4);
  dialog.showOpen();
  if (!dialog.fileName().empty()) UseSource(dialog.fileName());
}

void UseSource(const std::string& Path) {
  AppState.SourcePathShort = GetShortPath(Path);
  Form1->Text1.setText("");
  Form1->Text1.setText(AppState.SourcePathShort);
  Form1->Text1.announce();
  Form1->Text1.setBackColor(kLightGrey);
  Form1->EnableSourceButtons(true);
  Form1->GetSourceDuration();
}

void MainWindow::GetSourceDuration() {
  const auto runner = std::make_shared<DOSOutputs>();
  const std::string probed = AppState.SourcePathShort;
  objDOS.set(runner);
  runner->setCommandLine(probeCommand(platform::programFolder(), AppState));
  runner->ExecuteCommand("");

  // ffprobe flushes each part of a line by itself, so that the first piece seldom reaches the duration.
  if (AppState.SourcePathShort != probed) return;
  if (const auto seconds = durationSecondsOfRun(runner->Outputs())) AppState.SourceSeconds = *seconds;
}

void MainWindow::objDOS_ReceiveOutputs(std::string& CommandOutputs) {
  const std::string measured = AppState.SourcePathShort;
  forms::Application::doEvents();
  lineEndsToBlanks(CommandOutputs);
  // The events just served can have chosen another source, of which this piece tells nothing.
  const auto seconds = durationSeconds(CommandOutputs);
  if (seconds && AppState.SourcePathShort == measured) AppState.SourceSeconds = *seconds;
  objDOS.clear();
}
