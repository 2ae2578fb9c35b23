// What changes away from the focus, as a screen reader hears of it: once, when things are at rest.
#pragma once

class QAccessibleInterface;
class QObject;
class QWidget;

namespace forms {

/// From here on, all that Qt tells a screen reader comes by here first. Of what has no focus, the last value
/// of a slider and the last text of a label are passed on after a while. A reader tells neither of them to
/// its user: what is to be heard is announced, in words that stand on the window.
void listenToChanges();

/// Has a new text of the label announced.
void setAnnounced(QWidget& label);

/// The description of an announcement; null where `object` is none.
QAccessibleInterface* spokenAnnouncement(QObject* object);

}  // namespace forms
