// A slider with whole values.
#pragma once

#include "forms/control.h"

class QSlider;

namespace forms {

/// Values rise from left to right, or from top to bottom; one outside `Min`..`Max` becomes the nearest end.
/// By hand, each step raises Scroll and then Change; by assignment a different value raises Change before the
/// assignment returns. A new `Min` or `Max` moves the value without an event.
class Slider : public Control {
 public:
  Slider(FormWindow& form, const ControlData& data);

  int value() const;
  void setValue(int value);
  int min() const;
  void setMin(int min);
  int max() const;
  void setMax(int max);
  int tickFrequency() const;
  void setTickFrequency(int steps);

  /// What a screen reader calls the slider.
  void setSpokenName(const std::string& name);

  Event onScroll;
  Event onChange;

 private:
  QSlider* slider_;
};

}  // namespace forms
