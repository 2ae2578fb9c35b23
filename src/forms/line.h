// A straight line on the surface of its container.
#pragma once

#include "forms/control.h"

namespace forms {

/// Ends count in the container's scale, with fractions; `borderWidth` is in pixels. A line has no events.
class Line : public Item {
 public:
  Line(FormWindow& form, const LineData& data);

  double x1() const { return line_.x1; }
  double y1() const { return line_.y1; }
  double x2() const { return line_.x2; }
  double y2() const { return line_.y2; }
  void setX1(double value) { set(line_.x1, value); }
  void setY1(double value) { set(line_.y1, value); }
  void setX2(double value) { set(line_.x2, value); }
  void setY2(double value) { set(line_.y2, value); }
  Color borderColor() const { return line_.color; }
  void setBorderColor(Color color) { set(line_.color, color); }
  int borderWidth() const { return line_.borderWidth; }
  void setBorderWidth(int pixels) { set(line_.borderWidth, pixels); }
  bool visible() const { return line_.visible; }
  void setVisible(bool visible) { set(line_.visible, visible); }

 private:
  template <class Value>
  void set(Value& property, Value value) {
    if (property == value) return;
    repaint();
    property = value;
    repaint();
  }
  void repaint();

  Surface& surface_;
  LineData& line_;
};

}  // namespace forms
