// A window's icon.
#pragma once

#include <memory>

class QIcon;

namespace forms {

/// A shared picture in several sizes; empty until one is given.
class Icon {
 public:
  Icon() = default;
  explicit Icon(std::shared_ptr<const QIcon> picture) : picture_(std::move(picture)) {}

  const QIcon* picture() const { return picture_.get(); }

 private:
  std::shared_ptr<const QIcon> picture_;
};

}  // namespace forms
