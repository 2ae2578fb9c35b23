// The one way in which the program runs another: a command, and the pieces of what it prints.
#pragma once

#include <functional>
#include <memory>
#include <string>

class RunnerVariable;

/// A runner: runs one command line as a hidden child and hands on what it prints, standard output and
/// standard error together, while it reads. There is no way to stop a run, and its outcome is not looked at.
class DOSOutputs {
 public:
  void setCommandLine(const std::string& DosCommand) { mCommand = DosCommand; }
  const std::string& CommandLine() const { return mCommand; }
  /// Everything that the last run that started has printed so far.
  const std::string& Outputs() const { return mOutputs; }

  /// Runs `CommandLine`, or where it is empty the command line set before, until the child's output ends, and
  /// returns the output. `ReceiveOutputs` is raised for each read of at most 256 bytes, the last time with an
  /// empty text. Where no child can be started it returns the empty text and raises nothing. Output that no
  /// memory is left for is read and handed on all the same, so that the child does not stall, but not kept.
  const std::string& ExecuteCommand(const std::string& CommandLine = "");

 private:
  friend class RunnerVariable;

  void keep(const char* piece, std::size_t size);

  std::string mCommand;
  std::string mOutputs;
  RunnerVariable* subscriber_ = nullptr;
};

/// A form's variable for a runner, which connects the runner's `ReceiveOutputs` to the form's handler.
/// Setting another runner, `clear` and the end of the variable disconnect at once, also inside the handler;
/// the run itself goes on for as long as its caller holds the runner.
class RunnerVariable {
 public:
  /// The handler may change the text, which is a copy made for this one call.
  using Handler = std::function<void(std::string& CommandOutputs)>;

  explicit RunnerVariable(Handler handler) : handler_(std::move(handler)) {}
  ~RunnerVariable() { set(nullptr); }
  RunnerVariable(const RunnerVariable&) = delete;
  RunnerVariable& operator=(const RunnerVariable&) = delete;

  void set(std::shared_ptr<DOSOutputs> runner);
  void clear() { set(nullptr); }
  const std::shared_ptr<DOSOutputs>& get() const { return runner_; }

 private:
  friend class DOSOutputs;

  Handler handler_;
  std::shared_ptr<DOSOutputs> runner_;
};
