#include "forms/common_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>

#include "forms/form_window.h"
#include "forms/style.h"
#include "forms/surface.h"

namespace forms {
namespace {

/// Takes the typed name literally: no quotes, no list of names, no home folder, no question.
class NameDialog : public QFileDialog {
 public:
  explicit NameDialog(QWidget* parent) : QFileDialog(parent) {
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    setFileMode(AnyFile);
    connect(this, &QFileDialog::filterSelected, this, &NameDialog::widenFilter);
    resize(720, 440);
    // Qt's own widths of the columns cut sizes and dates short.
    if (auto* list = findChild<QTreeView*>())
      list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }

  QString chosen;

  /// Every name matches "*.*", a name without a point too.
  void widenFilter() {
    auto* model = findChild<QFileSystemModel*>();
    if (model != nullptr && selectedNameFilter().contains("(*.*)")) model->setNameFilters({"*"});
  }

 protected:
  void accept() override {
    auto* line = findChild<QLineEdit*>("fileNameEdit");
    if (line == nullptr || line->text().isEmpty()) return;
    const QString path = QDir(directory()).absoluteFilePath(line->text());
    if (QFileInfo(path).isDir()) {
      setDirectory(path);
      line->clear();
      return;
    }
    chosen = path;
    QDialog::accept();
  }

  void done(int result) override {
    // While its list of completions is open, Qt does not give the focus back to the program's window.
    if (QWidget* names = QApplication::activePopupWidget()) names->close();
    QFileDialog::done(result);
  }
};

QStringList nameFilters(const QString& pairs) {
  QStringList filters;
  const QStringList parts = pairs.split('|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) filters += parts[i];
  return filters;
}

}  // namespace

void CommonDialog::show(bool save) {
  const auto alive = form().shared_from_this();
  const QPointer<QWidget> before = QApplication::activeWindow();
  NameDialog dialog(&form().surface(""));
  dialog.setWindowTitle(toQt(title_));
  // Nothing but the word: in its own mode for saving the dialog would change the typed name with the filter.
  if (save) dialog.setLabelText(QFileDialog::Accept, "Save");
  const QStringList filters = nameFilters(toQt(filter_));
  dialog.setNameFilters(filters);
  if (filterIndex_ >= 1 && filterIndex_ <= filters.size()) dialog.selectNameFilter(filters[filterIndex_ - 1]);
  dialog.setDirectory(toQt(initDir_));
  dialog.widenFilter();
  // A render's tick goes on in the dialog's event loop and serves events: their handlers can set the name.
  const std::string asked = fileName_;
  fileName_ = dialog.exec() == QDialog::Accepted ? fromQt(dialog.chosen) : asked;
  if (before) before->activateWindow();
}

}  // namespace forms
