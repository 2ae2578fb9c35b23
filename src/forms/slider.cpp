#include "forms/slider.h"

#include <QSlider>
#include <QWheelEvent>

#include "forms/screen_reader.h"
#include "forms/style.h"

namespace forms {
namespace {

class SliderWidget : public QSlider {
 public:
  explicit SliderWidget(const SliderData& values) : QSlider(values.vertical ? Qt::Vertical : Qt::Horizontal) {
    setInvertedAppearance(values.vertical);
    setInvertedControls(values.vertical);
    setProperty(kSpokenFactor, values.spokenFactor);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    const QPoint turned = event->angleDelta();
    const int delta = turned.y() != 0 ? turned.y() : turned.x();
    if ((delta > 0) != (turnedSoFar_ > 0)) turnedSoFar_ = 0;
    turnedSoFar_ += delta;
    const int notches = turnedSoFar_ / QWheelEvent::DefaultDeltasPerStep;
    turnedSoFar_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    setValue(value() + (invertedControls() ? -notches : notches) * singleStep());
  }

 private:
  int turnedSoFar_ = 0;  ///< eighths of a degree, less than a notch
};

}  // namespace

Slider::Slider(FormWindow& form, const ControlData& data)
    : Control(form, data, new SliderWidget(*data.slider)), slider_(static_cast<QSlider*>(widget())) {
  const SliderData& values = *data.slider;
  slider_->setPageStep(values.largeChange);
  slider_->setSingleStep(values.smallChange);
  slider_->setTickPosition(QSlider::TicksAbove);
  slider_->setTickInterval(values.tickFrequency);
  slider_->setAccessibleDescription(values.unit);
  slider_->setRange(values.min, values.max);
  slider_->setValue(values.value);
  QObject::connect(slider_, &QSlider::valueChanged, slider_, [this] {
    raise(onScroll);
    raise(onChange);
  });
}

int Slider::value() const {
  return slider_->value();
}

void Slider::setValue(int value) {
  const int before = slider_->value();
  {
    const QSignalBlocker noStep(slider_);
    slider_->setValue(value);
  }
  if (slider_->value() != before) raise(onChange);
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
