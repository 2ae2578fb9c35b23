#include "windows/clipboard_notice.h"

#include "forms/application.h"

namespace {

constexpr auto kCopied = "Data On Clipboard";

}  // namespace

void CopyToClipboard(forms::CommandButton& button, const std::string& text) {
  forms::Clipboard::setText(text);
  button.setCaption(kCopied);
  button.announce();
}

void EndCopyNotice(forms::CommandButton& button, std::string_view caption) {
  if (button.caption() == kCopied) button.setCaption(std::string(caption));
}
