#include "tools/command_lines.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "platform/command_line.h"

namespace {

/// The volume filter alone stands in quotes; the chain follows in the same argument.
std::string filterArgument(const AppStateRecord& state) {
  return "\"volume=" + gainText(state.AudioGain) + "\"," + state.EqString;
}

}  // namespace

std::string gainText(double gain) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), gain).ptr;
  return {buffer.data(), end};
}

std::string GetShortPath(const std::string& LongPath) {
  std::error_code error;
  if (!std::filesystem::exists(LongPath, error)) return {};
  const std::string absolute = std::filesystem::absolute(LongPath, error).string();
  return error ? std::string() : platform::quoteArgument(absolute);
}

std::string probeCommand(const std::string& folder, const AppStateRecord& state) {
  return folder + "\\ffprobe.exe -hide_banner -stats -i " + state.SourcePathShort;
}

std::string previewCommand(const std::string& folder, const AppStateRecord& state) {
  return folder + "\\ffplay -i " + state.SourcePathShort + " -af " + filterArgument(state);
}

std::string renderCommand(const std::string& folder, const AppStateRecord& state) {
  return folder + "\\ffmpeg -y -i " + state.SourcePathShort + " -af " + filterArgument(state) + " " +
         state.SavePathShort;
}
