// A window of the program, made from its form data.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "forms/control.h"

namespace forms {

class FormSurface;
class Line;

/// The base of all windows. The outer size, frame included, counts in twips; `ScaleWidth` and `ScaleHeight`
/// are the inner size in the form's own scale. Windows of the program are reached through `DefaultInstance`.
class Form : public std::enable_shared_from_this<Form> {
 public:
  using Items = std::vector<std::unique_ptr<Item>>;

  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);
  double width() const;
  double height() const;
  /// A size of zero or less, and any size while the window is minimised, changes nothing.
  void setWidth(double twips);
  void setHeight(double twips);
  double scaleWidth() const;
  double scaleHeight() const;
  bool minimised() const;

  bool isLoaded() const { return loaded_; }
  /// Shows the window beside the others, in the middle of its owner or of the screen, or brings it forward.
  void show(const Form* owner = nullptr);
  /// Raises QueryUnload and Unload and takes the window away. Inside an unload it does nothing.
  void unload();

  std::function<void()> onLoad, onResize, onQueryUnload, onUnload, onTerminate, onMouseMove;

  /// Members of the array, or the one control, of this name. Gaps are null.
  Items& items(const char* name) { return items_[name]; }
  /// Makes member `index`, which the array does not have yet, hidden and otherwise like its first member.
  void loadMember(const char* name, int index);
  /// Row of the slider table, null where there is none.
  const SliderData* sliderData(const char* name) const;
  /// The widget that holds what `container` names in the form data.
  Surface* surface(const char* container);

  /// A control that stands nowhere.
  template <class T>
  static std::unique_ptr<T> makeDetached() {
    if constexpr (std::is_base_of_v<Line, T>)
      return std::make_unique<T>(nullptr, LineData{});
    else
      return std::make_unique<T>(nullptr, ControlData{});
  }

 protected:
  explicit Form(const FormData& data);

  /// The one control of this name.
  template <class T>
  T& control(const char* name) {
    return dynamic_cast<T&>(*items(name).at(0));
  }

 private:
  friend class FormSurface;
  template <class W>
  friend class DefaultInstance;

  void load(std::function<void()> forget);
  static void destroyLater(Form* form);
  void put(const char* name, int index, std::unique_ptr<Item> item);
  void makeTabOrder(std::span<const ControlData> controls);
  void raise(const std::function<void()>& event);
  void takeOuterSize(double width, double height);

  const FormData& data_;
  std::string caption_;
  std::map<std::string, Items, std::less<>> items_;
  std::unique_ptr<FormSurface> window_;
  double outerWidth_, outerHeight_;
  bool loaded_ = false;
  bool unloading_ = false;
  std::function<void()> forget_;
};

}  // namespace forms
