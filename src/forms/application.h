// The process as the desktop sees it: the event loop, what serves it in between, its end, and the clipboard.
#pragma once

#include <functional>
#include <string>

#include "forms/event.h"

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

  /// The paint-only wait: until `descriptor` has something to read or its other end is closed, at most
  /// `milliseconds` (negative: without limit; 0: serves what is pending). Meanwhile windows repaint and
  /// answer the desktop, while input and events of the program are kept until it is over.
  static void waitPainting(int descriptor, int milliseconds);

  /// True inside `waitPainting` and once `end` has begun: no handler of the program may run, but those of the
  /// main window's closing.
  static bool isDeferring();

  /// Runs `action` at once or, while deferring, in the event loop after the wait; a second one for the same
  /// `event` is dropped.
  static void runOrDefer(const Event& event, const std::function<void()>& action);

  /// Ends the process at once; no handler runs any more. The clipboard's text is handed to the desktop first.
  [[noreturn]] static void end();
};

/// The desktop's clipboard, for plain text in UTF-8, which takes the place of all that was there.
class Clipboard {
 public:
  static void setText(const std::string& text);
};

}  // namespace forms
