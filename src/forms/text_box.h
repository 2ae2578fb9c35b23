// A box for text of one line (shown, not edited) or of many.
#pragma once

#include "forms/control.h"

class QPlainTextEdit;

namespace forms {

/// The text is kept here; the widget gets it when it is next shown, so that many assignments in a row lay out
/// one document. Lines end in carriage return and line feed once the user has edited the box.
class TextBox : public Control {
 public:
  TextBox(FormWindow& form, const ControlData& data);

  const std::string& text() const { return text_; }
  /// A different text raises Change before the assignment returns.
  void setText(const std::string& text);
  /// Puts the cursor before the character with this number, counted from 0, in a box of many lines.
  void setSelStart(int position);

  Event onChange;

 private:
  void prepare() override;
  void edited();

  QPlainTextEdit* editor_;  ///< null in a box of one line
  std::string text_;
  bool stale_ = true;
};

}  // namespace forms
