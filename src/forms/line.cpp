#include "forms/line.h"

#include "forms/form_window.h"
#include "forms/surface.h"

namespace forms {

Line::Line(FormWindow& form, const LineData& data)
    : Item(form, data.index), surface_(form.surface(data.container)), line_(surface_.addLine(data)) {
  const double scale = surface_.unitsPerPixel() / kTwipsPerPixel;
  for (double* end : {&line_.x1, &line_.y1, &line_.x2, &line_.y2}) *end *= scale;
}

void Line::repaint() {
  surface_.updateLine(line_);
}

}  // namespace forms
