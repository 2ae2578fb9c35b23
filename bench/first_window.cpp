// Starts a program on an X server without a window manager and prints how long it took, seen from outside,
// until its window was painted (milliseconds), and the memory it holds at rest (proportional set size in KB).

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// Helper windows of the toolkit are smaller.
constexpr int kLeastWidth = 400;
constexpr auto kRest = 700ms;
constexpr auto kPatience = 20s;

/// The root of a fresh server is black, and a window without a background shows it until it is painted.
bool isPainted(Display* display, Window window) {
  XImage* const image = XGetImage(display, window, 3, 3, 1, 1, AllPlanes, ZPixmap);
  if (image == nullptr) return false;
  const bool painted = (XGetPixel(image, 0, 0) & 0xFFFFFF) != 0;
  XDestroyImage(image);
  return painted;
}

/// Without asking again and again: on a few processors that would take time from what is measured.
void waitForEvent(Display* display) {
  pollfd connection = {ConnectionNumber(display), POLLIN, 0};
  poll(&connection, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count()));
}

/// True once a large window is mapped and painted; false where none comes.
bool waitForPaintedWindow(Display* display, Clock::time_point start) {
  Window window = None;
  while (Clock::now() < start + kPatience) {
    while (XPending(display) > 0) {
      XEvent event;
      XNextEvent(display, &event);
      XWindowAttributes attributes;
      if (event.type == MapNotify && XGetWindowAttributes(display, event.xmap.window, &attributes) != 0 &&
          attributes.width >= kLeastWidth)
        window = event.xmap.window;
    }
    if (window != None && isPainted(display, window)) return true;
    if (window == None)
      waitForEvent(display);
    else
      std::this_thread::sleep_for(100us);
  }
  return false;
}

long proportionalSetSize(pid_t process) {
  std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
  for (std::string word; rollup >> word;) {
    long kilobytes = 0;
    if (word == "Pss:" && rollup >> kilobytes) return kilobytes;
  }
  return -1;
}

}  // namespace

int main(int argc, char** argv) {
  Display* const display = XOpenDisplay(nullptr);
  if (argc < 2 || display == nullptr) return 2;
  // A window that is gone when it is asked about is no reason to end.
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  XSync(display, False);

  const auto start = Clock::now();
  pid_t process = -1;
  if (posix_spawn(&process, argv[1], nullptr, nullptr, argv + 1, environ) != 0) return 2;
  const bool painted = waitForPaintedWindow(display, start);
  const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
  std::this_thread::sleep_for(kRest);
  const long memory = proportionalSetSize(process);
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  if (!painted || memory < 0) return 1;
  std::printf("%.2f %ld\n", taken.count(), memory);
  return 0;
}
