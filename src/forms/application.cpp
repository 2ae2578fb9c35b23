#include "forms/application.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
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

#include "forms/clipboard.h"
#include "forms/style.h"

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
      const auto again = [due] { Application::runOrDefer(due.object, due.action); };
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
  applyStyle();
  QIcon icon;
  for (const char* picture : {"16x16", "32x32", "48x48"})
    icon.addFile(QString(":/icons/hicolor/%1/apps/tessavane.png").arg(picture));
  QApplication::setWindowIcon(icon);
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
  QSocketNotifier readable(descriptor, QSocketNotifier::Read);
  QObject::connect(&readable, &QSocketNotifier::activated, [&] {
    readable.setEnabled(false);
    over = true;
  });
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, [&] { over = true; });
  if (milliseconds > 0) limit.start(milliseconds);
  while (!over) QCoreApplication::processEvents(kPaintOnly | QEventLoop::WaitForMoreEvents);
}

bool Application::isDeferring() {
  return waits > 0 || ended;
}

void Application::runOrDefer(QObject* object, const std::function<void()>& action) {
  if (!isDeferring()) return action();
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
