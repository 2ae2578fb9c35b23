// The file that a render writes, and which files a render must leave alone.
#pragma once

#include <string>

#include "core/app_state.h"

/// What a file is in use for.
enum class FileUse {
  None,
  Input,   ///< the source, that of a render that still runs, or the preset file
  Output,  ///< a running render writes it
};

/// The use of the file at `path`, by whatever name and links; None where there is no such file. The source
/// and the preset file are those of `state`.
FileUse useOf(const std::string& path, const AppStateRecord& state);

/// Makes the file at `path` exist, since only an existing file has a short path, and returns that path:
/// creates or empties it and writes the marker line into it. The output of a running render stays as it is.
/// Empty, with nothing written, for an input, so that FFmpeg finds no target and refuses; also where no file
/// can be made.
std::string makeTarget(const std::string& path, const AppStateRecord& state);

/// Called just before a render starts, since its target can have come into use after it was made. Where a
/// running render writes that file, the file loses its name: that render writes on into it unnamed, and this
/// one gets a new file under the name. Where that fails, or the target is an input by now, its path in
/// `state` becomes empty.
void claimTarget(AppStateRecord& state);

/// Keeps source and target of `state` in use, as those of a running render, while it lives. Renders nest on
/// the one stack: the last one begun ends first.
class RunningRender {
 public:
  explicit RunningRender(const AppStateRecord& state);
  ~RunningRender();
  RunningRender(const RunningRender&) = delete;
  RunningRender& operator=(const RunningRender&) = delete;
};
