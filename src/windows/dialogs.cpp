#include "windows/dialogs.h"

#include "platform/program_folder.h"
#include "windows/form1.h"

void prepareDialog(const std::string& title, const std::string& filter, int filterIndex) {
  forms::CommonDialog& dialog = Form1->CDialog;
  dialog.setDialogTitle(title);
  dialog.setFileName("");
  dialog.setFilter(filter);
  dialog.setFilterIndex(filterIndex);
  dialog.setInitDir(platform::nativePath(platform::programFolder() + "\\"));
}
