#include "forms/slider.h"

#include <QAccessibleWidget>
#include <QSlider>
#include <QWheelEvent>
#include <algorithm>

#include "forms/application.h"
#include "forms/form.h"
#include "forms/style.h"

namespace forms {
namespace {

/// One notch of a wheel, in eighths of a degree (the widget toolkit's measure).
constexpr int kNotch = 120;

class SliderWidget : public QSlider {
 public:
  SliderWidget(Slider& owner, Qt::Orientation orientation) : QSlider(orientation), owner_(owner) {}

  const Slider& owner() const { return owner_; }

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
  Slider& owner_;
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
  QVariant currentValue() const override { return slider_->owner().spokenValue() + 0.0; }
  void setCurrentValue(const QVariant& value) override {
    slider_->setValue(qRound(value.toDouble() / factor()));
  }
  QVariant minimumValue() const override { return std::min(ends().first, ends().second); }
  QVariant maximumValue() const override { return std::max(ends().first, ends().second); }
  QVariant minimumStepSize() const override { return std::abs(factor()); }

 private:
  double factor() const { return slider_->owner().spokenFactor(); }
  std::pair<double, double> ends() const {
    return {slider_->minimum() * factor(), slider_->maximum() * factor()};
  }

  SliderWidget* slider_;
};

QAccessibleInterface* makeSpokenSlider(const QString& /*kind*/, QObject* object) {
  auto* slider = dynamic_cast<SliderWidget*>(object);
  return slider != nullptr ? new SpokenSlider(slider) : nullptr;
}

SliderWidget* makeSlider(Slider& owner, bool vertical) {
  // Before the first name: a screen reader is told of it at once, and keeps what it then sees.
  [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeSpokenSlider), true);
  return new SliderWidget(owner, vertical ? Qt::Vertical : Qt::Horizontal);
}

const SliderData& dataOf(const Form* form, const ControlData& data) {
  static constexpr SliderData kPlain{"", false, 0, 10, 5, 1, 1, 0, 1, ""};
  const SliderData* found = form != nullptr ? form->sliderData(data.name) : nullptr;
  return found != nullptr ? *found : kPlain;
}

}  // namespace

Slider::Slider(Form* form, const ControlData& data)
    : Control(form, data, makeSlider(*this, dataOf(form, data).vertical)),
      slider_(static_cast<QSlider*>(widget())) {
  const SliderData& stored = dataOf(form, data);
  slider_->setInvertedAppearance(stored.vertical);
  slider_->setInvertedControls(stored.vertical);
  slider_->setPageStep(stored.largeChange);
  slider_->setSingleStep(stored.smallChange);
  slider_->setTickPosition(QSlider::TicksAbove);
  setTickFrequency(stored.tickFrequency);
  spokenFactor_ = stored.spokenFactor;
  slider_->setAccessibleDescription(stored.unit);
  setRange(stored.min, stored.max);
  slider_->setValue(stored.value);
  value_ = slider_->value();
  // A groove that is held down goes on paging in a paint-only wait; its events come after that.
  QObject::connect(slider_, &QSlider::valueChanged, slider_,
                   [this] { Application::runOrDefer(slider_, [this] { moved(slider_->value()); }); });
}

void Slider::moved(int value) {
  if (value == value_) return;
  value_ = value;
  if (byHand_) raise(onScroll);
  raise(onChange);
}

void Slider::setValue(int value) {
  value = std::clamp(value, min_, max_);
  if (value == value_) return;
  const bool before = std::exchange(byHand_, false);
  slider_->setValue(value);
  byHand_ = before;
}

void Slider::setMin(int min) {
  setRange(min, std::max(min, max_));
}

void Slider::setMax(int max) {
  setRange(std::min(min_, max), max);
}

void Slider::setRange(int min, int max) {
  min_ = min;
  max_ = max;
  value_ = std::clamp(value_, min, max);
  slider_->setRange(min, max);
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

void Slider::adoptHandlers(const Control& other) {
  Control::adoptHandlers(other);
  onScroll = static_cast<const Slider&>(other).onScroll;
  onChange = static_cast<const Slider&>(other).onChange;
}

}  // namespace forms
