#include "forms/slider.h"

#include <QAccessibleWidget>
#include <QSlider>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/style.h"

namespace forms {
namespace {

/// One notch of a wheel, in eighths of a degree (Qt's measure).
constexpr int kNotch = 120;

QAccessibleInterface* makeSpokenSlider(const QString& kind, QObject* object);

class SliderWidget : public QSlider {
 public:
  explicit SliderWidget(const SliderData& values)
      : QSlider(values.vertical ? Qt::Vertical : Qt::Horizontal), spokenFactor_(values.spokenFactor) {
    // Qt asks for the interface of a widget at its first property that a screen reader is told of, and keeps
    // the one that it then gets.
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeSpokenSlider), true);
    setInvertedAppearance(values.vertical);
    setInvertedControls(values.vertical);
  }

  double spokenFactor() const { return spokenFactor_; }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    event->accept();
    const QPoint turned = event->angleDelta();
    const int delta = turned.y() != 0 ? turned.y() : turned.x();
    if ((delta > 0) != (turnedSoFar_ > 0)) turnedSoFar_ = 0;
    turnedSoFar_ += delta;
    const int notches = turnedSoFar_ / kNotch;
    turnedSoFar_ -= notches * kNotch;
    setValue(value() + (invertedControls() ? -notches : notches) * singleStep());
  }

 private:
  double spokenFactor_;
  int turnedSoFar_ = 0;
};

/// Tells a screen reader what the position stands for.
class SpokenSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SpokenSlider(SliderWidget* slider)
      : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  // Adding nothing turns a negative zero into a plain one.
  QVariant currentValue() const override { return slider_->value() * factor() + 0.0; }
  void setCurrentValue(const QVariant& value) override {
    slider_->setValue(qRound(value.toDouble() / factor()));
  }
  QVariant minimumValue() const override { return std::min(ends().first, ends().second); }
  QVariant maximumValue() const override { return std::max(ends().first, ends().second); }
  QVariant minimumStepSize() const override { return std::abs(factor()); }

 private:
  double factor() const { return slider_->spokenFactor(); }
  std::pair<double, double> ends() const {
    return {slider_->minimum() * factor(), slider_->maximum() * factor()};
  }

  SliderWidget* slider_;
};

QAccessibleInterface* makeSpokenSlider(const QString& /*kind*/, QObject* object) {
  auto* slider = dynamic_cast<SliderWidget*>(object);
  return slider != nullptr ? new SpokenSlider(slider) : nullptr;
}

}  // namespace

Slider::Slider(FormWindow& form, const ControlData& data, const SliderData& values)
    : Control(form, data, new SliderWidget(values)), slider_(static_cast<QSlider*>(widget())) {
  slider_->setPageStep(values.largeChange);
  slider_->setSingleStep(values.smallChange);
  slider_->setTickPosition(QSlider::TicksAbove);
  slider_->setTickInterval(values.tickFrequency);
  slider_->setAccessibleDescription(values.unit);
  slider_->setRange(values.min, values.max);
  slider_->setValue(values.value);
  QObject::connect(slider_, &QSlider::valueChanged, slider_, [this] {
    if (byHand_) raise(onScroll);
    raise(onChange);
  });
}

int Slider::value() const {
  return slider_->value();
}

void Slider::setValue(int value) {
  const bool before = std::exchange(byHand_, false);
  slider_->setValue(value);
  byHand_ = before;
}

int Slider::min() const {
  return slider_->minimum();
}

void Slider::setMin(int min) {
  const QSignalBlocker noEvent(slider_);
  slider_->setMinimum(min);
}

int Slider::max() const {
  return slider_->maximum();
}

void Slider::setMax(int max) {
  const QSignalBlocker noEvent(slider_);
  slider_->setMaximum(max);
}

int Slider::tickFrequency() const {
  return slider_->tickInterval();
}

void Slider::setTickFrequency(int steps) {
  if (steps > 0) slider_->setTickInterval(steps);
}

void Slider::setSpokenName(const std::string& name) {
  slider_->setAccessibleName(toQt(name));
}

}  // namespace forms
