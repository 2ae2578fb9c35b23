// What a screen reader gets to know of the program's widgets.
#pragma once

class QWidget;

namespace forms {

/// Has the widgets of the program described and used by classes of our own where Qt's do not fit, and passes
/// on what changes away from the focus, the value of a slider and the text of a label, after a while. A
/// reader tells its user neither of them: what is to be heard is announced. To be called before the first
/// widget: Qt keeps the description that it gets when a reader first hears of a widget.
void serveScreenReaders();

/// Qt property of a slider: a screen reader hears and sets this many times its value.
inline constexpr auto kSpokenFactor = "spokenFactor";

/// Has a screen reader say the widget's name, of a line of text its text too, as they are after a while: what
/// follows soon is said with it.
void announce(QWidget& widget);

}  // namespace forms
