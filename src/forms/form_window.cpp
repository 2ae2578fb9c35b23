#include "forms/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <utility>

#include "forms/application.h"
#include "forms/form_surface.h"
#include "forms/style.h"

namespace forms {
namespace {

/// The local file that is dragged, empty where it is none or one of several. A copy is taken of it, so that
/// nobody moves it away.
QString fileIn(const QDropEvent& drag) {
  const QList<QUrl> urls = drag.mimeData()->urls();
  const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
  return drag.possibleActions() & Qt::CopyAction && QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

/// Raises the form's events.
class FormWindow::Window : public FormSurface {
 public:
  Window(FormWindow& form, const FormData& formData)
      : FormSurface(formData), form_(form), endsProgram_(formData.endsProgram) {
    setMouseTracking(true);
    setAcceptDrops(true);
  }

 protected:
  void sizeChanged() override { form_.raise(form_.onResize); }
  void mouseMoveEvent(QMouseEvent* /*event*/) override { form_.raise(form_.onMouseMove); }

  void dragEnterEvent(QDragEnterEvent* event) override {
    // Qt lets drops through to windows that a dialog keeps all other input from.
    const bool isOpen = form_.onFileDrop.handler() && QApplication::activeModalWidget() == nullptr;
    if (!isOpen || fileIn(*event).isEmpty()) return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
  }

  void dropEvent(QDropEvent* event) override {
    const std::string path = fromQt(fileIn(*event));
    if (path.empty()) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    form_.droppedFile_ = path;
    // The desktop waits for the answer to the drop.
    const auto tell = [this] { form_.raise(form_.onFileDrop); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  }

  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    // At once, in a wait too: `unload` does not return then, so that no handler runs inside another.
    if (endsProgram_) return form_.unload();
    form_.raise(form_.onUnload, [this] { form_.unload(); });
  }

 private:
  FormWindow& form_;
  bool endsProgram_;
};

FormWindow::FormWindow(const FormData& data) : window_(std::make_unique<Window>(*this, data)) {}

FormWindow::~FormWindow() = default;

Surface& FormWindow::surface(const char* container) const {
  if (*container == '\0') return *window_;
  return dynamic_cast<Surface&>(*window_->findChild<QWidget*>(container));
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

void FormWindow::raise(const Event& event, const std::function<void()>& handler) {
  Application::runOrDefer(event, [form = weak_from_this(), handler] {
    const auto alive = form.lock();
    if (alive && alive->isLoaded()) handler();
  });
}

void FormWindow::raise(const Event& event) {
  raise(event, [&event] { event(); });
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
  const auto destroy = [form] { delete form; };
  if (qApp != nullptr) QMetaObject::invokeMethod(qApp, destroy, Qt::QueuedConnection);
}

}  // namespace forms
