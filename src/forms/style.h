// The look that all windows share, and Qt's forms of texts, colours and fonts.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>

#include "forms/form_data.h"

class QPainter;

namespace forms {

inline QString toQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

QColor toQt(Color color);

/// The program's font in a size in points, at 72 points to 96 pixels, in whole pixels.
QFont fontOf(double points, bool bold);

/// `font`, made as narrow as it takes to get `text` into `width` pixels; at most to half its width.
QFont narrowed(QFont font, const QString& text, int width);

/// Fills the outermost pixels of `extent`, whole ones on scaled screens too.
void drawOutline(QPainter& painter, const QRect& extent, const QColor& color);

/// Gives the application the program's own look, the same on every desktop.
void applyStyle();

}  // namespace forms
