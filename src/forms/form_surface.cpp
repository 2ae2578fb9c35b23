#include "forms/form_surface.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/form.h"
#include "forms/style.h"

namespace forms {
namespace {

/// What the desktop put around the last window that it showed: the best guess for the next one.
QMargins lastFrame;

/// To a screen reader a plain widget is no window, whatever it looks like.
QAccessibleInterface* makeSpokenWindow(const QString& /*kind*/, QObject* object) {
  auto* surface = dynamic_cast<FormSurface*>(object);
  if (surface == nullptr) return nullptr;
  const bool owned = surface->windowType() == Qt::Dialog;
  return new QAccessibleWidget(surface, owned ? QAccessible::Dialog : QAccessible::Window);
}

}  // namespace

FormSurface::FormSurface(Form& form, const FormData& formData)
    : Surface(nullptr, false, formData.scale), form_(form), oneSize_(formData.oneSize) {
  [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeSpokenWindow), true);
  Qt::WindowFlags flags = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint | (formData.owned ? Qt::Dialog : Qt::Window);
  if (formData.minimiseButton) flags |= Qt::WindowMinimizeButtonHint;
  if (formData.maximiseButton) flags |= Qt::WindowMaximizeButtonHint;
  setWindowFlags(flags);
  setObjectName(formData.name);
  setMouseTracking(true);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, toQt(formData.back));
  setPalette(colors);
  resize(formData.width / kTwipsPerPixel, formData.height / kTwipsPerPixel);
}

QMargins FormSurface::frame() const {
  // A window that the desktop has not framed yet has no margins; without a frame at all, the guess has none.
  const QMargins known = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
  return known.isNull() ? lastFrame : known;
}

QSize FormSurface::outerSize() const {
  return size().grownBy(frame());
}

void FormSurface::applyOuterSize() {
  assumedFrame_ = frame();
  const QSizeF outer = QSizeF(form_.width(), form_.height()) / kTwipsPerPixel;
  asked_ = outer.toSize().shrunkBy(assumedFrame_).expandedTo(QSize(1, 1));
  if (oneSize_)
    setFixedSize(asked_);
  else
    resize(asked_);
}

void FormSurface::standBeside(const FormSurface* owner) {
  applyOuterSize();
  const QRect screenArea = (owner != nullptr ? owner : this)->screen()->availableGeometry();
  centre_ = (owner != nullptr ? owner->frameGeometry() : screenArea).center();
  centre();
  if (owner != nullptr) {
    winId();
    windowHandle()->setTransientParent(owner->windowHandle());
  }
  told_ = size();
}

void FormSurface::centre() {
  QRect place({0, 0}, outerSize());
  place.moveCenter(centre_);
  const QRect screenArea = screen()->availableGeometry();
  move(std::max(place.left(), screenArea.left()), std::max(place.top(), screenArea.top()));
}

void FormSurface::bringForward() {
  if (isMinimized())
    showNormal();
  else if (isVisible())
    raise();
  else
    show();
  activateWindow();
}

void FormSurface::settle() {
  if (!isVisible()) return;
  const bool wasMinimised = std::exchange(minimised_, isMinimized());
  if (minimised_) {
    if (!wasMinimised) form_.raise(form_.onResize);
    return;
  }
  lastFrame = frame();
  // The frame came after the size was asked for: the outer size stays and the inner one gives way.
  if (lastFrame != assumedFrame_ && size() == asked_) {
    applyOuterSize();
    if (!std::exchange(centred_, true)) centre();
  }
  if (size() == told_ && !wasMinimised) return;
  told_ = size();
  form_.takeOuterSize(outerSize().width() * kTwipsPerPixel, outerSize().height() * kTwipsPerPixel);
}

bool FormSurface::event(QEvent* event) {
  // The focus shows at once, not only after the first Tab.
  if (event->type() == QEvent::WindowActivate) setAttribute(Qt::WA_KeyboardFocusChange);
  const bool handled = Surface::event(event);
  switch (event->type()) {
    case QEvent::MouseMove:
      form_.raise(form_.onMouseMove);
      break;
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
    case QEvent::WindowStateChange:
      Application::runOrDefer(this, [this] { settle(); });
      break;
    default:
      break;
  }
  return handled;
}

void FormSurface::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!Application::isDeferring()) form_.unload();
}

}  // namespace forms
