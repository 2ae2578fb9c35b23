// A box that holds other controls.
#pragma once

#include "forms/control.h"

namespace forms {

class PictureBox : public Control {
 public:
  PictureBox(FormWindow& form, const ControlData& data);

  /// Size inside the border, in the box's own scale.
  double scaleWidth() const;
  double scaleHeight() const;
};

}  // namespace forms
