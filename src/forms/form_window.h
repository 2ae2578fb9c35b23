// A window of the program, without what stands on it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/event.h"
#include "forms/form_data.h"

namespace forms {

class FormSurface;
class Surface;

/// The outer size, frame included, counts in twips; `ScaleWidth` and `ScaleHeight` are the inner size in the
/// form's own scale.
class FormWindow : public std::enable_shared_from_this<FormWindow> {
 public:
  virtual ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);
  double width() const { return outerWidth_; }
  double height() const { return outerHeight_; }
  /// A size of zero or less, and any size while the window is minimised, changes nothing.
  void setWidth(double twips) { setOuterSize(twips, outerHeight_); }
  void setHeight(double twips) { setOuterSize(outerWidth_, twips); }
  double scaleWidth() const;
  double scaleHeight() const;
  bool minimised() const;

  bool isLoaded() const { return loaded_; }
  /// Shows the window beside the others, in the middle of its owner or of the screen, or brings it forward.
  void show(const FormWindow* owner = nullptr);
  /// Raises QueryUnload and Unload and takes the window away. Inside an unload it does nothing.
  void unload();

  Event onLoad, onResize, onQueryUnload, onUnload, onTerminate, onMouseMove;

  /// The widget that holds what `container` names in the form data.
  Surface& surface(const char* container) const;

  /// Runs `handler`, which serves `event`, while the form is loaded, and keeps the form alive meanwhile.
  /// In a paint-only wait it is deferred, once for each event. All events of all controls come by here.
  void raise(const Event& event, const std::function<void(bool deferred)>& handler);

 protected:
  explicit FormWindow(const FormData& data);

 private:
  friend class FormSurface;
  template <class W>
  friend class DefaultInstance;

  void load(std::function<void()> forget);
  static void destroyLater(FormWindow* form);
  void raise(const Event& event);
  void setOuterSize(double width, double height);

  std::string caption_;
  std::unique_ptr<FormSurface> window_;
  double outerWidth_ = 0, outerHeight_ = 0;
  bool loaded_ = false;
  bool unloading_ = false;
  std::function<void()> forget_;
};

}  // namespace forms
