#include "forms/form_surface.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/form_window.h"
#include "forms/style.h"

namespace forms {
namespace {

/// The frame of the window that was framed last: most likely that of the next one, too.
QMargins lastFrame;

/// Asked of the window: Qt's widget can still have the frame of before.
QMargins frameOf(const QWidget& widget) {
  return widget.windowHandle() != nullptr ? widget.windowHandle()->frameMargins() : QMargins();
}

/// The local file that is dragged, empty where it is none or one of several. A copy is taken of it, so that
/// nobody moves it away.
QString fileIn(const QDropEvent& drag) {
  const QList<QUrl> urls = drag.mimeData()->urls();
  const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
  return drag.possibleActions() & Qt::CopyAction && QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

FormSurface::FormSurface(FormWindow& form, const FormData& formData)
    : Surface(false, formData.scale), form_(form), data_(formData) {
  Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint | (formData.owned ? Qt::Dialog : Qt::Window);
  if (formData.minimiseButton) flags |= Qt::WindowMinimizeButtonHint;
  if (formData.maximiseButton) flags |= Qt::WindowMaximizeButtonHint;
  setWindowFlags(flags);
  setObjectName(formData.name);
  setWindowTitle(formData.caption);
  setMouseTracking(true);
  setAcceptDrops(true);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, toQt(formData.back));
  setPalette(colors);
  resize(formData.width / kTwipsPerPixel, formData.height / kTwipsPerPixel);
}

/// The size inside the frame that goes with the assigned one.
QSize FormSurface::wantedSize() const {
  const QSize inner = assigned_.shrunkBy(frame_).expandedTo(QSize(1, 1));
  return {assigned_.width() > 0 ? inner.width() : width(),
          assigned_.height() > 0 ? inner.height() : height()};
}

/// Where an outer size is assigned, it stays whatever the frame, and the inner one gives way.
void FormSurface::fit(QSize assigned, QMargins frame) {
  if (isMinimized()) return;
  const bool isOverruled = isVisible() && size() != wantedSize();
  assigned_ = assigned;
  frame_ = frame;
  // A manager that has overruled the size once, as matchbox does and those that tile, refuses any other
  // without a word to Qt, which would not paint the rest of the window.
  if (isOverruled) return;
  if (data_.oneSize) return setFixedSize(wantedSize());
  setMinimumWidth(data_.leastWidth / kTwipsPerPixel - frame.left() - frame.right());
  resize(wantedSize());
}

void FormSurface::prepare() {
  fit(assigned_, lastFrame);
  tellForm();
}

void FormSurface::centreOn(const FormSurface* owner) {
  if (owner != nullptr) setScreen(owner->screen());
  centre_ = (owner != nullptr ? owner->geometry() + frameOf(*owner) : screen()->availableGeometry()).center();
  centre();
  if (owner == nullptr) return;
  winId();
  windowHandle()->setTransientParent(owner->windowHandle());
}

/// As far as the screen goes.
void FormSurface::centre() {
  QRect place({0, 0}, outerSize());
  place.moveCenter(*centre_);
  const QRect area = screen()->availableGeometry();
  place.moveRight(std::min(place.right(), area.right()));
  place.moveBottom(std::min(place.bottom(), area.bottom()));
  place.moveLeft(std::max(place.left(), area.left()));
  place.moveTop(std::max(place.top(), area.top()));
  if (!isVisible()) return move(place.topLeft());
  // Where the window inside is to be, which all managers understand alike.
  windowHandle()->setPosition(place.topLeft() + QPoint(frame_.left(), frame_.top()));
}

void FormSurface::bringForward() {
  if (isMinimized())
    showNormal();
  else
    show();
  QWidget::raise();
  activateWindow();
}

/// Puts size and place right where the window manager's frame is not the expected one.
void FormSurface::adjust() {
  if (isMinimized() || isFullScreen()) return;
  // The user has chosen another size.
  if (!data_.oneSize && size() != wantedSize()) assigned_ = QSize(0, 0);
  const QMargins own = frameOf(*this);
  if (own.isNull()) return;
  if (own != frame_) {
    fit(assigned_, own);
    if (centre_) centre();
  }
  // From now on the window stands where the user wants it.
  centre_.reset();
  lastFrame = own;
}

/// Tells the form of a new size or state.
void FormSurface::tellForm() {
  const QSize now = isMinimized() ? QSize() : size();
  if (std::exchange(told_, now) != now) form_.raise(form_.onResize);
}

bool FormSurface::event(QEvent* event) {
  // By itself Qt shows the focus only from the first Tab on.
  if (event->type() == QEvent::WindowActivate) setAttribute(Qt::WA_KeyboardFocusChange);
  const bool handled = Surface::event(event);
  switch (event->type()) {
    case QEvent::MouseMove:
      form_.raise(form_.onMouseMove);
      break;
    case QEvent::WindowStateChange:
      if (data_.oneSize && isFullScreen()) {
        // The window manager, which alone can have made it so, puts it back to where it was. One that is
        // asked while it is still busy with the full screen (awesome, i3) knows no way back.
        constexpr int kMilliseconds = 100;
        QTimer::singleShot(kMilliseconds, this,
                           [this] { setWindowState(windowState() & ~Qt::WindowFullScreen); });
      }
      [[fallthrough]];
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
      if (!isVisible()) break;
      adjust();
      tellForm();
      break;
    default:
      break;
  }
  return handled;
}

void FormSurface::dragEnterEvent(QDragEnterEvent* event) {
  // Qt lets drops through to windows that a dialog keeps all other input from.
  const bool isOpen = form_.onFileDrop.handler() && QApplication::activeModalWidget() == nullptr;
  if (!isOpen || fileIn(*event).isEmpty()) return event->ignore();
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void FormSurface::dropEvent(QDropEvent* event) {
  const std::string path = fromQt(fileIn(*event));
  if (path.empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  form_.droppedFile_ = path;
  form_.raise(form_.onFileDrop);
}

void FormSurface::closeEvent(QCloseEvent* event) {
  event->ignore();
  // In a wait too: the program's end never returns, so that nothing nests.
  if (data_.endsProgram) return form_.unload();
  form_.raise(form_.onUnload, [this](bool /*deferred*/) { form_.unload(); });
}

}  // namespace forms
