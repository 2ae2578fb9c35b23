#include "forms/line.h"

#include <QPainter>

#include "forms/form.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {

Line::Line(Form* form, const LineData& data)
    : Item(form, data.index),
      container_(form != nullptr ? form->surface(data.container) : nullptr),
      color_(data.color),
      borderWidth_(data.borderWidth) {
  const double scale = container_ != nullptr ? container_->unitsPerPixel() / kTwipsPerPixel : 1;
  const int ends[] = {data.x1, data.y1, data.x2, data.y2};
  for (int i = 0; i < 4; ++i) ends_[i] = ends[i] * scale;
  if (container_ != nullptr) container_->addLine(this);
}

Line::~Line() {
  if (container_ != nullptr) container_->removeLine(this);
}

void Line::move(int end, double value) {
  if (ends_[end] == value) return;
  repaint();
  ends_[end] = value;
  repaint();
}

void Line::setBorderColor(Color color) {
  if (color_ == color) return;
  color_ = color;
  repaint();
}

void Line::setBorderWidth(int pixels) {
  if (borderWidth_ == pixels) return;
  repaint();
  borderWidth_ = pixels;
  repaint();
}

void Line::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  repaint();
}

void Line::repaint() const {
  if (container_ == nullptr) return;
  const double pixel = 1 / container_->unitsPerPixel();
  const QRectF extent = QRectF(QPointF(x1(), y1()) * pixel, QPointF(x2(), y2()) * pixel).normalized();
  const double margin = borderWidth_ + 1;
  container_->update(extent.translated(container_->border(), container_->border())
                         .adjusted(-margin, -margin, margin, margin)
                         .toAlignedRect());
}

void Line::paint(QPainter& painter) const {
  const QPointF from(x1(), y1());
  const QPointF to(x2(), y2());
  if (!visible_ || from == to) return;
  painter.setPen(QPen(toQt(color_), borderWidth_ * container_->unitsPerPixel(), Qt::SolidLine, Qt::FlatCap));
  // Half a pixel in, so that an odd width covers whole pixels.
  const double half = borderWidth_ % 2 * 0.5 * container_->unitsPerPixel();
  painter.drawLine(from + QPointF(half, half), to + QPointF(half, half));
}

}  // namespace forms
