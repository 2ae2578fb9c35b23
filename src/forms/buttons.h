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
  bool mayRun(const Event& /*event*/) const override { return enabled(); }

  std::string caption_;
};

/// One choice of those in the same container. Raises Click when it is selected, by hand or by assigning True;
/// where the form data say so, also when it is clicked once more. Assigning False empties the group.
class OptionButton : public Control {
 public:
  OptionButton(FormWindow& form, const ControlData& data);

  bool value() const;
  void setValue(bool value);

  Event onClick;

 private:
  /// The accessibility bus can choose several in one paint-only wait: the last one counts.
  bool mayRun(const Event& event) const override { return &event != &onClick || value(); }

  /// The click that is served has selected it.
  bool isNewChoice_ = false;
};

/// A box that is checked (1) or not (0).
class CheckBox : public Control {
 public:
  CheckBox(FormWindow& form, const ControlData& data);

  int value() const;

  Event onClick;
};

}  // namespace forms
