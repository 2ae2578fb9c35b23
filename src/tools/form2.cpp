#include "tools/form2.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/app_state.h"
#include "forms/application.h"
#include "mainwindow/form1.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/form2_data.h"
#include "tools/render.h"
#include "tools/source.h"
#include "tools/tool_output.h"

forms::DefaultInstance<RenderWindow> Form2;

namespace {

struct RenderedFiles {
  std::string source, target;
};

/// Long paths of the renders that are running. Renders nest on the one stack.
std::vector<RenderedFiles> running;

class Rendering {
 public:
  explicit Rendering(const AppStateRecord& state) {
    running.push_back({platform::longPath(state.SourcePathShort), platform::longPath(state.SavePathShort)});
  }
  ~Rendering() { running.pop_back(); }
  Rendering(const Rendering&) = delete;
  Rendering& operator=(const Rendering&) = delete;
};

/// Decimal digits as a number; 0 for an empty text.
double number(const std::string& digits) {
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

}  // namespace

bool isReadByRender(const std::string& path) {
  return std::ranges::any_of(
      running, [&](const RenderedFiles& files) { return platform::sameFile(files.source, path); });
}

bool isWrittenByRender(const std::string& path) {
  return std::ranges::any_of(
      running, [&](const RenderedFiles& files) { return platform::sameFile(files.target, path); });
}

RenderWindow::RenderWindow()
    : Form(kForm2Data), objDOS([this](std::string& piece) { objDOS_ReceiveOutputs(piece); }) {
  onLoad = [this] { Form_Load(); };
  Command1.onClick = [this](int) { Command1_Click(); };
  Timer1.onTick = [this](int) { Timer1_Timer(); };
}

void RenderWindow::Form_Load() {
  setHeight(3420);
  setWidth(6900);
  PBar.setMax(number(AppState.SourceSeconds));
  Timer1.setEnabled(true);
}

void RenderWindow::Command1_Click() {
  unload();
}

void RenderWindow::Timer1_Timer() {
  objDOS.set(std::make_shared<DOSOutputs>());
  DosCommand();
  Timer1.setEnabled(false);
}

void RenderWindow::ClearTarget() {
  const std::string target = platform::longPath(AppState.SavePathShort);
  // The source can have been chosen since the target was.
  if (isSource(target)) return AppState.SavePathShort.clear();
  if (!isWrittenByRender(target)) return;
  // The render of before ends in a file without a name, not in this one's.
  platform::removeFile(target);
  platform::writeFile(target, kRenderMarker);
}

void RenderWindow::DosCommand() {
  ClearTarget();
  const auto runner = objDOS.get();
  runner->setCommandLine(renderCommand(platform::programFolder(), AppState));
  {
    const Rendering rendering(AppState);
    runner->ExecuteCommand("");
  }
  Label1(2).setCaption("Progress: 100% Completed");
  PBar.setValue(0);
  objDOS.clear();
}

void RenderWindow::objDOS_ReceiveOutputs(const std::string& CommandOutputs) {
  forms::Application::doEvents();
  // Closed meanwhile: the rest of the run has nobody to tell.
  if (!isLoaded()) return;
  const std::string_view time = progressTime(CommandOutputs);
  if (time.empty()) return;
  const auto value = static_cast<float>(PBar.value());
  const auto max = static_cast<float>(PBar.max());
  if (const auto seconds = secondsOfTime(time)) PBar.setValue(*seconds);
  const std::string percent = percentText(value, max);
  Label1(2).setCaption("Progress: " + percent + "% Completed");
  Form1->setCaption(AppState.WindowMinimised ? "Velm:  " + percent + "%" : "No Caption Set");
}
