#include "forms/form_window.h"

#include <QCoreApplication>
#include <utility>

#include "forms/application.h"
#include "forms/form_surface.h"
#include "forms/style.h"

namespace forms {

FormWindow::FormWindow(const FormData& data) : window_(std::make_unique<FormSurface>(*this, data)) {}

FormWindow::~FormWindow() = default;

Surface& FormWindow::surface(const char* container) const {
  if (*container == '\0') return *window_;
  if (auto* found = dynamic_cast<Surface*>(window_->findChild<QWidget*>(container))) return *found;
  return *window_;
}

std::string FormWindow::caption() const {
  return fromQt(window_->windowTitle());
}

void FormWindow::setCaption(const std::string& caption) {
  window_->setWindowTitle(toQt(caption));
}

double FormWindow::width() const {
  return window_->outerSize().width() * kTwipsPerPixel;
}

double FormWindow::height() const {
  return window_->outerSize().height() * kTwipsPerPixel;
}

void FormWindow::setWidth(double twips) {
  if (twips > 0) window_->assign({qRound(twips / kTwipsPerPixel), window_->assigned().height()});
}

void FormWindow::setHeight(double twips) {
  if (twips > 0) window_->assign({window_->assigned().width(), qRound(twips / kTwipsPerPixel)});
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

void FormWindow::raise(const Event& event, const std::function<void(bool deferred)>& handler) {
  if (!isLoaded()) return;
  const auto alive = shared_from_this();
  if (!Application::isDeferring()) return handler(false);
  Application::runOrDefer(event, [form = weak_from_this(), handler] {
    const auto later = form.lock();
    if (later && later->isLoaded()) handler(true);
  });
}

void FormWindow::raise(const Event& event) {
  raise(event, [&event](bool /*deferred*/) { event(); });
}

void FormWindow::load(std::function<void()> forget) {
  forget_ = std::move(forget);
  raise(onLoad);
}

void FormWindow::show(const FormWindow* owner) {
  if (!isLoaded()) return;
  if (!window_->isVisible()) {
    window_->prepare();
    if (!isLoaded()) return;
    window_->centreOn(owner != nullptr ? owner->window_.get() : nullptr);
  }
  window_->bringForward();
}

void FormWindow::unload() {
  if (!isLoaded() || unloading_) return;
  unloading_ = true;
  const auto alive = shared_from_this();
  onQueryUnload();
  onUnload();
  onTerminate();
  const auto forget = std::exchange(forget_, nullptr);
  window_->hide();
  forget();
}

void FormWindow::destroyLater(FormWindow* form) {
  // The last reference can go inside an event of one of the form's own widgets.
  if (QCoreApplication::instance() == nullptr) return;
  const auto destroy = [form] { delete form; };
  QMetaObject::invokeMethod(QCoreApplication::instance(), destroy, Qt::QueuedConnection);
}

}  // namespace forms
