// A straight line on the surface of its container.
#pragma once

#include "forms/control.h"

class QPainter;

namespace forms {

/// Ends count in the container's scale, with fractions; `borderWidth` is in pixels.
class Line : public Item {
 public:
  Line(Form* form, const LineData& data);
  ~Line() override;

  double x1() const { return ends_[0]; }
  double y1() const { return ends_[1]; }
  double x2() const { return ends_[2]; }
  double y2() const { return ends_[3]; }
  void setX1(double value) { move(0, value); }
  void setY1(double value) { move(1, value); }
  void setX2(double value) { move(2, value); }
  void setY2(double value) { move(3, value); }
  Color borderColor() const { return color_; }
  void setBorderColor(Color color);
  int borderWidth() const { return borderWidth_; }
  void setBorderWidth(int pixels);
  bool visible() const { return visible_; }
  void setVisible(bool visible);

  void paint(QPainter& painter) const;

  /// A line has no events.
  void adoptHandlers(const Line& /*other*/) {}

 private:
  void move(int end, double value);
  void repaint() const;

  Surface* container_;
  double ends_[4];
  Color color_;
  int borderWidth_;
  bool visible_ = true;
};

}  // namespace forms
