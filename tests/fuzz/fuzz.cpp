// What any preset file, preset line, command line and tool output may do to the program. The name of the
// process says which of the four the inputs are.
#include <cstring>
#include <stdexcept>

#include "forms/application.h"
#include "platform/command_line.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "support/in_step.h"
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

void profile(const std::string& before) {
  const std::string file = platform::programFolder() + "/AppPresets.ini";
  platform::writeFile(file, before);
  const std::string other = read("Preset#2");
  require(platform::writeProfileString("Preset#1", "Frequency", "-1:2", file), "any file takes a preset");
  require(read("Preset#1") == "-1:2", "the preset comes back");
  require(read("Preset#2") == other, "the other preset stays");
  const std::string after = support::readFile(file);
  const auto [oldBegin, newBegin] = std::ranges::mismatch(before, after);
  const auto [oldEnd, newEnd] = std::mismatch(before.rbegin(), std::reverse_iterator(oldBegin),
                                              after.rbegin(), std::reverse_iterator(newBegin));
  const std::string removed(oldBegin, oldEnd.base());
  const std::string added(newBegin, newEnd.base());
  const std::string rest(newEnd.base(), after.end());
  require(!removed.ends_with('\r') || !rest.starts_with('\n'), "a line keeps its end");
  // What is equal in front may reach into the new lines, which end behind it.
  const bool one = removed.empty() ? added.size() <= std::strlen("\r\n[Preset#1]\r\nFrequency=-1:2\r\n")
                                   : (removed + added).find('\n') == std::string::npos;
  require(one, "one line changes, not \"" + removed + "\" to \"" + added + "\"");
}

void requireInStep() {
  const std::string fault = support::outOfStep();
  require(fault.empty(), fault);
}

void preset(const std::string& line) {
  platform::writeFile(platform::programFolder() + "/AppPresets.ini", "[Preset#1]\nFrequency=" + line);
  SelectPreset(1);
  requireInStep();
  const std::vector<int> loaded = support::positions();
  SavePreset();
  Form1->Option2(1 - loaded[0]).setValue(true);  // Puts all bands to 0.
  Form1->Option3(1 - loaded[1]).setValue(true);
  Form1->Slider2.setValue(-loaded[2]);
  Form1->Slider3.setValue(255 - loaded[3]);
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
  const std::string path = platform::programFolder() + "/." + text.c_str();
  if (text.find('/') < text.size() || !platform::writeFile(path, "")) return;
  const std::vector<std::string> expected{"-i", path, "-af"};
  require(platform::splitArguments("-i " + platform::quotedPath(path) + " -af") == expected,
          "a path is one argument");
  std::filesystem::remove(path);
}

bool isNumber(const std::string& text, std::size_t length, double most) {
  const bool digits = text.find_first_not_of("0123456789.") == std::string::npos;
  return digits && text.size() >= length && std::stod(text) <= most;
}

void output(const std::string& text) {
  const std::string first = durationSeconds(text).value_or("");
  const std::string ofRun = durationSecondsOfRun(text).value_or("");
  require(ofRun.empty() ? first.empty() : isNumber(ofRun, 1, 86399), "length of the run: " + ofRun);
  require(first.empty() || first == ofRun, "the first length is that of the run");
  for (std::size_t begin = 0, count = 0; begin < text.size(); begin += count) {
    count = std::hash<std::string>()(text.substr(begin)) % 256 + 1;
    std::string piece = text.substr(begin, count);
    Form2->objDOS_ReceiveOutputs(piece);
    Form1->objDOS_ReceiveOutputs(piece);
    Form2->Form_Load();
    Form2->Timer1.setEnabled(false);
    const std::string& seconds = AppState.SourceSeconds;
    require(seconds.empty() || isNumber(seconds, 1, 86399), "SourceSeconds: " + seconds);
    require(Form2->PBar.value() >= 0 && Form2->PBar.value() <= Form2->PBar.max(), "PBar");
    const std::string shown = Form2->Label1(2).caption();
    const std::string percent = shown.substr(10, shown.find('%') - 10);
    require(shown == "Progress: " + percent + "% Completed" && isNumber(percent, 2, 100), shown);
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
