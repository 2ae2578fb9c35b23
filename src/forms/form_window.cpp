#include "forms/form_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {

/// The top-level widget of a form. It holds the outer size, although the window manager puts its frame around
/// a window only after that is shown.
class FormSurface : public Surface {
 public:
  FormSurface(FormWindow& form, const FormData& data);

  /// Pixels, frame included.
  QSize outerSize() const { return size().grownBy(frame()); }
  /// Brings the window to the outer size of its form.
  void applyOuterSize();
  /// Prepares the first show: the outer size alone.
  void prepareSize();
  /// Prepares the first show in its final size: in the middle of the owner's window, or of the screen where
  /// there is none.
  void standBeside(const FormSurface* owner);
  /// Shows the window, in its normal state if it is minimised, in front of the others.
  void bringForward();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QMargins frame() const;
  QMargins ownFrame() const;
  void centre();
  bool standsElsewhere() const;
  void leaveFullScreen();
  void reportState();

  FormWindow& form_;
  bool oneSize_;
  bool owned_;
  bool endsProgram_;
  QMargins assumedFrame_;
  QSize requestedSize_;
  QSize reportedSize_;
  QPoint centre_;
  QPoint place_;
  QElapsedTimer placed_;
  bool centred_ = false;
  bool minimised_ = false;
};

namespace {

/// The frame of the window that was shown last. Outer sizes and places are asked for before the window
/// manager frames a new window, and most likely it frames all alike.
QMargins lastFrame;

}  // namespace

FormSurface::FormSurface(FormWindow& form, const FormData& formData)
    : Surface(false, formData.scale),
      form_(form),
      oneSize_(formData.oneSize),
      owned_(formData.owned),
      endsProgram_(formData.endsProgram) {
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

/// The frame of this window, or the likely one before the window manager has framed it.
QMargins FormSurface::frame() const {
  const QMargins own = ownFrame();
  return own.isNull() ? lastFrame : own;
}

/// Asked of the window: Qt's widget can still have the frame of before.
QMargins FormSurface::ownFrame() const {
  return windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
}

void FormSurface::applyOuterSize() {
  assumedFrame_ = frame();
  const QSizeF outer = QSizeF(form_.width(), form_.height()) / kTwipsPerPixel;
  const bool isForced = oneSize_ && isVisible() && size() != requestedSize_;
  requestedSize_ = outer.toSize().shrunkBy(assumedFrame_).expandedTo(QSize(1, 1));
  // A manager that has overruled the size once, as tiling ones do, refuses any other without a word to Qt,
  // which would not paint the rest of the window.
  if (isForced) return;
  if (oneSize_)
    setFixedSize(requestedSize_);
  else
    resize(requestedSize_);
}

void FormSurface::prepareSize() {
  applyOuterSize();
  reportedSize_ = size();
}

void FormSurface::standBeside(const FormSurface* owner) {
  const QRect screenArea = (owner != nullptr ? owner : this)->screen()->availableGeometry();
  centre_ = (owner != nullptr ? owner->geometry() + owner->ownFrame() : screenArea).center();
  centre();
  placed_.start();
  if (owner == nullptr) return;
  winId();
  windowHandle()->setTransientParent(owner->windowHandle());
}

void FormSurface::centre() {
  QRect place({0, 0}, outerSize());
  place.moveCenter(centre_);
  const QRect screenArea = screen()->availableGeometry();
  const QPoint last = screenArea.bottomRight() - place.bottomRight() + place.topLeft();
  place_ = {std::max(std::min(place.left(), last.x()), screenArea.left()),
            std::max(std::min(place.top(), last.y()), screenArea.top())};
  if (!isVisible()) return move(place_);
  // Where the window inside is to be, which all managers understand alike.
  const QMargins own = ownFrame();
  windowHandle()->setPosition(place_ + QPoint(own.left(), own.top()));
}

/// Whether the window manager has put a new window where nobody asked for it. Some have a place of their own
/// at first (awesome), or take that of the frame for that of the window inside (matchbox). Later on, or where
/// the window fills the screen, it is the user who wants it so.
bool FormSurface::standsElsewhere() const {
  constexpr int kMilliseconds = 500;
  const QMargins own = ownFrame();
  return owned_ && own == assumedFrame_ && geometry().topLeft() - QPoint(own.left(), own.top()) != place_ &&
         !isMaximized() && !isFullScreen() && !placed_.hasExpired(kMilliseconds);
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

/// The window manager, which alone can have made it so, puts it back to where it was. One that is asked while
/// it is still busy with the full screen (awesome, i3) knows no way back.
void FormSurface::leaveFullScreen() {
  constexpr int kMilliseconds = 100;
  QTimer::singleShot(kMilliseconds, this, [this] { setWindowState(windowState() & ~Qt::WindowFullScreen); });
}

/// Tells the form of a new size or state, once it is shown.
void FormSurface::reportState() {
  if (!isVisible()) return;
  if (oneSize_ && isFullScreen()) return leaveFullScreen();
  const bool wasMinimised = std::exchange(minimised_, isMinimized());
  if (minimised_) {
    if (!wasMinimised) form_.raise(form_.onResize);
    return;
  }
  lastFrame = frame();
  // The window manager's frame is not the one that the size was asked for with: the outer size stays and the
  // inner one gives way.
  const bool otherFrame = lastFrame != assumedFrame_ && size() == requestedSize_;
  if (otherFrame) applyOuterSize();
  if ((otherFrame || standsElsewhere()) && !std::exchange(centred_, true)) centre();
  if (size() == reportedSize_ && !wasMinimised) return;
  reportedSize_ = size();
  form_.outerWidth_ = outerSize().width() * kTwipsPerPixel;
  form_.outerHeight_ = outerSize().height() * kTwipsPerPixel;
  form_.raise(form_.onResize);
}

bool FormSurface::event(QEvent* event) {
  // By itself Qt shows the focus only from the first Tab on.
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
      reportState();
      break;
    default:
      break;
  }
  return handled;
}

void FormSurface::closeEvent(QCloseEvent* event) {
  event->ignore();
  // In a wait too: the program's end never returns, so that nothing nests.
  if (endsProgram_) return form_.unload();
  form_.raise(form_.onUnload, [this](bool /*deferred*/) { form_.unload(); });
}

FormWindow::FormWindow(const FormData& data) : window_(std::make_unique<FormSurface>(*this, data)) {
  outerWidth_ = window_->outerSize().width() * kTwipsPerPixel;
  outerHeight_ = window_->outerSize().height() * kTwipsPerPixel;
  setCaption(data.caption);
}

FormWindow::~FormWindow() = default;

Surface& FormWindow::surface(const char* container) const {
  if (*container == '\0') return *window_;
  if (auto* found = dynamic_cast<Surface*>(window_->findChild<QWidget*>(container))) return *found;
  return *window_;
}

void FormWindow::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  window_->setWindowTitle(toQt(caption));
}

