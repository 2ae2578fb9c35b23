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

/// One choice of those in the same container. A click by hand or assigning True raises Click where the button
/// was not selected; where the form data say so, a click on the selected one raises it as well. Assigning
/// False empties the group and raises nothing.
class OptionButton : public Control {
 public:
  OptionButton(FormWindow& form, const ControlData& data);

  bool value() const;
  void setValue(bool value);

  Event onClick;

 protected:
  /// Of those that were chosen one after the other in a paint-only wait, the last one counts.
  bool stillRuns() const override { return value() && enabled(); }

 private:
  /// Selected by the click whose Click is about to come.
  bool fresh_ = false;
};

/// A box that is checked (1) or not (0).
class CheckBox : public Control {
 public:
  CheckBox(FormWindow& form, const ControlData& data);

  int value() const;

  Event onClick;
};

}  // namespace forms
