#include "forms/clipboard.h"

#include <QApplication>
#include <QClipboard>

#include "forms/style.h"

namespace forms {

void Clipboard::clear() {
  QApplication::clipboard()->clear();
}

void Clipboard::setText(const std::string& text) {
  QApplication::clipboard()->setText(toQt(text));
}

}  // namespace forms
