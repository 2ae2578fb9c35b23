#include "tools/dos_outputs.h"

#include <utility>

#include "platform/child_process.h"

std::string DOSOutputs::ExecuteCommand(const std::string& CommandLine) {
  if (!CommandLine.empty()) mCommand = CommandLine;
  if (mCommand.empty()) return {};
  platform::ChildProcess child;
  if (!child.start(mCommand)) return {};

  mOutputs.clear();
  char buffer[256];
  std::size_t count = 0;
  do {
    count = child.read(buffer, sizeof buffer);
    mOutputs.append(buffer, count);
    if (subscriber_ == nullptr) continue;
    std::string piece(buffer, count);
    subscriber_->handler_(piece);
  } while (count > 0);
  return mOutputs;
}

void RunnerVariable::set(std::shared_ptr<DOSOutputs> runner) {
  if (runner_) runner_->subscriber_ = nullptr;
  runner_ = std::move(runner);
  if (runner_) runner_->subscriber_ = this;
}
