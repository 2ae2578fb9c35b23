// The top-level widget of a form, as the window manager sees it: its size, its place and its state.
#pragma once

#include <QMargins>
#include <optional>

#include "forms/surface.h"

namespace forms {

/// Keeps the outer size that the program assigns, although a window gets its frame only once it is shown. All
/// in pixels.
class FormSurface : public Surface {
 public:
  explicit FormSurface(const FormData& formData);

  /// Frame included, or the frame that is expected.
  QSize outerSize() const { return size().grownBy(frame_); }
  /// The outer size that the program has assigned; a width or a height of 0 is left to the form data and the
  /// user.
  QSize assigned() const { return assigned_; }
  void assign(QSize outer) { fit(outer, frame_); }

  /// Gives a window that was never shown its size, and tells the form.
  void prepare();
  /// Puts it into the middle of its owner, or of the screen where there is none.
  void centreOn(const FormSurface* owner);
  /// Shows the window, in its normal state if it is minimised, in front of the others.
  void bringForward();

 protected:
  bool event(QEvent* event) override;
  /// Called with a new size inside the frame, and when the window is minimised or back.
  virtual void sizeChanged() = 0;

 private:
  QSize wantedSize() const;
  void fit(QSize assigned, QMargins frame);
  void moveCentre(const QPoint& middle);
  void adjust();
  void leaveFullScreen();
  void followWindow();
  void tellForm();

  const FormData& data_;
  QSize assigned_{0, 0};
  QMargins frame_;                ///< the frame that the last requested size allows for
  std::optional<QPoint> centre_;  ///< the middle of the window, until it has its frame
  QSize told_;                    ///< the size that the form knows of, invalid while it is minimised
};

}  // namespace forms
