#include "forms/text_box.h"

#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "forms/look.h"

namespace forms {
namespace {

QWidget* makeBox(bool multiLine) {
  if (multiLine) {
    auto* box = new QPlainTextEdit;
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box->setTabChangesFocus(true);
    return box;
  }
  auto* box = new QLineEdit;
  box->setReadOnly(true);
  box->setFrame(false);
  return box;
}

}  // namespace

/// Brings the widget up to date before it is shown or touched.
class TextBoxFilter : public QObject {
 public:
  explicit TextBoxFilter(TextBox& box) : QObject(box.widget()), box_(box) {}

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Show:
      case QEvent::FocusIn:
      case QEvent::KeyPress:
      case QEvent::InputMethod:
      case QEvent::MouseButtonPress:
      case QEvent::ContextMenu:
      case QEvent::Drop:
        box_.sync();
        break;
      default:
        break;
    }
    return false;
  }

 private:
  TextBox& box_;
};

TextBox::TextBox(Form* form, const ControlData& data)
    : Control(form, data, makeBox(data.kind == Kind::MultiLineTextBox)),
      multiLine_(data.kind == Kind::MultiLineTextBox) {
  auto* filter = new TextBoxFilter(*this);
  widget()->installEventFilter(filter);
  text_ = data.text != nullptr ? data.text : "";
  stale_ = true;
  if (!multiLine_) return;
  auto* box = static_cast<QPlainTextEdit*>(widget());
  box->viewport()->installEventFilter(filter);
  QObject::connect(box, &QPlainTextEdit::textChanged, box, [this] { edited(); });
}

void TextBox::setText(const std::string& text) {
  if (text_ == text) return;
  text_ = text;
  stale_ = true;
  syncSoon();
  raise(onChange);
}

void TextBox::syncSoon() {
  if (queued_ || !widget()->isVisible()) return;
  queued_ = true;
  const auto syncNow = [this] { queued_ = false, sync(); };
  QMetaObject::invokeMethod(widget(), syncNow, Qt::QueuedConnection);
}

void TextBox::sync() {
  if (!stale_) return;
  stale_ = false;
  syncing_ = true;
  if (multiLine_) {
    static_cast<QPlainTextEdit*>(widget())->setPlainText(toQt(text_));
  } else {
    // The end of a long path says more than its beginning; the cursor behind the text keeps it in view.
    static_cast<QLineEdit*>(widget())->setText(toQt(text_));
  }
  syncing_ = false;
}

void TextBox::edited() {
  if (syncing_) return;
  text_ = fromQt(static_cast<QPlainTextEdit*>(widget())->toPlainText().replace("\n", "\r\n"));
  raiseWhenServed(onChange);
}

void TextBox::setSelStart(int position) {
  sync();
  if (!multiLine_) {
    static_cast<QLineEdit*>(widget())->setCursorPosition(position);
    return;
  }
  auto* box = static_cast<QPlainTextEdit*>(widget());
  QTextCursor cursor = box->textCursor();
  cursor.setPosition(std::clamp(position, 0, box->document()->characterCount() - 1));
  box->setTextCursor(cursor);
}

}  // namespace forms
