// What every control has: a place on its container, a look, and mouse events.
#pragma once

#include <string>

#include "forms/event.h"
#include "forms/form_data.h"

class QPoint;
class QWidget;

namespace forms {

class FormWindow;
class Surface;

/// Whatever stands on a form, visible or not. Lives as long as its form.
class Item {
 public:
  Item(FormWindow& form, int index) : form_(form), index_(index) {}
  virtual ~Item() = default;
  Item(const Item&) = delete;
  Item& operator=(const Item&) = delete;

  int index() const { return index_; }

 protected:
  /// Runs the handler, after the wait in a paint-only wait; nothing happens on a form that is not loaded.
  void raise(const Event& event) const;
  /// Asked just before the handler runs: false where things have changed since the event.
  virtual bool mayRun(const Event& /*event*/) const { return true; }
  FormWindow& form() const { return form_; }

 private:
  FormWindow& form_;
  int index_;
};

/// A control with a widget of its own. Geometry counts in the scale of its container; a negative width or
/// height changes nothing. `Visible` is the control's own flag, whether or not its window shows.
class Control : public Item {
 public:
  double left() const { return left_; }
  double top() const { return top_; }
  double width() const { return width_; }
  double height() const { return height_; }
  void setLeft(double left) { place(left, top_, width_, height_); }
  void setTop(double top) { place(left_, top, width_, height_); }
  void setWidth(double width) { setSize(width, height_); }
  void setHeight(double height) { setSize(width_, height); }

  bool visible() const;
  void setVisible(bool visible);
  bool enabled() const;
  void setEnabled(bool enabled);
  Color foreColor() const { return fore_; }
  void setForeColor(Color color);
  Color backColor() const { return back_; }
  void setBackColor(Color color);
  /// Size of the text in points, at 72 points to 96 pixels.
  void setFontSize(double points);
  const std::string& toolTipText() const { return toolTip_; }
  void setToolTipText(const std::string& text) { toolTip_ = text; }
  void setFocus();
  /// Has a screen reader say the control's caption, wherever the focus is.
  void announce();
  /// Brings the control to the front of its container.
  void zOrder();

  Event onMouseMove;
  Event onMouseUp;

  QWidget* widget() const { return widget_; }

 protected:
  /// Puts `widget`, which goes over to the form, into the container of `data`.
  Control(FormWindow& form, const ControlData& data, QWidget* widget);

  /// Called when size, text or font have changed.
  virtual void refit() {}
  /// Called before the widget is shown or touched by the user.
  virtual void prepare() {}
  void place(double left, double top, double width, double height);
  Surface& container() const { return container_; }

 private:
  friend class ControlFilter;
  void setSize(double width, double height);
  void applyColors();
  bool showToolTip(const QPoint& place);

  QWidget* widget_;
  Surface& container_;
  double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool keepsFocus_ = false;
  Color back_, fore_;
  std::string toolTip_;
};

}  // namespace forms
