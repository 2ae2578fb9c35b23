// What shows something and takes nothing from the user: label, shape, picture box and progress bar.
#pragma once

#include "forms/control.h"

namespace forms {

/// Plain text, never markup. A label that sizes itself keeps the edge, or the centre, that its alignment
/// names.
class Label final : public Control {
 public:
  Label(FormWindow& form, const ControlData& data);

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);
  void setAlignment(Alignment alignment);
  void setAutoSize(bool autoSize);
  /// True: what lies behind the label shows through.
  void setTransparent(bool transparent);

 protected:
  void refit() override;

 private:
  std::string caption_;
  Alignment alignment_ = Alignment::Left;
  bool autoSize_;
  bool elided_;
};

/// The outline of its extent. It is no target for the mouse.
class Shape : public Control {
 public:
  Shape(FormWindow& form, const ControlData& data);
};

/// A box that holds other controls.
class PictureBox : public Control {
 public:
  PictureBox(FormWindow& form, const ControlData& data);

  /// Size inside the border, in the box's own scale.
  double scaleWidth() const;
  double scaleHeight() const;
};

/// A bar that fills, at 0 of 0 to 100 at first. To a screen reader one that is emptied is at its end. A value
/// outside `Min`..`Max` and a `Max` not above `Min` change nothing.
class ProgressBar : public Control {
 public:
  ProgressBar(FormWindow& form, const ControlData& data);

  double value() const { return value_; }
  void setValue(double value);
  double max() const { return max_; }
  void setMax(double max);

 private:
  double value_ = 0, max_ = 100;
};

}  // namespace forms
