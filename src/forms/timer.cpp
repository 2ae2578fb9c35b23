#include "forms/timer.h"

#include <QTimer>

#include "forms/form_window.h"
#include "forms/surface.h"

namespace forms {

Timer::Timer(FormWindow& form, const TimerData& data)
    : Item(form, kSingle), timer_(new QTimer(&form.surface(""))) {
  timer_->setTimerType(Qt::PreciseTimer);
  timer_->setInterval(data.interval);
  QObject::connect(timer_, &QTimer::timeout, timer_, [this] { tick(); });
  setEnabled(data.enabled);
}

void Timer::tick() {
  form().raise(onTick, [this] {
    if (!enabled_ || ticking_) return;
    ticking_ = true;
    onTick();
    ticking_ = false;
  });
}

void Timer::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (enabled && timer_->interval() > 0)
    timer_->start();
  else
    timer_->stop();
}

}  // namespace forms
