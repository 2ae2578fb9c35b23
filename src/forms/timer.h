// A timer that ticks on the user-interface thread.
#pragma once

#include "forms/control.h"

class QTimer;

namespace forms {

/// Ticks at its interval while enabled. No tick comes while its own handler runs or on a form that is not
/// loaded; those of a paint-only wait become one tick after it.
class Timer : public Item {
 public:
  Timer(FormWindow& form, const TimerData& data);

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  Event onTick;

 private:
  void tick();

  QTimer* timer_;
  bool enabled_ = false;
  bool ticking_ = false;
};

}  // namespace forms
