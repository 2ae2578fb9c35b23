// What a control or a window raises.
#pragma once

#include <functional>
#include <utility>

namespace forms {

/// Runs the handler that the program has set, if any. An event that has to wait is known by its address.
class Event {
 public:
  /// Gets the index of the control in its array, 0 for a control that is in none and for a window.
  using Handler = std::function<void(int index)>;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  const Handler& handler() const { return handler_; }

  void operator()(int index = 0) const {
    if (handler_) handler_(index);
  }

 private:
  Handler handler_;
};

}  // namespace forms
