// The tools as the program starts them, beside the same commands typed into a plain shell. Prints a name and
// a number a line. The current folder has links to the tools and `source.wav`, and takes what is rendered.

#include <sched.h>
#include <signal.h>
#include <stdio.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "core/app_state.h"
#include "core/eq_string.h"
#include "forms/application.h"
#include "platform/child_process.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/dos_outputs.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

double secondsOf(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return Seconds(Clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

/// Runs `command` in a plain shell and returns what it prints, read in pieces of 256 bytes.
std::string runByHand(const std::string& command) {
  FILE* const pipe = popen(("exec " + command + " 2>&1 </dev/null").c_str(), "r");
  std::string text;
  char buffer[256];
  ssize_t count = 0;
  while ((count = read(fileno(pipe), buffer, sizeof buffer)) > 0)
    text.append(buffer, static_cast<std::size_t>(count));
  pclose(pipe);
  return text;
}

/// The program's command as one types it in the program's folder, with `options` in front of its arguments.
std::string typed(const std::string& command, const std::string& options = "") {
  const std::string behind = command.substr(platform::programFolder().size() + 1);
  const auto name = behind.find(' ');
  return std::string("./").append(behind, 0, name).append(options).append(behind, name);
}

std::string bytes(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void print(const char* name, double value) {
  std::cout << name << ' ' << value << std::endl;
}

void setAllBands() {
  AppState.AudioGain = 1;
  AppState.BandWidth = 1;
  for (int i = 0; i < kBands; ++i)
    AppState.BandGainText[static_cast<std::size_t>(i)] = bandGainText(i % 2 == 0 ? 3 : -3);
  composeChain(AppState);
  AppState.SourcePathShort = "source.wav";
}

std::string renderInto(const char* target) {
  AppState.SavePathShort = target;
  return renderCommand(platform::programFolder(), AppState);
}

void measureRender() {
  std::vector<double> program, oneThread, byHand;
  for (int i = 0; i < 7; ++i) {
    const std::string ours = renderInto("ours.wav");
    program.push_back(secondsOf([&] { DOSOutputs().ExecuteCommand(ours); }));
    const std::string theirs = typed(renderInto("thread.wav"), " -filter_threads 1");
    oneThread.push_back(secondsOf([&] { runByHand(theirs); }));
  }
  for (int i = 0; i < 3; ++i) {
    const std::string theirs = typed(renderInto("hand.wav"));
    byHand.push_back(secondsOf([&] { runByHand(theirs); }));
  }
  std::cerr << "render: " << median(program) << " s through the program, " << median(byHand) << " s by hand, "
            << median(oneThread) << " s with -filter_threads 1\n";
  print("renderByHand", median(program) / median(byHand));
  print("renderThread", median(program) / median(oneThread));
  const std::string rendered = bytes("ours.wav");
  const bool same = rendered.size() > bytes("source.wav").size() / 2 && rendered == bytes("hand.wav");
  print("renderBytes", same ? 0 : 1);
}

/// The child that this process started last, 0 where there is none.
pid_t youngestChild() {
  std::ifstream children("/proc/self/task/" + std::to_string(getpid()) + "/children");
  pid_t youngest = 0;
  for (pid_t child = 0; children >> child;) youngest = child;
  return youngest;
}

/// Processor time of all threads of `process` so far.
double processorSeconds(pid_t process) {
  const std::string line = bytes(("/proc/" + std::to_string(process) + "/stat").c_str());
  std::istringstream fields(line.substr(std::min(line.rfind(')') + 1, line.size())));
  const std::vector<std::string> words{std::istream_iterator<std::string>(fields), {}};
  // Counted from the state behind the name, user and system time are the 12th and 13th.
  if (words.size() < 13) return 0;
  return (std::stod(words[11]) + std::stod(words[12])) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Processor time in a minute of `play`, which blocks while its child plays: the start as measured, and the
/// rest of the minute drawn out from 15 seconds.
double processorMinute(const std::function<void()>& play) {
  constexpr double kStart = 3, kWatched = 15, kMinute = 60;
  double minute = 0;
  std::thread watch([&] {
    std::this_thread::sleep_for(Seconds(kStart));
    const pid_t player = youngestChild();
    const double start = processorSeconds(player);
    std::this_thread::sleep_for(Seconds(kWatched));
    const double watched = processorSeconds(player) - start;
    minute = start + watched / kWatched * (kMinute - kStart);
    if (player > 0) kill(player, SIGKILL);
  });
  play();
  watch.join();
  return minute;
}

/// What the chain adds to the player, through the program beside the same command typed.
void measurePreview() {
  const std::string command = previewCommand(platform::programFolder(), AppState);
  const double program = processorMinute([&] { DOSOutputs().ExecuteCommand(command); });
  const double byHand = processorMinute([&] { runByHand(typed(command)); });
  const std::string bareCommand = command.substr(0, command.find(" -af "));
  const double bare = processorMinute([&] { runByHand(typed(bareCommand)); });
  std::cerr << "preview: " << program << " s through the program, " << byHand << " s by hand, " << bare
            << " s without a chain\n";
  if (bare > 0 && program > 0 && byHand > bare) print("preview", (program - bare) / (byHand - bare));
}

void measureOutput() {
  const std::string command = "/usr/bin/head -c 100000000 /dev/zero";
  std::vector<double> program, byHand;
  for (int i = 0; i < 7; ++i) {
    std::size_t size = 0;
    program.push_back(secondsOf([&] { size = DOSOutputs().ExecuteCommand(command).size(); }));
    byHand.push_back(secondsOf([&] { size -= runByHand(command).size(); }));
    if (size != 0) return;
  }
  std::cerr << "output: " << median(program) << " s through the program, " << median(byHand)
            << " s in the bare loop\n";
  print("output", median(program) / median(byHand));
}

/// Leaves this process and its children two processors; false where there are not so many.
bool keepTwoProcessors() {
  cpu_set_t all, two;
  CPU_ZERO(&two);
  if (sched_getaffinity(0, sizeof all, &all) != 0) return false;
  for (std::size_t cpu = 0; cpu < CPU_SETSIZE && CPU_COUNT(&two) < 2; ++cpu)
    if (CPU_ISSET(cpu, &all)) CPU_SET(cpu, &two);
  return CPU_COUNT(&two) == 2 && sched_setaffinity(0, sizeof two, &two) == 0;
}

}  // namespace

int main() {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  platform::setProgramFolder(std::filesystem::current_path().string());
  const bool twoProcessors = keepTwoProcessors();
  const forms::Application application;
  platform::setWaitHook(&forms::Application::waitPainting);
  setAllBands();
  measureOutput();
  if (!twoProcessors) {
    for (const char* name : {"renderByHand", "renderThread", "renderBytes", "preview"})
      std::cout << name << " unmeasurable\n";
    return 0;
  }
  measureRender();
  measurePreview();
  return 0;
}
