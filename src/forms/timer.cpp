#include "forms/timer.h"

#include <QTimer>

#include "forms/application.h"
#include "forms/form.h"

namespace forms {

Timer::Timer(Form* form, const TimerData& data)
    : Item(form, kSingle),
      timer_(std::make_unique<QTimer>()),
      interval_(data.interval),
      enabled_(data.enabled) {
  timer_->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer_.get(), &QTimer::timeout,
                   [this] { Application::runOrDefer(timer_.get(), [this] { tick(); }); });
  if (enabled_ && interval_ > 0) timer_->start(interval_);
}

Timer::~Timer() = default;

void Timer::tick() {
  if (ticking_ || !enabled_ || !form()->isLoaded()) return;
  const auto alive = form()->shared_from_this();
  ticking_ = true;
  raise(onTick);
  ticking_ = false;
}

bool Timer::enabled() const {
  return enabled_;
}

void Timer::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (enabled && interval_ > 0)
    timer_->start(interval_);
  else
    timer_->stop();
}

}  // namespace forms
