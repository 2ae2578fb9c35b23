// What any preset file, preset line, command line and tool output may do to the program. The first byte of an
// input says which of the four the rest is.
#include <stdexcept>

#include "forms/application.h"
#include "platform/command_line.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "support/in_step.h"
#include "support/leaks.h"
#include "support/temp_folder.h"
#include "windows/form2.h"
#include "windows/presets.h"
#include "windows/startup.h"

namespace {

void require(bool holds, const std::string& rule) {
  if (!holds) throw std::logic_error(rule);
}

std::string stored(const char* section) {
  return platform::profileString(section, "Frequency", "1", 1023, AppState.PresetFilePath);
}

void profile(const std::string& text) {
  platform::writeFile(AppState.PresetFilePath, text);
  const std::string other = stored("Preset#2");
  platform::writeProfileString("Preset#1", "Frequency", "-1:2", AppState.PresetFilePath);
  require(stored("Preset#1") == "-1:2", "the preset comes back");
  require(stored("Preset#2") == other, "the other preset stays");
}

void preset(const std::string& line) {
  platform::writeFile(AppState.PresetFilePath, "[Preset#1]\nFrequency=" + line);
  SelectPreset(1);
  require(support::outOfStep().empty(), support::outOfStep());
}

void command(const std::string& text) {
  std::string line;
  for (const std::string& argument : platform::splitArguments(text))
    line += platform::quoteArgument(argument) + " ";
  require(platform::splitArguments(line) == platform::splitArguments(text), "quoted arguments come back");
  platform::parseCommand(platform::programFolder() + text);
}

void output(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line, '\r');) {
    Form2->objDOS_ReceiveOutputs(line);
    Form1->objDOS_ReceiveOutputs(line);
    Form2->Form_Load();
    Form2->Timer1.setEnabled(false);
    const double percent = std::stod(Form2->Label1(2).caption().substr(10));
    require(percent >= 0 && percent <= 100, "the progress is a percentage");
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  static const forms::Application application;
  // What is made later goes first, so that the folder is gone when the process ends.
  std::atexit(forms::Application::end);
  static const support::OwnFolder folder;
  Main();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  constexpr void (*inputs[])(const std::string&) = {profile, preset, command, output};
  if (size > 0) inputs[*data % 4]({data + 1, data + size});
  return 0;
}
