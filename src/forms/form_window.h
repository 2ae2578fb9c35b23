// A window of the program, without what stands on it. The widget that is shown is its `FormSurface`.
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

  std::string caption() const;
  void setCaption(const std::string& caption);
  double width() const;
  double height() const;
  /// A size of zero or less, and any size while the window is minimised, changes nothing.
  void setWidth(double twips);
  void setHeight(double twips);
  double scaleWidth() const;
  double scaleHeight() const;
  bool minimised() const;

  bool isLoaded() const { return forget_ != nullptr; }
  /// Shows the window, in the middle of its owner or of the screen, or brings it forward. No other window is
  /// blocked by it.
  void show(const FormWindow* owner = nullptr);
  /// Raises QueryUnload and Unload and takes the window away. Inside an unload it does nothing.
  void unload();

  /// Absolute path of the file whose drop raised FileDrop.
  const std::string& droppedFile() const { return droppedFile_; }

  Event onLoad, onResize, onQueryUnload, onUnload, onTerminate, onMouseMove;
  /// A local file was dropped on the window, and no other with it. Without a handler the window takes none.
  Event onFileDrop;

  /// The widget that holds what `container` names in the form data.
  Surface& surface(const char* container) const;

  /// Runs `handler`, which serves `event`, while the form is loaded, and keeps the form alive meanwhile.
  /// In a paint-only wait it is deferred, once for each event. All events of all controls come by here.
  void raise(const Event& event, const std::function<void()>& handler);

 protected:
  explicit FormWindow(const FormData& data);

 private:
  class Window;
  template <class W>
  friend class DefaultInstance;

  void load(std::function<void()> forget);
  static void destroyLater(FormWindow* form);
  void raise(const Event& event);

  std::unique_ptr<FormSurface> window_;
  std::string droppedFile_;
  bool unloading_ = false;
  std::function<void()> forget_;  ///< takes the form from those who refer to it; set while it is loaded
};

}  // namespace forms
