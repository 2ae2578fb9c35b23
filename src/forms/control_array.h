// Like controls under one name, told apart by an index.
#pragma once

#include <algorithm>
#include <memory>

#include "forms/form.h"

namespace forms {

/// The members of one name on one form. An index without a member gives a control that stands nowhere, so
/// that nothing happens to those that exist.
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, const char* name) : form_(&form), name_(name), items_(&form.items(name)) {}

  T& operator()(int index) {
    if (has(index)) return static_cast<T&>(*(*items_)[static_cast<std::size_t>(index)]);
    if (!nowhere_) nowhere_ = Form::makeDetached<T>();
    return *nowhere_;
  }

  /// Number of members, gaps not counted.
  int count() const {
    return static_cast<int>(std::ranges::count_if(*items_, [](const auto& item) { return item != nullptr; }));
  }

  /// Makes a new member with the stored properties of member 0, hidden. Nothing happens where the index is
  /// taken or negative.
  void load(int index) {
    if (index < 0 || has(index)) return;
    form_->loadMember(name_, index);
    (*this)(index).adoptHandlers((*this)(0));
    (*this)(index).setVisible(false);
  }

  /// Does the same with each member, in rising order.
  template <class Action>
  void each(Action action) {
    for (const auto& item : *items_)
      if (item) action(static_cast<T&>(*item));
  }

 private:
  bool has(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < items_->size() &&
           (*items_)[static_cast<std::size_t>(index)] != nullptr;
  }

  Form* form_;
  const char* name_;
  Form::Items* items_;
  std::unique_ptr<T> nowhere_;
};

}  // namespace forms
