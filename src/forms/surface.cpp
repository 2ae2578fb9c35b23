#include "forms/surface.h"

#include <QPaintEvent>
#include <QPainter>

#include "forms/line.h"
#include "forms/style.h"

namespace forms {

Surface::Surface(QWidget* parent, bool border, Scale scale)
    : QWidget(parent), border_(border), scale_(scale) {
  setAutoFillBackground(true);
}

void Surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (border_) drawOutline(painter, rect(), QColor(0x646464));
  painter.setClipRect(event->rect() & rect().adjusted(border(), border(), -border(), -border()));
  painter.translate(border(), border());
  painter.scale(1 / unitsPerPixel(), 1 / unitsPerPixel());
  for (const Line* line : lines_) line->paint(painter);
}

void drawOutline(QPainter& painter, const QRect& extent, const QColor& color) {
  const QRect rows[] = {{extent.topLeft(), QSize(extent.width(), 1)},
                        {extent.bottomLeft(), QSize(extent.width(), 1)},
                        {extent.topLeft(), QSize(1, extent.height())},
                        {extent.topRight(), QSize(1, extent.height())}};
  for (const QRect& row : rows) painter.fillRect(row, color);
}

}  // namespace forms
