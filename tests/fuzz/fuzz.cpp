// What any preset file, preset line, command line and tool output may do to the program. The name of the
// process says which of the four the inputs are.
#include <set>
#include <stdexcept>

#include "forms/application.h"
#include "platform/command_line.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "support/in_step.h"
#include "support/leaks.h"
#include "support/temp_folder.h"
#include "tools/tool_output.h"
#include "windows/form2.h"
#include "windows/presets.h"
#include "windows/startup.h"

namespace {

void require(bool holds, const std::string& rule) {
  if (!holds) throw std::logic_error(rule);
}

std::string read(const char* section) {
  return platform::profileString(section, "Frequency", "1", 1024, AppState.PresetFilePath);
}

/// The lines of a text, each with its end.
std::multiset<std::string> linesOf(const std::string& text) {
  std::multiset<std::string> lines;
  for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end) {
    end = std::min(text.find('\n', begin), text.size() - 1) + 1;
    lines.insert(text.substr(begin, end - begin));
  }
  return lines;
}

void profile(const std::string& before) {
  const std::string file = platform::programFolder() + "/AppPresets.ini";
  platform::writeFile(file, before);
  const std::string other = read("Preset#2");
  require(platform::writeProfileString("Preset#1", "Frequency", "-1:2", file), "any file takes a preset");
  require(read("Preset#1") == "-1:2", "the preset comes back");
  require(read("Preset#2") == other, "the other preset stays");
  std::vector<std::string> lost;
  std::ranges::set_difference(linesOf(before), linesOf(support::readFile(file)), std::back_inserter(lost));
  require(lost.size() <= 1, "one line changes");
}

void requireInStep() {
  const std::string fault = support::outOfStep();
  require(fault.empty(), fault);
}

void startAfresh() {
  for (const int range : {1, 0}) Form1->Option2(range).setValue(true);  // Any change puts all bands to 0.
  Form1->Option3(1).setValue(true);
  Form1->Slider2.setValue(5);
  Form1->Slider3.setValue(1);
}

void preset(const std::string& line) {
  platform::writeFile(platform::programFolder() + "/AppPresets.ini", "[Preset#1]\nFrequency=" + line);
  startAfresh();
  SelectPreset(1);
  requireInStep();
  const std::vector<int> loaded = support::positions();
  SavePreset();
  startAfresh();
  LoadPreset(1);
  requireInStep();
  require(support::positions() == loaded, "what was saved comes back");
}

void command(const std::string& text) {
  const std::vector<std::string> arguments = platform::splitArguments(text);
  std::string line;
  for (const std::string& argument : arguments) line += platform::quoteArgument(argument) + " ";
  require(platform::splitArguments(line) == arguments, "quoted arguments come back");
  platform::parseCommand(platform::programFolder() + text);
}

void requireNumber(const std::string& text, double most) {
  require(text.find_first_not_of("0123456789.") == std::string::npos, "a number, not " + text);
  require(text.empty() || std::stod(text) <= most, "not too large: " + text);
}

void output(const std::string& text) {
  const std::string first = durationSeconds(text).value_or("");
  const std::string ofRun = durationSecondsOfRun(text).value_or("");
  requireNumber(ofRun, 86399);
  require(first.empty() || first == ofRun, "the first length is that of the run");
  for (std::size_t begin = 0, count = 0; begin < text.size(); begin += count) {
    count = std::hash<std::string>()(text.substr(begin)) % 256 + 1;
    std::string piece = text.substr(begin, count);
    Form2->objDOS_ReceiveOutputs(piece);
    Form1->objDOS_ReceiveOutputs(piece);
    Form2->Form_Load();
    Form2->Timer1.setEnabled(false);
    requireNumber(AppState.SourceSeconds, 86399);
    require(Form2->PBar.value() >= 0 && Form2->PBar.value() <= Form2->PBar.max(), "PBar");
    const std::string shown = Form2->Label1(2).caption();
    const std::string percent = shown.substr(10, shown.find('%') - 10);
    require(shown == "Progress: " + percent + "% Completed", shown);
    requireNumber(percent, 100);
  }
}

struct Target {
  std::string_view name;
  void (*run)(const std::string&);
};

constexpr Target kTargets[] = {
    {"fuzz_profile", profile}, {"fuzz_preset", preset}, {"fuzz_command", command}, {"fuzz_output", output}};

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
  for (const Target& target : kTargets)
    if (target.name == program_invocation_short_name) target.run({data, data + size});
  return 0;
}
