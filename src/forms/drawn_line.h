// A straight line as a surface keeps and paints it.
#pragma once

#include "forms/color.h"

namespace forms {

/// The ends count in the scale of the surface, with fractions; `width` is in pixels.
struct DrawnLine {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Color color = 0;
  int width = 1;
  bool visible = true;
};

}  // namespace forms
