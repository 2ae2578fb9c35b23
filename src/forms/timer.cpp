#include "forms/timer.h"

#include <QTimer>

#include "forms/form_window.h"
#include "forms/surface.h"

namespace forms {

Timer::Timer(FormWindow& form, const TimerData& data)
    : Item(form, kSingle), timer_(new QTimer(&form.surface(""))) {
  timer_->setTimerType(Qt::PreciseTimer);
  timer_->setInterval(data.interval);
  tick_ = [this](int index) {
    if (ticking_ || !onTick) return;
    ticking_ = true;
    onTick(index);
    ticking_ = false;
  };
  QObject::connect(timer_, &QTimer::timeout, timer_, [this] { raise(tick_); });
  setEnabled(data.enabled);
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
