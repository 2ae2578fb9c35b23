#include "forms/surface.h"

#include <QPainter>

#include "forms/style.h"

namespace forms {

Surface::Surface(bool border, Scale scale) : border_(border), scale_(scale) {
  setAutoFillBackground(true);
}

void Surface::updateLine(const DrawnLine& line) {
  const double pixel = 1 / unitsPerPixel();
  const QRectF extent =
      QRectF(QPointF(line.x1, line.y1) * pixel, QPointF(line.x2, line.y2) * pixel).normalized();
  const double margin = line.width + 1;
  update(extent.translated(border(), border()).adjusted(-margin, -margin, margin, margin).toAlignedRect());
}

void Surface::paintLines(QPainter& painter) const {
  painter.setClipRect(rect().adjusted(border(), border(), -border(), -border()));
  painter.translate(border(), border());
  painter.scale(1 / unitsPerPixel(), 1 / unitsPerPixel());
  for (const DrawnLine& line : lines_) {
    const QPointF from(line.x1, line.y1);
    const QPointF to(line.x2, line.y2);
    if (!line.visible || from == to) continue;
    painter.setPen(QPen(toQt(line.color), line.width * unitsPerPixel(), Qt::SolidLine, Qt::FlatCap));
    // Half a pixel in, so that an odd width covers whole pixels.
    const double half = line.width % 2 * 0.5 * unitsPerPixel();
    painter.drawLine(from + QPointF(half, half), to + QPointF(half, half));
  }
}

void Surface::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (border_) drawOutline(painter, rect(), QColor(0x646464));
  paintLines(painter);
}

}  // namespace forms
