#include "forms/application.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QPointer>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "forms/clipboard.h"
#include "forms/look.h"

namespace forms {
namespace {

QApplication* application = nullptr;
int waits = 0;
bool ended = false;

struct Held {
  QPointer<QObject> object;
  std::function<void()> action;
};

/// What came due inside a wait, at most one action for each object.
std::vector<Held> held;

class Wait : public QObject {
 public:
  Wait() {
    ++waits;
    QCoreApplication::instance()->installEventFilter(this);
  }
  ~Wait() override {
    for (auto& [window, key] : keys_)
      if (window) QCoreApplication::postEvent(window, key.release());
    if (--waits > 0) return;
    // Input that was held back would lie there until the desktop sends something new.
    QAbstractEventDispatcher::instance()->wakeUp();
    for (const Held& due : std::exchange(held, {})) {
      if (!due.object) continue;
      const auto again = [due] { Application::whenServed(due.object, due.action); };
      QMetaObject::invokeMethod(due.object, again, Qt::QueuedConnection);
    }
  }
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;

  /// Where a screen reader listens, the toolkit asks it about each key and posts the key after the answer, so
  /// that it does not count as input any more.
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !watched->isWindowType()) return false;
    keys_.emplace_back(watched, event->clone());
    return true;
  }

 private:
  std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> keys_;
};

}  // namespace

Application::Application() {
  static char name[] = "tessavane";
  static char* arguments[] = {name, nullptr};
  static int count = 1;

  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_Use96Dpi);
  // The file dialog would keep its own settings in the user's home; the program keeps none.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
  application = new QApplication(count, arguments);
  applyLook();
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

bool Application::holdsBack() {
  return waits > 0 || ended;
}

void Application::whenServed(QObject* object, const std::function<void()>& action) {
  if (!holdsBack()) return action();
  const bool known = std::ranges::any_of(held, [&](const Held& due) { return due.object == object; });
  if (!known) held.push_back({object, action});
}

void Application::end() {
  ended = true;
  // The desktop asks a process for the text that it copied; on the way out it is handed to a clipboard
  // manager.
  if (application != nullptr && QApplication::clipboard()->ownsClipboard()) delete application;
  std::_Exit(0);
}

void Clipboard::clear() {
  QApplication::clipboard()->clear();
}

void Clipboard::setText(const std::string& text) {
  QApplication::clipboard()->setText(toQt(text));
}

}  // namespace forms
