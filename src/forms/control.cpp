#include "forms/control.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPalette>
#include <QWidget>

#include "forms/application.h"
#include "forms/form.h"
#include "forms/mouse_filter.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {

void Item::raise(const Event& event) const {
  if (!event || form_ == nullptr || !form_->isLoaded() || Application::isDeferring()) return;
  const auto alive = form_->shared_from_this();
  event(index_ == kSingle ? 0 : index_);
}

void MouseFilter::watch(QWidget* widget) {
  widget->setMouseTracking(true);
  widget->setAttribute(Qt::WA_NoMousePropagation);
  widget->installEventFilter(this);
}

bool MouseFilter::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
      control_.raise(control_.onMouseMove);
      return consumes_;
    case QEvent::MouseButtonRelease:
      control_.raise(control_.onMouseUp);
      return consumes_;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return consumes_;
    default:
      return false;
  }
}

Control::Control(Form* form, const ControlData& data, QWidget* widget)
    : Item(form, data.index),
      widget_(widget),
      filter_(new MouseFilter(*this, data.kind == Kind::Label || data.kind == Kind::PictureBox)),
      back_(data.look.back),
      fore_(data.look.fore),
      fontSize_(data.look.fontSize) {
  filter_->watch(widget);
  if (auto* scrolled = qobject_cast<QAbstractScrollArea*>(widget)) filter_->watch(scrolled->viewport());
  if (form == nullptr) return;
  container_ = form->surface(data.container);
  const double scale = container_->unitsPerPixel() / kTwipsPerPixel;
  left_ = data.left * scale;
  top_ = data.top * scale;
  width_ = data.width * scale;
  height_ = data.height * scale;
  widget->setObjectName(data.index == kSingle ? QString(data.name)
                                              : QString("%1(%2)").arg(data.name).arg(data.index));
  if (fontSize_ != Look{}.fontSize || data.look.bold) widget->setFont(fontOf(fontSize_, data.look.bold));
  widget->setParent(container_);
  if (*data.spokenName != '\0') widget->setAccessibleName(data.spokenName);
  place();
  setVisible(!data.look.hidden);
  if (data.look.outOfSight) widget->hide();
  applyColors();
}

Control::~Control() {
  delete filter_;
  if (container_ == nullptr) delete widget_;
}

void Control::raiseWhenServed(const Event& event) {
  Application::runOrDefer(widget_, [this, &event] {
    if (enabled()) raise(event);
  });
}

double Control::unitsPerPixel() const {
  return container_ != nullptr ? container_->unitsPerPixel() : 1;
}

void Control::place() {
  if (container_ == nullptr) return;
  const double pixel = 1 / unitsPerPixel();
  const int border = container_->border();
  QRect extent = QRectF(left_ * pixel, top_ * pixel, width_ * pixel, height_ * pixel).toRect();
  extent.translate(border, border);
  // A control as wide as its box would cover the border.
  if (border > 0) extent &= container_->rect().adjusted(border, border, -border, -border);
  widget_->setGeometry(extent);
}

void Control::setExtent(double left, double width, double height) {
  left_ = left;
  width_ = width;
  height_ = height;
  place();
}

void Control::setLeft(double left) {
  left_ = left;
  place();
}

void Control::setTop(double top) {
  top_ = top;
  place();
}

void Control::setWidth(double width) {
  if (width < 0) return;
  width_ = width;
  place();
  refit();
}

void Control::setHeight(double height) {
  if (height < 0) return;
  height_ = height;
  place();
  refit();
}

void Control::setVisible(bool visible) {
  visible_ = visible;
  if (container_ != nullptr) widget_->setVisible(visible);
}

bool Control::enabled() const {
  return widget_->isEnabledTo(widget_->parentWidget());
}

void Control::setEnabled(bool enabled) {
  widget_->setEnabled(enabled);
}

void Control::setForeColor(Color color) {
  if (fore_ == color) return;
  fore_ = color;
  applyColors();
}

void Control::setBackColor(Color color) {
  if (back_ == color) return;
  back_ = color;
  applyColors();
}

void Control::applyColors() {
  QPalette palette = widget_->palette();
  const QColor back = toQt(back_);
  const QColor fore = toQt(fore_);
  const bool takesText = widget_->inherits("QLineEdit") || widget_->inherits("QPlainTextEdit");
  const auto ground = takesText ? QPalette::Base : widget_->backgroundRole();
  // What a control takes over from its container anyway need not be set again.
  if (palette.color(ground) == back && palette.color(QPalette::Active, QPalette::WindowText) == fore) return;
  palette.setColor(ground, back);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Active, role, fore);
    palette.setColor(QPalette::Inactive, role, fore);
  }
  widget_->setPalette(palette);
}

void Control::setFontSize(double points) {
  if (fontSize_ == points) return;
  fontSize_ = points;
  widget_->setFont(fontOf(points, widget_->font().bold()));
  refit();
}

void Control::setToolTipText(const std::string& text) {
  if (toolTip_ == text) return;
  toolTip_ = text;
  // A tool tip takes markup where it sees some; written as markup, any text shows as it is.
  const QString plain = toQt(text).toHtmlEscaped();
  widget_->setToolTip(plain.isEmpty() ? plain : "<p style='white-space:pre'>" + plain + "</p>");
}

void Control::setFocus() {
  widget_->setFocus();
}

void Control::zOrder() {
  if (container_ != nullptr) widget_->raise();
}

void Control::adoptHandlers(const Control& other) {
  onMouseMove = other.onMouseMove;
  onMouseUp = other.onMouseUp;
}

}  // namespace forms
