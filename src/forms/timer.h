// A timer that ticks on the user-interface thread.
#pragma once

#include <memory>

#include "forms/control.h"

class QTimer;

namespace forms {

/// Ticks at its interval while enabled. No tick comes while its own handler runs or on a form that is not
/// loaded; those that are due during a paint-only wait become one tick after it.
class Timer : public Item {
 public:
  Timer(Form* form, const TimerData& data);
  ~Timer() override;

  bool enabled() const;
  void setEnabled(bool enabled);

  Event onTick;

 private:
  void tick();

  std::unique_ptr<QTimer> timer_;
  int interval_;
  bool enabled_;
  bool ticking_ = false;
};

}  // namespace forms
