// A window of the program with all that stands on it, made from its form data.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/form_window.h"

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
  std::unique_ptr<Item> makeLikeFirst(const char* name, int index, const char* container);
  void loadMember(const char* name, int index);
  Item& spare(const char* name);

  const FormData& data_;
  /// Members of each array, or the one control, by name. Gaps are null.
  std::map<std::string, Items, std::less<>> items_;
  std::map<std::string, std::unique_ptr<Item>, std::less<>> spares_;
};

/// The members of one name on one form. An index without a member is a fault of the program; where assertions
/// are off, it gives a spare member that nobody sees or hears.
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, const char* name) : form_(form), name_(name), items_(form.items_[name]) {}

  T& operator()(int index) {
    if (Item* member = find(index)) return static_cast<T&>(*member);
    T& spare = static_cast<T&>(form_.spare(name_));
    spare.setVisible(false);
    return spare;
  }

  /// Number of members, gaps not counted.
  int count() const {
    return static_cast<int>(std::ranges::count_if(items_, [](const auto& item) { return item != nullptr; }));
  }

  /// Makes a new member with the stored properties of member 0, hidden. Nothing happens where the index is
  /// taken or negative.
  void load(int index) {
    if (index < 0 || find(index) != nullptr) return;
    form_.loadMember(name_, index);
    (*this)(index).setVisible(false);
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

}  // namespace forms
