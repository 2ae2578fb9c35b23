// The desktop's side of a form: a top-level widget and its frame.
#pragma once

#include <QMargins>

#include "forms/surface.h"

namespace forms {

class Form;

/// Holds the outer size of the window while the desktop puts its frame around it, which it does only after
/// the window is shown.
class FormSurface : public Surface {
 public:
  FormSurface(Form& form, const FormData& data);

  /// Pixels, frame included.
  QSize outerSize() const;
  /// Brings the window to the outer size of its form.
  void applyOuterSize();
  /// Prepares the first show: in the middle of the owner's window, or of the screen where there is none.
  void standBeside(const FormSurface* owner);
  /// Shows the window, in its normal state if it is minimised, in front of the others.
  void bringForward();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QMargins frame() const;
  void centre();
  void settle();

  Form& form_;
  bool oneSize_;
  QMargins assumedFrame_;
  QSize asked_;
  QSize told_;
  QPoint centre_;
  bool centred_ = false;
  bool minimised_ = false;
};

}  // namespace forms
