#include "forms/picture_box.h"

#include "forms/surface.h"

namespace forms {

PictureBox::PictureBox(Form* form, const ControlData& data)
    : Control(form, data, new Surface(nullptr, data.look.border, data.look.scale)) {}

double PictureBox::scaleWidth() const {
  const auto* surface = static_cast<const Surface*>(widget());
  return (surface->width() - 2 * surface->border()) * surface->unitsPerPixel();
}

double PictureBox::scaleHeight() const {
  const auto* surface = static_cast<const Surface*>(widget());
  return (surface->height() - 2 * surface->border()) * surface->unitsPerPixel();
}

}  // namespace forms
