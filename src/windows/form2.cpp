#include "windows/form2.h"

#include "core/app_state.h"
#include "core/text.h"
#include "forms/application.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/render_target.h"
#include "tools/tool_output.h"
#include "windows/form1.h"

forms::DefaultInstance<RenderWindow> Form2;

RenderWindow::RenderWindow()
    : Form(kForm2Data), objDOS([this](std::string& piece) { objDOS_ReceiveOutputs(piece); }) {
  onLoad = [this](int) { Form_Load(); };
  Command1.onClick = [this](int) { Command1_Click(); };
  Timer1.onTick = [this](int) { Timer1_Timer(); };
}

void RenderWindow::Form_Load() {
  // Outer sizes, with the frame.
  setHeight(3420);
  setWidth(6900);
  PBar.setMax(static_cast<double>(wholeNumber(AppState.SourceSeconds).value_or(0)));
  Timer1.setEnabled(true);
}

void RenderWindow::Command1_Click() {
  unload();
}

void RenderWindow::Timer1_Timer() {
  objDOS.set(std::make_shared<DOSOutputs>());
  DosCommand();
  // No tick comes while this handler runs.
  Timer1.setEnabled(false);
}

void RenderWindow::DosCommand() {
  claimTarget(AppState);
  const auto runner = objDOS.get();
  runner->setCommandLine(renderCommand(platform::programFolder(), AppState));
  {
    const RunningRender inUse(AppState);
    runner->ExecuteCommand("");
  }
  // Whatever the outcome, which nobody looks at. The window stays open.
  Label1(2).setCaption("Progress: 100% Completed");
  PBar.setValue(0);
  objDOS.clear();
}

void RenderWindow::objDOS_ReceiveOutputs(const std::string& CommandOutputs) {
  forms::Application::doEvents();
  // The events just served can have closed this window, which lives until the tick ends.
  if (!isLoaded()) return;
  const std::string_view time = progressTime(CommandOutputs);
  if (time.empty()) return;
  // The percentage is that of the piece before.
  const auto value = static_cast<float>(PBar.value());
  const auto max = static_cast<float>(PBar.max());
  if (const auto seconds = secondsOfTime(time)) PBar.setValue(*seconds);
  const std::string percent = percentText(value, max);
  Label1(2).setCaption("Progress: " + percent + "% Completed");
  // The title stays so after the render.
  Form1->setCaption(AppState.WindowMinimised ? "Velm:  " + percent + "%" : "No Caption Set");
}
