#include "forms/spoken.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <algorithm>
#include <cmath>

#include "forms/surface.h"

namespace forms {
namespace {

constexpr auto kFactor = "spokenFactor";
constexpr auto kFull = "spokenFull";
constexpr auto kNotification = "spokenNotification";

/// Qt tells a screen reader that a plain widget is a filler, be it a window or the frame of a group.
class SpokenSurface : public QAccessibleWidget {
 public:
  explicit SpokenSurface(Surface* surface) : QAccessibleWidget(surface) {}

  QAccessible::Role role() const override {
    if (widget()->isWindow())
      return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
    return widget()->accessibleName().isEmpty() ? QAccessibleWidget::role() : QAccessible::Grouping;
  }
};

/// Qt lets the accessibility bus check a button without a click.
class SpokenOption : public QAccessibleWidget {
 public:
  SpokenOption(QAbstractButton* button, QAccessible::Role role)
      : QAccessibleWidget(button, role), button_(button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_->isChecked();
    state.pressed = button_->isDown();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_->isEnabled()) names.prepend(toggleAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == toggleAction())
      button_->click();
    else
      QAccessibleWidget::doAction(name);
  }

 private:
  QAbstractButton* button_;
};

/// A widget with a number.
class SpokenNumber : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
};

/// Tells what the position stands for.
class SpokenSlider : public SpokenNumber {
 public:
  explicit SpokenSlider(QSlider* slider) : SpokenNumber(slider, QAccessible::Slider), slider_(slider) {}

  // Adding nothing turns a negative zero into a plain one.
  QVariant currentValue() const override { return slider_->value() * factor() + 0.0; }
  void setCurrentValue(const QVariant& value) override {
    slider_->setValue(qRound(value.toDouble() / factor()));
  }
  QVariant minimumValue() const override { return std::min(ends().first, ends().second); }
  QVariant maximumValue() const override { return std::max(ends().first, ends().second); }
  QVariant minimumStepSize() const override { return std::abs(factor()); }

 private:
  double factor() const { return slider_->property(kFactor).toDouble(); }
  std::pair<double, double> ends() const {
    return {slider_->minimum() * factor(), slider_->maximum() * factor()};
  }

  QSlider* slider_;
};

class SpokenBar : public SpokenNumber {
 public:
  explicit SpokenBar(QProgressBar* bar) : SpokenNumber(bar, QAccessible::ProgressBar), bar_(bar) {}

  QVariant currentValue() const override {
    return bar_->property(kFull).toBool() ? bar_->maximum() : bar_->value();
  }
  void setCurrentValue(const QVariant& /*value*/) override {}
  QVariant minimumValue() const override { return bar_->minimum(); }
  QVariant maximumValue() const override { return bar_->maximum(); }
  QVariant minimumStepSize() const override { return 1; }

 private:
  QProgressBar* bar_;
};

QAccessibleInterface* makeSpoken(const QString& /*kind*/, QObject* object) {
  if (auto* surface = dynamic_cast<Surface*>(object)) return new SpokenSurface(surface);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (widget->property(kNotification).toBool())
    return new QAccessibleWidget(widget, QAccessible::Notification);
  // Qt's own dialogs have buttons and sliders, too.
  if (dynamic_cast<Surface*>(widget->window()) == nullptr) return nullptr;
  if (auto* option = qobject_cast<QRadioButton*>(widget))
    return new SpokenOption(option, QAccessible::RadioButton);
  if (auto* box = qobject_cast<QCheckBox*>(widget)) return new SpokenOption(box, QAccessible::CheckBox);
  if (auto* slider = qobject_cast<QSlider*>(widget)) return new SpokenSlider(slider);
  if (auto* bar = qobject_cast<QProgressBar*>(widget)) return new SpokenBar(bar);
  return nullptr;
}

}  // namespace

void installSpokenWidgets() {
  QAccessible::installFactory(makeSpoken);
}

QWidget* makeNotification(QWidget& window, const QString& words) {
  auto* notification = new QWidget(&window);
  notification->setProperty(kNotification, true);
  notification->setAccessibleName(words);
  return notification;
}

void setSpokenFactor(QSlider& slider, double factor) {
  slider.setProperty(kFactor, factor);
}

void setSpokenFull(QProgressBar& bar, bool full) {
  bar.setProperty(kFull, full);
}

}  // namespace forms
