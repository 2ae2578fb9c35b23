#include "forms/form_surface.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/style.h"

namespace forms {
namespace {

/// The frame of the window that was framed last: most likely that of the next one, too.
QMargins lastFrame;

/// Asked of the window: Qt's widget can still have the frame of before.
QMargins frameOf(const QWidget& widget) {
  return widget.windowHandle() != nullptr ? widget.windowHandle()->frameMargins() : QMargins();
}

}  // namespace

FormSurface::FormSurface(const FormData& formData) : Surface(false, formData.scale), data_(formData) {
  Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint | (formData.owned ? Qt::Dialog : Qt::Window);
  if (formData.minimiseButton) flags |= Qt::WindowMinimizeButtonHint;
  if (formData.maximiseButton) flags |= Qt::WindowMaximizeButtonHint;
  setWindowFlags(flags);
  setObjectName(formData.name);
  setWindowTitle(formData.caption);
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
  moveCentre(*centre_);
  if (owner == nullptr) return;
  winId();
  windowHandle()->setTransientParent(owner->windowHandle());
}

/// As far as the screen goes.
void FormSurface::moveCentre(const QPoint& middle) {
  QRect place({0, 0}, outerSize());
  place.moveCenter(middle);
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
  setWindowState(windowState() & ~Qt::WindowMinimized);
  if (isVisible())
    QWidget::raise();
  else
    show();
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
    if (centre_) moveCentre(*centre_);
  }
  // From now on the window stands where the user wants it.
  centre_.reset();
  lastFrame = own;
}

/// The window manager, which alone can have made it so, puts the window back to where it was.
void FormSurface::leaveFullScreen() {
  // Managers that are asked while still busy with the full screen (awesome, i3) know no way back.
  constexpr int kMilliseconds = 100;
  QTimer::singleShot(kMilliseconds, this, [this] { setWindowState(windowState() & ~Qt::WindowFullScreen); });
}

void FormSurface::followWindow() {
  if (!isVisible()) return;
  adjust();
  tellForm();
}

/// Tells the form of a new size or state.
void FormSurface::tellForm() {
  const QSize now = isMinimized() ? QSize() : size();
  if (std::exchange(told_, now) != now) sizeChanged();
}

bool FormSurface::event(QEvent* event) {
  // By itself Qt shows the focus only from the first Tab on.
  if (event->type() == QEvent::WindowActivate) setAttribute(Qt::WA_KeyboardFocusChange);
  const bool handled = Surface::event(event);
  switch (event->type()) {
    case QEvent::WindowStateChange:
      if (data_.oneSize && isFullScreen()) leaveFullScreen();
      followWindow();
      break;
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
      followWindow();
      break;
    default:
      break;
  }
  return handled;
}

}  // namespace forms