double FormWindow::scaleWidth() const {
  return window_->scaleWidth();
}

double FormWindow::scaleHeight() const {
  return window_->scaleHeight();
}

bool FormWindow::minimised() const {
  return window_->isMinimized();
}

void FormWindow::setOuterSize(double width, double height) {
  if (!(width > 0 && height > 0) || minimised() || (width == outerWidth_ && height == outerHeight_)) return;
  outerWidth_ = width;
  outerHeight_ = height;
  window_->applyOuterSize();
}

void FormWindow::raise(const Event& event, const std::function<void(bool deferred)>& handler) {
  if (!loaded_) return;
  const auto alive = shared_from_this();
  if (!Application::isDeferring()) return handler(false);
  Application::runOrDefer(event, [form = weak_from_this(), handler] {
    const auto later = form.lock();
    if (later && later->loaded_) handler(true);
  });
}

void FormWindow::raise(const Event& event) {
  raise(event, [&event](bool /*deferred*/) { event(); });
}

void FormWindow::load(std::function<void()> forget) {
  forget_ = std::move(forget);
  loaded_ = true;
  raise(onLoad);
}

void FormWindow::show(const FormWindow* owner) {
  if (!loaded_) return;
  if (!window_->isVisible()) {
    window_->prepareSize();
    raise(onResize);
    if (!loaded_) return;
    window_->standBeside(owner != nullptr ? owner->window_.get() : nullptr);
  }
  window_->bringForward();
}

void FormWindow::unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  const auto alive = shared_from_this();
  onQueryUnload();
  onUnload();
  onTerminate();
  loaded_ = false;
  window_->hide();
  forget_();
}

void FormWindow::destroyLater(FormWindow* form) {
  // The last reference can go inside an event of one of the form's own widgets.
  if (QCoreApplication::instance() == nullptr) return;
  const auto destroy = [form] { delete form; };
  QMetaObject::invokeMethod(QCoreApplication::instance(), destroy, Qt::QueuedConnection);
}

}  // namespace forms
