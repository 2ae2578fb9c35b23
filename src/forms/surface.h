// The drawing ground of a form or a picture box, with the lines on it.
#pragma once

#include <QButtonGroup>
#include <QWidget>
#include <vector>

#include "forms/form_data.h"

namespace forms {

class Line;

/// A container's widget. What it holds is placed inside the border.
class Surface : public QWidget {
 public:
  Surface(QWidget* parent, bool border, Scale scale);

  int border() const { return border_ ? 1 : 0; }
  /// Units of this container's scale that make a logical pixel.
  double unitsPerPixel() const { return scale_ == Scale::Twips ? kTwipsPerPixel : 1; }
  void addLine(const Line* line) { lines_.push_back(line); }
  void removeLine(const Line* line) { std::erase(lines_, line); }
  /// The option buttons that stand directly on this surface, of which one is selected. The widget toolkit's
  /// own grouping would take those of inner surfaces in.
  QButtonGroup& options() { return options_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool border_;
  Scale scale_;
  std::vector<const Line*> lines_;
  QButtonGroup options_;
};

/// Fills the outermost pixels of `extent`, whole ones on scaled screens too.
void drawOutline(QPainter& painter, const QRect& extent, const QColor& color);

}  // namespace forms
