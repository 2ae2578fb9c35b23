// The one instance of a window, under a name that the whole program knows.
#pragma once

#include <memory>

#include "forms/form.h"

namespace forms {

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
