#include "tools/render_target.h"

#include <algorithm>
#include <vector>

#include "platform/command_line.h"
#include "platform/files.h"
#include "platform/program_folder.h"
#include "tools/command_lines.h"

namespace {

/// What a target holds until FFmpeg overwrites it.
constexpr auto kMarker = "<%TEMPOutPutData%>\r\n";

struct RenderedFiles {
  std::string source, target;
};

std::vector<RenderedFiles> running;

}  // namespace

FileUse useOf(const std::string& path, const AppStateRecord& state) {
  const auto is = [&path](const std::string& other) { return platform::sameFile(path, other); };
  const auto isRead = [&is](const RenderedFiles& files) { return is(files.source); };
  const auto isWritten = [&is](const RenderedFiles& files) { return is(files.target); };
  if (is(platform::firstArgument(state.SourcePathShort)) || std::ranges::any_of(running, isRead) ||
      is(platform::nativePath(state.PresetFilePath)))
    return FileUse::Input;
  return std::ranges::any_of(running, isWritten) ? FileUse::Output : FileUse::None;
}

std::string makeTarget(const std::string& path, const AppStateRecord& state) {
  const FileUse use = useOf(path, state);
  if (use == FileUse::Input) return {};
  // Where the marker finds no room, as on a full disk, FFmpeg is started all the same: it tells by itself.
  if (use == FileUse::None) platform::writeFile(path, kMarker);
  return GetShortPath(path);
}

void claimTarget(AppStateRecord& state) {
  const std::string target = platform::firstArgument(state.SavePathShort);
  const FileUse use = useOf(target, state);
  if (use == FileUse::None) return;
  if (use == FileUse::Output && platform::removeFile(target))
    platform::writeFile(target, kMarker);
  else
    state.SavePathShort.clear();
}

RunningRender::RunningRender(const AppStateRecord& state) {
  running.push_back(
      {platform::firstArgument(state.SourcePathShort), platform::firstArgument(state.SavePathShort)});
}

RunningRender::~RunningRender() {
  running.pop_back();
}
