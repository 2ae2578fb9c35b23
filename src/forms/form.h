// A window of the program with all that stands on it, made from its form data.
#pragma once

#include <algorithm>
#include <cassert>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/common_dialog.h"
#include "forms/displays.h"
#include "forms/form_window.h"
#include "forms/line.h"
#include "forms/slider.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace forms {

/// The base of all windows. Windows of the program are reached through `DefaultInstance`.
class Form : public FormWindow {
 protected:
  explicit Form(const FormData& data);

  /// The one control of this name.
  template <class T>
  T& control(const char* name) {
    return dynamic_cast<T&>(*items_[name].at(0));
  }

 private:
  template <class T>
  friend class ControlArray;
  using Items = std::vector<std::unique_ptr<Item>>;

  void put(const char* name, int index, std::unique_ptr<Item> item);
  void makeTabOrder();
  std::unique_ptr<Item> makeLikeFirst(const char* name, int index);
  void loadMember(const char* name, int index);

  const FormData& data_;
  /// Members of each array, or the one control, by name. Gaps are null.
  std::map<std::string, Items, std::less<>> items_;
};

/// The members of one name on one form. To ask for an index without a member is a fault of the program.
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, const char* name) : form_(form), name_(name), items_(form.items_[name]) {}

  T& operator()(int index) {
    Item* member = find(index);
    assert(member != nullptr);
    return static_cast<T&>(*member);
  }

  /// Number of members, gaps not counted.
  int count() const {
    return static_cast<int>(std::ranges::count_if(items_, [](const auto& item) { return item != nullptr; }));
  }

  /// Makes a new member with the stored properties of member 0, hidden. Nothing happens where the index is
  /// taken or negative.
  void load(int index) {
    if (index >= 0 && find(index) == nullptr) form_.loadMember(name_, index);
  }

  /// Does the same with each member, in rising order.
  template <class Action>
  void each(Action action) {
    for (const auto& item : items_)
      if (item) action(static_cast<T&>(*item));
  }

 private:
  /// Null where there is none; a negative index is beyond the end.
  Item* find(int index) const {
    const auto place = static_cast<std::size_t>(index);
    return place < items_.size() ? items_[place].get() : nullptr;
  }

  Form& form_;
  const char* name_;
  Form::Items& items_;
};

/// The window comes into being, hidden, the first time anything refers to it, and again after an unload. A
/// window that was unloaded while one of its handlers runs lives until that handler returns.
template <class W>
class DefaultInstance {
 public:
  W* operator->() { return &*loaded(); }
  W& operator*() { return *loaded(); }

  bool isLoaded() const { return form_ != nullptr; }
  void load() { loaded(); }
  void unload() {
    if (const auto form = form_) form->unload();
  }

 private:
  const std::shared_ptr<W>& loaded() {
    if (!form_) {
      const std::shared_ptr<W> form(new W, &FormWindow::destroyLater);
      form_ = form;
      form->load([this] { form_.reset(); });
    }
    return form_;
  }

  std::shared_ptr<W> form_;
};

}  // namespace forms
