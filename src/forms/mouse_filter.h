// Turns the widget toolkit's mouse events into those of one control.
#pragma once

#include <QObject>

class QWidget;

namespace forms {

class Control;

/// Watches the widgets of one control. With `consumes` the widgets get no mouse event of their own.
class MouseFilter : public QObject {
 public:
  MouseFilter(Control& control, bool consumes) : control_(control), consumes_(consumes) {}

  /// Lets the control own all mouse events over `widget`: none goes on to its container.
  void watch(QWidget* widget);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Control& control_;
  bool consumes_;
};

}  // namespace forms
