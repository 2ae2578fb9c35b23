#include "forms/application.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QIcon>
#include <QImageReader>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <thread>
#include <utility>
#include <vector>

#include "forms/held_input.h"
#include "forms/screen_reader.h"
#include "forms/style.h"

namespace forms {
namespace {

HeldInput* heldInput = nullptr;
bool ended = false;

struct Deferred {
  const Event* event = nullptr;
  std::function<void()> action;
};

std::vector<Deferred> deferred;

}  // namespace

Application::Application() {
  // No theme of the desktop, also where QT_QPA_PLATFORMTHEME names one: under qt6ct a file dialog can crash.
  // Child processes would inherit a changed environment; an argument they do not.
  static char name[] = "tessavane", option[] = "-platformtheme", theme[] = "generic";
  static char* arguments[] = {name, option, theme, nullptr};
  static int count = 3;

  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_Use96Dpi);
  // Qt's file dialog would keep its own settings in the user's home; the program keeps none.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
  // fontconfig reads its files while the display answers. Qt would ask for them with the first text.
  std::thread fontconfig([] { FcInit(); });
  new QApplication(count, arguments);
  fontconfig.join();
  heldInput = new HeldInput(qApp);
  serveScreenReaders();
  applyStyle();
  QIcon icon;
  for (const char* size : {"16x16", "32x32", "48x48"}) {
    QImageReader picture(QString(":/icons/hicolor/%1/apps/tessavane.png").arg(size), "png");
    // Qt would load all its picture plug-ins and ask each, although the kind is named.
    picture.setAutoDetectImageFormat(false);
    icon.addPixmap(QPixmap::fromImageReader(&picture));
  }
  QApplication::setWindowIcon(icon);
  QApplication::setQuitOnLastWindowClosed(false);
}

Application::~Application() {
  delete qApp;
}

int Application::run() {
  return QApplication::exec();
}

void Application::doEvents() {
  do QCoreApplication::processEvents();
  while (heldInput->isServing());
}

void Application::waitPainting(int descriptor, int milliseconds) {
  heldInput->hold();
  constexpr int kOver = 2;
  QEventLoop loop;
  const auto stop = [&loop] { loop.exit(kOver); };
  QSocketNotifier readable(descriptor, QSocketNotifier::Read);
  QObject::connect(&readable, &QSocketNotifier::activated, stop);
  if (milliseconds >= 0) QTimer::singleShot(milliseconds, &loop, stop);
  // Where the display is lost, Qt ends the process; from 6.11 on it calls `QCoreApplication::exit` instead,
  // which makes every event loop return, this one and any begun later, but not the run that waits here.
  if (loop.exec() != kOver) std::_Exit(1);
  heldInput->release();
  for (const Deferred& next : std::exchange(deferred, {})) {
    // The next wait can begin before the event loop gets here.
    const auto run = [next] { runOrDefer(*next.event, next.action); };
    QMetaObject::invokeMethod(qApp, run, Qt::QueuedConnection);
  }
}

bool Application::isDeferring() {
  return ended || heldInput->isHolding();
}

void Application::runOrDefer(const Event& event, const std::function<void()>& action) {
  if (!isDeferring()) return action();
  if (std::ranges::find(deferred, &event, &Deferred::event) == deferred.end())
    deferred.push_back({&event, action});
}

void Application::end() {
  ended = true;
  // On X11 and Wayland a copied text lives in the process that copied it; at its end QApplication hands it to
  // a clipboard manager.
  if (qApp != nullptr && QApplication::clipboard()->ownsClipboard()) delete qApp;
  std::_Exit(0);
}

void Clipboard::setText(const std::string& text) {
  QApplication::clipboard()->setText(toQt(text));
}

}  // namespace forms
