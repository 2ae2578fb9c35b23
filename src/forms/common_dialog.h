// The dialogs that ask for a file's name.
#pragma once

#include <string>

#include "forms/control.h"

namespace forms {

/// One dialog for opening and saving, with the desktop's habits switched off: no extension is added, nothing
/// is asked before an existing file is named, and a typed name is taken as it stands. Texts in UTF-8.
class CommonDialog : public Item {
 public:
  explicit CommonDialog(FormWindow& form) : Item(form, kSingle) {}

  /// Absolute path that was chosen; a Cancel leaves what it was when the dialog was asked.
  const std::string& fileName() const { return fileName_; }
  void setFileName(const std::string& fileName) { fileName_ = fileName; }
  void setDialogTitle(const std::string& title) { title_ = title; }
  /// Pairs of a text and a pattern, all separated by `|`.
  void setFilter(const std::string& filter) { filter_ = filter; }
  /// The pair that is chosen at first, counted from 1.
  void setFilterIndex(int index) { filterIndex_ = index; }
  void setInitDir(const std::string& folder) { initDir_ = folder; }

  /// Show the dialog and return when it is closed.
  void showOpen() { show(false); }
  void showSave() { show(true); }

 private:
  void show(bool save);

  std::string fileName_, title_, filter_, initDir_;
  int filterIndex_ = 1;
};

}  // namespace forms
