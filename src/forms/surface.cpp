#include "forms/surface.h"

#include <QPaintEvent>
#include <QPainter>

#include "forms/style.h"

namespace forms {

Surface::Surface(bool border, Scale scale) : border_(border), scale_(scale) {
  setAutoFillBackground(true);
}

QRect Surface::extentOf(const LineData& line) const {
  const double pixel = 1 / unitsPerPixel();
  const QRectF extent =
      QRectF(QPointF(line.x1, line.y1) * pixel, QPointF(line.x2, line.y2) * pixel).normalized();
  const double margin = line.borderWidth + 1;
  return extent.translated(border(), border()).adjusted(-margin, -margin, margin, margin).toAlignedRect();
}

void Surface::paintLines(QPainter& painter, const QRect& extent) const {
  painter.setClipRect(extent & rect().adjusted(border(), border(), -border(), -border()));
  painter.translate(border(), border());
  painter.scale(1 / unitsPerPixel(), 1 / unitsPerPixel());
  for (const LineData& line : lines_) {
    const QPointF from(line.x1, line.y1);
    const QPointF to(line.x2, line.y2);
    if (!line.visible || from == to || !extentOf(line).intersects(extent)) continue;
    painter.setPen(QPen(toQt(line.color), line.borderWidth * unitsPerPixel(), Qt::SolidLine, Qt::FlatCap));
    // Half a pixel in, so that an odd width covers whole pixels.
    const double half = line.borderWidth % 2 * 0.5 * unitsPerPixel();
    painter.drawLine(from + QPointF(half, half), to + QPointF(half, half));
  }
}

void Surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (border_) drawOutline(painter, rect(), QColor(0x646464));
  paintLines(painter, event->rect());
}

}  // namespace forms
