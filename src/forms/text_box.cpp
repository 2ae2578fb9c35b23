#include "forms/text_box.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <utility>

#include "forms/style.h"

namespace forms {
namespace {

/// Qt would select the whole text for a Tab that comes here, and a screen reader would say it once more then,
/// and again that it is selected no longer.
class LineBox : public QLineEdit {
 protected:
  void focusInEvent(QFocusEvent* /*event*/) override {
    QFocusEvent withoutSelection(QEvent::FocusIn, Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&withoutSelection);
  }
};

QWidget* makeBox(bool multiLine) {
  if (multiLine) {
    auto* box = new QPlainTextEdit;
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    box->setTabChangesFocus(true);
    box->setBackgroundRole(QPalette::Base);
    return box;
  }
  auto* box = new LineBox;
  box->setReadOnly(true);
  box->setFrame(false);
  box->setBackgroundRole(QPalette::Base);
  // What is dropped on it is for the window: Qt would refuse it here.
  box->setAcceptDrops(false);
  return box;
}

}  // namespace

TextBox::TextBox(FormWindow& form, const ControlData& data)
    : Control(form, data, makeBox(data.kind == Kind::MultiLineTextBox)),
      editor_(qobject_cast<QPlainTextEdit*>(widget())),
      text_(data.text) {
  if (editor_ == nullptr) {
    // The accessibility bus can write into a box that is read-only.
    auto* line = static_cast<QLineEdit*>(widget());
    QObject::connect(line, &QLineEdit::textChanged, line, [this, line](const QString& now) {
      if (now != toQt(text_)) line->setText(toQt(text_));
    });
    return;
  }
  QObject::connect(editor_, &QPlainTextEdit::textChanged, editor_, [this] { edited(); });
}

void TextBox::setText(const std::string& text) {
  if (text_ == text) return;
  text_ = text;
  const auto prepareSoon = [this] { prepare(); };
  if (!std::exchange(stale_, true) && widget()->isVisible())
    QMetaObject::invokeMethod(widget(), prepareSoon, Qt::QueuedConnection);
  raise(onChange);
}

void TextBox::prepare() {
  if (!std::exchange(stale_, false)) return;
  // The end of a long path says more than its beginning; the cursor at the end keeps it in view.
  if (editor_ == nullptr) return static_cast<QLineEdit*>(widget())->setText(toQt(text_));
  const QSignalBlocker noEdit(editor_);
  editor_->setPlainText(toQt(text_));
}

void TextBox::edited() {
  text_ = fromQt(editor_->toPlainText().replace("\n", "\r\n"));
  raise(onChange);
}

void TextBox::setSelStart(int position) {
  if (editor_ == nullptr) return;
  prepare();
  QTextCursor cursor = editor_->textCursor();
  cursor.setPosition(std::clamp(position, 0, editor_->document()->characterCount() - 1));
  editor_->setTextCursor(cursor);
}

}  // namespace forms
