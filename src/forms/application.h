// The process as the desktop sees it: the event loop, what serves it in between, and its end.
#pragma once

#include <functional>

class QObject;

namespace forms {

/// The one connection to the desktop. Made once, before the first window; reads no command line.
class Application {
 public:
  Application();
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Serves events for as long as the process lives.
  static int run();

  /// Serves all events that are pending and returns.
  static void doEvents();

  /// Waits until `descriptor` has something to read or its other end is closed, at most `milliseconds`
  /// (negative: without limit; 0: serves what is pending). Meanwhile windows repaint and answer the desktop,
  /// and input, timers and closing are held back.
  static void waitPainting(int descriptor, int milliseconds);

  /// True inside `waitPainting` and once `end` has begun: no handler of the program may run.
  static bool isDeferring();

  /// Runs `action` at once or, where the program is held back, as an event of `object` that is served after
  /// that; an object has one such event at most.
  static void runOrDefer(QObject* object, const std::function<void()>& action);

  /// Ends the process at once; no handler runs any more. The clipboard's text is handed to the desktop first.
  [[noreturn]] static void end();
};

}  // namespace forms
