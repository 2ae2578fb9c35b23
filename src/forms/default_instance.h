// A window that exists once, under a name that the whole program knows.
#pragma once

#include <memory>
#include <utility>

#include "forms/form.h"

namespace forms {

/// The place of one window. The window comes into being, hidden, the first time anything refers to it, and
/// again after an unload. A window that was unloaded while one of its handlers runs lives until that handler
/// returns.
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
      const std::shared_ptr<W> form(new W, [](W* gone) { Form::destroyLater(gone); });
      form_ = form;
      form->load([this] { form_.reset(); });
    }
    return form_;
  }

  std::shared_ptr<W> form_;
};

}  // namespace forms
