#include "forms/control.h"

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <QPalette>
#include <QToolTip>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "forms/form_window.h"
#include "forms/spoken_changes.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {

void Item::raise(const Event& event) const {
  form_.raise(event, [this, &event](bool deferred) {
    if (!deferred || stillRuns()) event(std::max(index_, 0));
  });
}

/// Lets a control own all mouse events over its widgets: none goes on to its container.
class MouseFilter : public QObject {
 public:
  /// With `consumes` the widgets get no mouse event of their own.
  MouseFilter(Control& control, bool consumes)
      : QObject(control.widget()), control_(control), consumes_(consumes) {}

  void watch(QWidget* widget) {
    widget->setMouseTracking(true);
    widget->setAttribute(Qt::WA_NoMousePropagation);
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::ToolTip:
        return control_.showToolTip(static_cast<QHelpEvent*>(event)->globalPos());
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

 private:
  Control& control_;
  bool consumes_;
};

Control::Control(FormWindow& form, const ControlData& data, QWidget* widget)
    : Item(form, data.index),
      widget_(widget),
      container_(form.surface(data.container)),
      back_(data.look.back),
      fore_(data.look.fore) {
  auto* filter = new MouseFilter(*this, data.kind == Kind::Label || data.kind == Kind::PictureBox);
  filter->watch(widget);
  if (auto* scrolled = qobject_cast<QAbstractScrollArea*>(widget)) filter->watch(scrolled->viewport());
  const double scale = container_.unitsPerPixel() / kTwipsPerPixel;
  widget->setObjectName(data.index == kSingle ? QString(data.name)
                                              : QString("%1(%2)").arg(data.name).arg(data.index));
  if (data.look.fontSize != Look{}.fontSize || data.look.bold)
    widget->setFont(fontOf(data.look.fontSize, data.look.bold));
  widget->setParent(&container_);
  if (*data.spokenName != '\0') widget->setAccessibleName(data.spokenName);
  place(data.left * scale, data.top * scale, data.width * scale, data.height * scale);
  setVisible(!data.look.hidden);
  if (data.look.outOfSight) widget->hide();
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

void Control::setVisible(bool visible) {
  visible_ = visible;
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
  const QFont font = fontOf(points, widget_->font().bold());
  if (widget_->font().pixelSize() == font.pixelSize()) return;
  widget_->setFont(font);
  refit();
}

void Control::setToolTipText(const std::string& text) {
  toolTip_ = text;
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
