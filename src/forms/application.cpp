#include "forms/application.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFontDatabase>
#include <QIcon>
#include <QImageReader>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "forms/held_input.h"
#include "forms/spoken.h"
#include "forms/style.h"

namespace forms {
namespace {

QApplication* application = nullptr;
HeldInput* heldInput = nullptr;
bool waiting = false;
bool ended = false;

struct Deferred {
  const void* event = nullptr;
  std::function<void()> action;
};

std::vector<Deferred> deferred;

class Wait {
 public:
  Wait() {
    waiting = true;
    heldInput->hold();
  }
  ~Wait() {
    waiting = false;
    heldInput->release();
    for (const Deferred& due : std::exchange(deferred, {})) {
      // The next wait can begin before the event loop gets here.
      const auto again = [due] { Application::runOrDefer(due.event, due.action); };
      QMetaObject::invokeMethod(application, again, Qt::QueuedConnection);
    }
  }
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;
};

/// Gives all windows their icon behind the first frame, which does not show it yet.
class LateIcon : public QObject {
 public:
  explicit LateIcon(QObject* parent) : QObject(parent) { parent->installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    deleteLater();
    QCoreApplication::instance()->removeEventFilter(this);
    QMetaObject::invokeMethod(QCoreApplication::instance(), &readIcon, Qt::QueuedConnection);
    return false;
  }

 private:
  static void readIcon();
};

void LateIcon::readIcon() {
  QIcon icon;
  for (const char* size : {"16x16", "32x32", "48x48"}) {
    QImageReader picture(QString(":/icons/hicolor/%1/apps/tessavane.png").arg(size), "png");
    // Qt would load all its picture plug-ins and ask each, although the kind is named.
    picture.setAutoDetectImageFormat(false);
    icon.addPixmap(QPixmap::fromImageReader(&picture));
  }
  QApplication::setWindowIcon(icon);
}

}  // namespace

Application::Application(const StartThread& startThread) {
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
  // Connecting to the display is mostly waiting. Meanwhile fontconfig reads its files, which Qt would ask it
  // to do with the first text; and Qt makes its own list of the fonts while the first controls are made.
  std::thread fontconfig = startThread([] { FcInit(); });
  application = new QApplication(count, arguments);
  fontconfig.join();
  fonts_ = std::thread([] { QFontDatabase::families(); });
  heldInput = new HeldInput(application);
  installSpokenWidgets();
  applyStyle();
  new LateIcon(application);
  QApplication::setQuitOnLastWindowClosed(false);
}

Application::~Application() {
  fonts_.join();
  delete application;
  application = nullptr;
}

int Application::run() {
  return QApplication::exec();
}

void Application::doEvents() {
  do QCoreApplication::processEvents();
  while (heldInput->isServing());
}

void Application::waitPainting(int descriptor, int milliseconds) {
  const Wait wait;
  if (milliseconds == 0) {
    QCoreApplication::processEvents();
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
  loop.exec();
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

void Application::runInWait(const std::function<void()>& action) {
  if (ended) return;
  const bool before = std::exchange(waiting, false);
  action();
  waiting = before;
}

void Application::end() {
  ended = true;
  // On X11 and Wayland a copied text lives in the process that copied it; at its end QApplication hands it to
  // a clipboard manager.
  if (application != nullptr && QApplication::clipboard()->ownsClipboard()) delete application;
  std::_Exit(0);
}

}  // namespace forms
