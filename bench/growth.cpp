// How time and memory of the program itself grow with the work: sources, child output and profile files of
// three sizes each, in the current folder, beside a link to ffmpeg. Prints a table; fails where the largest
// costs more than its share.

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "core/app_state.h"
#include "platform/profile_file.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"
#include "tools/dos_outputs.h"

namespace {

/// What one piece of work took: seconds, and resident memory beyond the output that a runner keeps.
struct Cost {
  double seconds;
  long kilobytes;
};

/// What is in use now; memory that was given back counts no more.
long residentKilobytes() {
  malloc_trim(0);
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "VmRSS:") continue;
    long kilobytes = 0;
    status >> kilobytes;
    return kilobytes;
  }
  return 0;
}

/// `work` returns the bytes that it holds on purpose until the result of `costOf` is there.
Cost costOf(const std::function<std::size_t()>& work) {
  const long before = residentKilobytes();
  const auto start = std::chrono::steady_clock::now();
  const std::size_t kept = work();
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  return {time.count(), residentKilobytes() - before - static_cast<long>(kept / 1024)};
}

Cost run(const std::string& command) {
  DOSOutputs runner;
  return costOf([&] { return runner.ExecuteCommand(command).size(); });
}

Cost render(double seconds) {
  const std::string length = std::to_string(static_cast<long>(seconds));
  const std::string make = "./ffmpeg -loglevel error -y -f lavfi -i anullsrc=r=8000:cl=mono -t " + length;
  // The status is lost: once the program has started a child, the system reaps all of them.
  [[maybe_unused]] const int status = std::system((make + " source.flac").c_str());
  AppState.AudioGain = 1;
  AppState.EqString = "equalizer=f=1000:width_type=o:width=1:g=3";
  AppState.SourcePathShort = "source.flac";
  AppState.SavePathShort = "target.flac";
  return run(renderCommand(platform::programFolder(), AppState));
}

Cost childOutput(double bytes) {
  return run("/usr/bin/head -c " + std::to_string(static_cast<long>(bytes)) + " /dev/zero");
}

Cost profile(double bytes) {
  std::ofstream file("AppPresets.ini");
  for (double size = 0; size < bytes; size += 64) file << std::string(50, '#') << "\n[other]\r\nk=v\n";
  file.close();
  return costOf([] {
    platform::writeProfileString("Preset#1", "Frequency", "1:2:3", "AppPresets.ini");
    return platform::profileString("Preset#1", "Frequency", "", 1023, "AppPresets.ini").size();
  });
}

/// Prints a row for each size. The largest may take at most twice its share of the time of the one before,
/// and 4 MB of memory that nobody asked to keep.
bool grow(const char* what, const char* unit, double (&sizes)[3], Cost (*measure)(double)) {
  Cost cost[3];
  for (int i = 0; i < 3; ++i) {
    cost[i] = measure(sizes[i]);
    std::printf("%-32s%12.0f %-8s%10.3f s%10ld KB\n", what, sizes[i], unit, cost[i].seconds,
                cost[i].kilobytes);
    std::fflush(stdout);
  }
  const bool inTime = cost[2].seconds <= 2 * cost[1].seconds * sizes[2] / sizes[1];
  return inTime && cost[2].kilobytes < 4096;
}

}  // namespace

int main() {
  platform::setProgramFolder(std::filesystem::current_path().string());
  double sources[] = {60, 3600, 36000};
  double outputs[] = {1e3, 1e6, 1e9};
  double profiles[] = {1e3, 1e5, 1e7};
  const bool renders = grow("Render of a source of", "seconds", sources, render);
  const bool children = grow("Child output of", "bytes", outputs, childOutput);
  const bool files = grow("A preset into a file of", "bytes", profiles, profile);
  return renders && children && files ? 0 : 1;
}
