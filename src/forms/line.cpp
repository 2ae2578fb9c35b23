#include "forms/line.h"

#include "forms/form_window.h"
#include "forms/surface.h"

namespace forms {
namespace {

DrawnLine scaled(const LineData& data, double scale) {
  return {data.x1 * scale, data.y1 * scale, data.x2 * scale, data.y2 * scale, data.color, data.borderWidth};
}

}  // namespace

Line::Line(FormWindow& form, const LineData& data)
    : Item(form, data.index),
      surface_(form.surface(data.container)),
      line_(surface_.addLine(scaled(data, surface_.unitsPerPixel() / kTwipsPerPixel))) {}

void Line::repaint() {
  surface_.updateLine(line_);
}

}  // namespace forms
