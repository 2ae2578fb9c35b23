#include "forms/picture_box.h"

#include "forms/surface.h"

namespace forms {

PictureBox::PictureBox(FormWindow& form, const ControlData& data)
    : Control(form, data, new Surface(data.look.border, data.look.scale)) {}

double PictureBox::scaleWidth() const {
  return static_cast<const Surface*>(widget())->scaleWidth();
}

double PictureBox::scaleHeight() const {
  return static_cast<const Surface*>(widget())->scaleHeight();
}

}  // namespace forms
