#include "forms/icon.h"

#include <QFile>
#include <QIcon>

namespace forms {

Icon::Icon(const char* name) {
  QIcon picture;
  for (const int size : {16, 32, 48}) {
    const QString file = QString(":/icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(name);
    if (QFile::exists(file)) picture.addFile(file, QSize(size, size));
  }
  if (!picture.isNull()) picture_ = std::make_shared<const QIcon>(picture);
}

}  // namespace forms
