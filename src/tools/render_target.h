// The file that a render writes, and which files a render must leave alone.
#pragma once

#include <string>

#include "core/app_state.h"

/// What a file is in use for.
enum class FileUse {
  None,
  Input,   ///< the source, or that of a render that still runs
  Output,  ///< a running render writes it
};

/// The use of the file at `path`, by whatever name and links; None where there is no such file. The source is
/// that of `state`.
FileUse useOf(const std::string& path, const AppStateRecord& state);

/// Makes the file at `path` exist, since only an existing file has a short path, and returns that path:
/// creates or empties it and writes the marker line into it. The output of a running render stays as it is.
/// Empty, with nothing written, for an input, so that FFmpeg finds no target and refuses; also where no file
/// can be made.
std::string makeTarget(const std::string& path, const AppStateRecord& state);

/// Called just before a render starts: what became of its target since it was made. A target that is an input
/// by now is taken out of `state`. From the output of a running render the name is taken, which then writes
/// on into a file without a name, and a new file is made under it.
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
