#include "forms/application.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QIcon>
#include <QPointer>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "forms/style.h"

namespace forms {
namespace {

QApplication* application = nullptr;
bool waiting = false;
bool ended = false;

struct Deferred {
  const void* event;
  std::function<void()> action;
};

std::vector<Deferred> deferred;

class Wait : public QObject {
 public:
  Wait() {
    waiting = true;
    application->installEventFilter(this);
  }
  ~Wait() override {
    waiting = false;
    for (auto& [window, key] : keys_)
      if (window) QCoreApplication::postEvent(window, key.release());
    // The event loop would look at the input that it has left unserved only when the desktop sends more.
    QAbstractEventDispatcher::instance()->wakeUp();
    for (const Deferred& due : std::exchange(deferred, {})) {
      // The next wait can begin before the event loop gets here.
      const auto again = [due] { Application::runOrDefer(due.event, due.action); };
      QMetaObject::invokeMethod(application, again, Qt::QueuedConnection);
    }
  }
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;

  /// While a screen reader runs, Qt lets the accessibility bus see each key first and posts it to the window
  /// after the answer. A posted event is no input to Qt, which would serve it inside the wait: it is kept
  /// here until after that.
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !watched->isWindowType()) return false;
    keys_.emplace_back(watched, event->clone());
    return true;
  }

 private:
  std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> keys_;
};

QIcon windowIcon() {
  QIcon icon;
  for (const char* size : {"16x16", "32x32", "48x48"})
    icon.addFile(QString(":/icons/hicolor/%1/apps/tessavane.png").arg(size));
  return icon;
}

}  // namespace

Application::Application() {
  // Themes of desktops, which Qt would load where QT_QPA_PLATFORMTHEME asks for them, are not made for a
  // program that keeps a look of its own: under qt6ct a file dialog can crash. As an argument the choice is
  // not inherited by child processes, as a changed environment would be.
  static char name[] = "tessavane", option[] = "-platformtheme", theme[] = "generic";
  static char* arguments[] = {name, option, theme, nullptr};
  static int count = 3;

  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_Use96Dpi);
  // Qt's file dialog would keep its own settings in the user's home; the program keeps none.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
  application = new QApplication(count, arguments);
  applyStyle();
  QApplication::setWindowIcon(windowIcon());
  QApplication::setQuitOnLastWindowClosed(false);
}

Application::~Application() {
  delete application;
  application = nullptr;
}

int Application::run() {
  return QApplication::exec();
}

void Application::doEvents() {
  QCoreApplication::processEvents();
}

void Application::waitPainting(int descriptor, int milliseconds) {
  const Wait wait;
  constexpr auto kPaintOnly = QEventLoop::ExcludeUserInputEvents;
  if (milliseconds == 0) {
    QCoreApplication::processEvents(kPaintOnly);
    return;
  }
  bool over = false;
  QEventLoop loop;
  const auto stop = [&] {
    over = true;
    loop.quit();
  };
  QSocketNotifier readable(descriptor, QSocketNotifier::Read);
  QObject::connect(&readable, &QSocketNotifier::activated, stop);
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, stop);
  if (milliseconds > 0) limit.start(milliseconds);
  loop.exec(kPaintOnly);
  // Where the display is lost, Qt ends the process; from 6.11 on it calls `QCoreApplication::exit` instead,
  // which makes every event loop return, this one and any begun later, but not the run that waits here.
  if (!over) std::_Exit(1);
}

bool Application::isDeferring() {
  return waiting || ended;
}

void Application::runOrDefer(const void* event, const std::function<void()>& action) {
  if (!isDeferring()) return action();
  if (std::ranges::find(deferred, event, &Deferred::event) == deferred.end())
    deferred.push_back({event, action});
}

void Application::end() {
  ended = true;
  // On X11 and Wayland a copied text lives in the process that copied it; at its end QApplication hands it to
  // a clipboard manager.
  if (application != nullptr && QApplication::clipboard()->ownsClipboard()) delete application;
  std::_Exit(0);
}

}  // namespace forms
