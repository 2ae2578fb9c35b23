// A caption on a container, and the outline of a rectangle.
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
  void fitToText();

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

}  // namespace forms
