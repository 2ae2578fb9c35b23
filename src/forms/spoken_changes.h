// What a screen reader is told away from the focus: once, when things are at rest.
#pragma once

class QWidget;

namespace forms {

/// From here on, all that Qt tells a screen reader comes by here first. Of what has no focus, the last value
/// of a slider and the last text of a label are passed on after a while. A reader tells neither of them to
/// its user: what is to be heard is announced, in words that stand on the window.
void listenToChanges();

/// Has a screen reader say the widget's name, of a line of text its text too, as they are after a while: what
/// follows soon is said with it.
void announce(QWidget& widget);

}  // namespace forms
