// A window's icon.
#pragma once

#include <memory>

class QIcon;

namespace forms {

/// A shared picture in several sizes; empty until one is given.
class Icon {
 public:
  Icon() = default;
  /// The built-in picture of this name; empty where there is none.
  explicit Icon(const char* name);

  const QIcon* picture() const { return picture_.get(); }

 private:
  std::shared_ptr<const QIcon> picture_;
};

}  // namespace forms
