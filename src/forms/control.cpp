#include "forms/control.h"

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <QPalette>
#include <QToolTip>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "forms/form_window.h"
#include "forms/screen_reader.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {

void Item::raise(const Event& event) const {
  form_.raise(event, [this, &event] {
    if (mayRun(event)) event(std::max(index_, 0));
  });
}

/// Before these a widget is brought up to date.
constexpr QEvent::Type kUses[] = {QEvent::Show,        QEvent::FocusIn,          QEvent::KeyPress,
                                  QEvent::InputMethod, QEvent::MouseButtonPress, QEvent::ContextMenu,
                                  QEvent::Drop};

/// Lets a control own all mouse events over its widgets: none goes on to its container.
class ControlFilter : public QObject {
 public:
  explicit ControlFilter(Control& control) : QObject(control.widget()), control_(control) {}

  void watch(QWidget* widget) {
    widget->setMouseTracking(true);
    widget->setAttribute(Qt::WA_NoMousePropagation);
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::ToolTip) return control_.showToolTip(static_cast<QHelpEvent*>(event)->globalPos());
    if (type == QEvent::MouseMove) control_.raise(control_.onMouseMove);
    if (type == QEvent::MouseButtonRelease) control_.raise(control_.onMouseUp);
    const auto* use = std::ranges::find(kUses, type);
    if (use != std::end(kUses)) control_.prepare();
    return false;
  }

 private:
  Control& control_;
};

Control::Control(FormWindow& form, const ControlData& data, QWidget* widget)
    : Item(form, data.index),
      widget_(widget),
      container_(form.surface(data.container)),
      back_(data.properties.back),
      fore_(data.properties.fore) {
  auto* filter = new ControlFilter(*this);
  filter->watch(widget);
  if (auto* scrolled = qobject_cast<QAbstractScrollArea*>(widget)) filter->watch(scrolled->viewport());
  const double scale = container_.unitsPerPixel() / kTwipsPerPixel;
  widget->setObjectName(data.index == kSingle ? QString(data.name)
                                              : QString("%1(%2)").arg(data.name).arg(data.index));
  if (data.properties.fontSize != Properties{}.fontSize || data.properties.bold)
    widget->setFont(fontOf(data.properties.fontSize, data.properties.bold));
  widget->setParent(&container_);
  widget->setAccessibleName(*data.spokenName != '\0' ? data.spokenName : data.text);
  place(data.left * scale, data.top * scale, data.width * scale, data.height * scale);
  setVisible(!data.properties.hidden);
  applyColors();
}

void Control::place(double left, double top, double width, double height) {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  const double pixel = 1 / container_.unitsPerPixel();
  const int border = container_.border();
  QRect extent = QRectF(left * pixel, top * pixel, width * pixel, height * pixel).toRect();
  extent.translate(border, border);
  // A control as wide as its box would cover the border.
  if (border > 0) extent &= container_.rect().adjusted(border, border, -border, -border);
  widget_->setGeometry(extent);
}

void Control::setSize(double width, double height) {
  if (width < 0 || height < 0) return;
  place(left_, top_, width, height);
  refit();
}

bool Control::visible() const {
  return !widget_->isHidden();
}

void Control::setVisible(bool visible) {
  widget_->setVisible(visible);
}

bool Control::enabled() const {
  return widget_->isEnabledTo(widget_->parentWidget());
}

void Control::setEnabled(bool enabled) {
  // Qt would hand the focus on to the next control, where a key that is meant for this one falls: it stays
  // nowhere until this one is enabled again, or the user moves it on.
  if (!enabled && widget_->window()->focusWidget() == widget_) {
    keepsFocus_ = true;
    widget_->clearFocus();
  }
  widget_->setEnabled(enabled);
  if (enabled && std::exchange(keepsFocus_, false) && widget_->window()->focusWidget() == nullptr) setFocus();
}

void Control::setForeColor(Color color) {
  if (std::exchange(fore_, color) != color) applyColors();
}

void Control::setBackColor(Color color) {
  if (std::exchange(back_, color) != color) applyColors();
}

void Control::applyColors() {
  QPalette palette = widget_->palette();
  const QColor back = toQt(back_);
  const QColor fore = toQt(fore_);
  const auto ground = widget_->backgroundRole();
  // Qt hands a palette on to all inner widgets and repaints them: what is inherited anyway is left alone.
  if (palette.color(ground) == back && palette.color(QPalette::Active, QPalette::WindowText) == fore) return;
  palette.setColor(ground, back);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Active, role, fore);
    palette.setColor(QPalette::Inactive, role, fore);
  }
  widget_->setPalette(palette);
}

void Control::setFontSize(double points) {
  widget_->setFont(fontOf(points, widget_->font().bold()));
  refit();
}

/// Qt gives a screen reader the tip of a widget for its description; the one here is not told to Qt.
bool Control::showToolTip(const QPoint& place) {
  if (toolTip_.empty()) return false;
  // Qt takes a tool tip for markup where it looks like it; written as markup, any text shows as it is.
  const QString markup = "<p style='white-space:pre'>" + toQt(toolTip_).toHtmlEscaped() + "</p>";
  QToolTip::showText(place, markup, widget_);
  return true;
}

void Control::setFocus() {
  widget_->setFocus();
}

void Control::announce() {
  forms::announce(*widget_);
}

void Control::zOrder() {
  widget_->raise();
}

}  // namespace forms
