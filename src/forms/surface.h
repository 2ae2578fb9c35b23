// The drawing ground of a form or a picture box, with the lines on it.
#pragma once

#include <QButtonGroup>
#include <QWidget>
#include <deque>

#include "forms/form_data.h"

namespace forms {

/// A container's widget. What it holds is placed inside the border.
class Surface : public QWidget {
 public:
  Surface(bool border, Scale scale);

  int border() const { return border_ ? 1 : 0; }
  /// Units of this container's scale that make a logical pixel.
  double unitsPerPixel() const { return scale_ == Scale::Twips ? kTwipsPerPixel : 1; }
  /// Size inside the border, in the container's scale.
  double scaleWidth() const { return (width() - 2 * border()) * unitsPerPixel(); }
  double scaleHeight() const { return (height() - 2 * border()) * unitsPerPixel(); }

  /// The option buttons that stand directly on this surface, of which one is selected.
  QButtonGroup& options() { return options_; }

  /// Keeps a copy, which stays where it is for as long as the surface lives.
  LineData& addLine(const LineData& line) { return lines_.emplace_back(line); }
  /// Has the place of `line` painted anew: to be called before and after a change.
  void updateLine(const LineData& line) { update(extentOf(line)); }
  /// Paints what the lines have inside `extent`, with `painter` in the coordinates of this widget, as
  /// `extent`. Leaves it clipped and scaled.
  void paintLines(QPainter& painter, const QRect& extent) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The pixels of this widget that `line` can touch.
  QRect extentOf(const LineData& line) const;

  bool border_;
  Scale scale_;
  std::deque<LineData> lines_;
  QButtonGroup options_;
};

}  // namespace forms
