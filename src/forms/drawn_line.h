// A straight line as a surface keeps and paints it.
#pragma once

#include "forms/color.h"

namespace forms {

/// The ends count in the scale of the surface, with fractions; `width` is in pixels.
struct DrawnLine {
  double x1, y1, x2, y2;
  Color color;
  int width;
  bool visible = true;
};

}  // namespace forms
