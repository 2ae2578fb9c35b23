#include "forms/progress_bar.h"

#include <QProgressBar>
#include <cmath>

#include "forms/spoken.h"

namespace forms {

ProgressBar::ProgressBar(FormWindow& form, const ControlData& data) : Control(form, data, new QProgressBar) {
  auto* bar = static_cast<QProgressBar*>(widget());
  bar->setTextVisible(false);
  bar->setRange(0, 100);
  bar->setValue(0);
}

void ProgressBar::setValue(double value) {
  if (!(value >= 0 && value <= max_)) return;
  auto* bar = static_cast<QProgressBar*>(widget());
  // A reader asks for the value a while after it was told of a new one.
  setSpokenFull(*bar, value == 0 && value_ > 0);
  value_ = value;
  bar->setValue(static_cast<int>(value));
}

void ProgressBar::setMax(double max) {
  // The widget counts in whole numbers; no source lasts this long.
  if (!(max > 0 && max <= 2147483647.0)) return;
  max_ = max;
  if (value_ > max_) value_ = max_;
  static_cast<QProgressBar*>(widget())->setMaximum(static_cast<int>(std::ceil(max)));
}

}  // namespace forms
