#include "tools/dos_outputs.h"

#include <new>
#include <utility>

#include "platform/child_process.h"

const std::string& DOSOutputs::ExecuteCommand(const std::string& CommandLine) {
  static const std::string kNothing;
  if (!CommandLine.empty()) mCommand = CommandLine;
  platform::ChildProcess child;
  if (!child.start(mCommand)) return kNothing;

  mOutputs.clear();
  char buffer[256];
  std::size_t count = 0;
  do {
    count = child.read(buffer, sizeof buffer);
    keep(buffer, count);
    if (subscriber_ == nullptr) continue;
    std::string piece(buffer, count);
    subscriber_->handler_(piece);
  } while (count > 0);
  return mOutputs;
}

void DOSOutputs::keep(const char* piece, std::size_t size) {
  try {
    mOutputs.append(piece, size);
  } catch (const std::bad_alloc&) {
    return;  // What is kept already stays as it is.
  }
}

void RunnerVariable::set(std::shared_ptr<DOSOutputs> runner) {
  if (runner_) runner_->subscriber_ = nullptr;
  runner_ = std::move(runner);
  if (runner_) runner_->subscriber_ = this;
}
