// A bar that fills.
#pragma once

#include "forms/control.h"

namespace forms {

/// Starts at 0 of 0 to 100. A bar that is emptied is at its end: a screen reader hears its maximum from then
/// until it fills again. A value outside `Min`..`Max` and a `Max` not above `Min` change nothing.
class ProgressBar : public Control {
 public:
  ProgressBar(FormWindow& form, const ControlData& data);

  double value() const { return value_; }
  void setValue(double value);
  double max() const { return max_; }
  void setMax(double max);

 private:
  double value_ = 0, max_ = 100;
};

}  // namespace forms
