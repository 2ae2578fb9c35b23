// How the layer's texts, colours and fonts become the widget toolkit's.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>

#include "forms/color.h"

namespace forms {

inline QString toQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

QColor toQt(Color color);

/// The program's font in a size in points, at 72 points to 96 pixels.
QFont fontOf(double points, bool bold);

/// Gives the application the program's own look, the same on every desktop.
void applyStyle();

}  // namespace forms
