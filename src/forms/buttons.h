// The three kinds of buttons.
#pragma once

#include "forms/control.h"

namespace forms {

/// A push button; Space and Enter press it.
class CommandButton : public Control {
 public:
  CommandButton(FormWindow& form, const ControlData& data);

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  Event onClick;

 private:
  std::string caption_;
};

/// One choice of those in the same container. A click by hand always raises Click; assigning True raises it
/// where the button was not selected; assigning False empties the group and raises nothing.
class OptionButton : public Control {
 public:
  OptionButton(FormWindow& form, const ControlData& data);

  bool value() const;
  void setValue(bool value);

  Event onClick;

 private:
  Event chosen_;
};

/// A box that is checked (1) or not (0).
class CheckBox : public Control {
 public:
  CheckBox(FormWindow& form, const ControlData& data);

  int value() const;

  Event onClick;
};

}  // namespace forms
