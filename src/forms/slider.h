// A slider with whole values.
#pragma once

#include "forms/control.h"

class QSlider;

namespace forms {

/// Values rise from left to right, or from top to bottom. A number outside `Min`..`Max` becomes the nearest
/// end. By hand, each step raises Scroll and then Change; by assignment a different value raises Change
/// before the assignment returns. A new `Min` or `Max` moves the value without an event.
class Slider : public Control {
 public:
  Slider(Form* form, const ControlData& data);

  int value() const { return value_; }
  void setValue(int value);
  int min() const { return min_; }
  void setMin(int min);
  int max() const { return max_; }
  void setMax(int max);
  int tickFrequency() const;
  void setTickFrequency(int steps);

  /// What a screen reader calls the slider, and what it reads for a value.
  void setSpokenName(const std::string& name);
  double spokenValue() const { return value_ * spokenFactor_; }
  double spokenFactor() const { return spokenFactor_; }

  Event onScroll;
  Event onChange;

  void adoptHandlers(const Control& other) override;

 private:
  void setRange(int min, int max);
  void moved(int value);

  QSlider* slider_;
  int value_ = 0, min_ = 0, max_ = 0;
  bool byHand_ = true;
  double spokenFactor_ = 1;
};

}  // namespace forms
