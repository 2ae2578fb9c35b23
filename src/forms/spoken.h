// What a screen reader gets to know of the program's widgets.
#pragma once

class QProgressBar;
class QSlider;
class QString;
class QWidget;

namespace forms {

/// Has the widgets of the program described and used by the classes here instead of Qt's own. Before the
/// first widget: Qt keeps the description that it gets when a reader first hears of a widget.
void installSpokenWidgets();

/// A screen reader hears and sets `value * factor` in place of the slider's value.
void setSpokenFactor(QSlider& slider, double factor);

/// True: a screen reader hears the bar's maximum, whatever its value.
void setSpokenFull(QProgressBar& bar, bool full);

/// A new child of `window` that no eye sees and that a screen reader takes for a notification of these words.
QWidget* makeNotification(QWidget& window, const QString& words);

}  // namespace forms
