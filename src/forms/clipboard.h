// The desktop's clipboard, for plain text.
#pragma once

#include <string>

namespace forms {

/// A clipboard that cannot be reached changes nothing.
class Clipboard {
 public:
  static void clear();
  static void setText(const std::string& text);
};

}  // namespace forms
