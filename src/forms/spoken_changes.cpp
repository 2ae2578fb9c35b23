#include "forms/spoken_changes.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

#include "forms/spoken.h"
#include "forms/surface.h"

namespace forms {
namespace {

using Widgets = std::vector<QPointer<QWidget>>;

void note(Widgets& widgets, QWidget* widget) {
  if (std::ranges::find(widgets, widget, &QPointer<QWidget>::data) == widgets.end())
    widgets.emplace_back(widget);
}

/// Stands between Qt and the accessibility bus.
class Changes : public QObject {
 public:
  explicit Changes(QObject* parent) : QObject(parent) {
    for (QTimer* timer : {&valuesTimer_, &wordsTimer_}) timer->setSingleShot(true);
    // Of a value on its way several a second are enough.
    valuesTimer_.setInterval(300);
    // Behind what a reader says about the focus, and once for keys that repeat.
    wordsTimer_.setInterval(500);
    connect(&valuesTimer_, &QTimer::timeout, this, [this] { tellValues(); });
    connect(&wordsTimer_, &QTimer::timeout, this, [this] { tellWords(); });
  }

  void receive(QAccessibleEvent* event);
  void announce(QWidget* widget) {
    note(words_, widget);
    wordsTimer_.start();
  }

  /// What Qt has for all this by itself.
  QAccessible::UpdateHandler qtHandler = nullptr;

 private:
  void passOn(QAccessibleEvent* event);
  void tellValues();
  void tellWords();

  Widgets values_, words_;
  QTimer valuesTimer_, wordsTimer_;
  QPointer<QWidget> announcement_;
};

QPointer<Changes> changes;

void receiveChange(QAccessibleEvent* event) {
  changes->receive(event);
}

void Changes::receive(QAccessibleEvent* event) {
  auto* widget = qobject_cast<QWidget*>(event->object());
  const bool isAwayFromFocus = widget != nullptr && widget->isVisible() && !widget->hasFocus() &&
                               dynamic_cast<Surface*>(widget->window()) != nullptr;
  const bool isValue = event->type() == QAccessible::ValueChanged && qobject_cast<QSlider*>(widget);
  const bool isText = event->type() == QAccessible::NameChanged && qobject_cast<QLabel*>(widget);
  if (!isAwayFromFocus || (!isValue && !isText)) return passOn(event);
  note(values_, widget);
  if (!valuesTimer_.isActive()) valuesTimer_.start();
}

void Changes::passOn(QAccessibleEvent* event) {
  QAccessible::installUpdateHandler(qtHandler);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(receiveChange);
}

void Changes::tellValues() {
  for (const QPointer<QWidget>& widget : std::exchange(values_, {})) {
    if (const auto* slider = qobject_cast<QSlider*>(widget)) {
      QAccessibleValueChangeEvent event(widget, slider->value());
      passOn(&event);
    } else if (widget != nullptr) {
      QAccessibleEvent event(widget, QAccessible::NameChanged);
      passOn(&event);
    }
  }
}

/// What Qt before 6.8, which has QAccessibleAnnouncementEvent for it, passes on and readers say wherever the
/// focus is, is that a notification shows.
void Changes::tellWords() {
  QStringList words;
  QWidget* window = nullptr;
  for (const QPointer<QWidget>& widget : std::exchange(words_, {})) {
    if (widget == nullptr || !widget->isVisible()) continue;
    window = widget->window();
    const auto* line = qobject_cast<QLineEdit*>(widget);
    words += widget->accessibleName() + (line != nullptr ? " " + line->text() : QString());
  }
  if (window == nullptr) return;
  // A reader asks for the words later on: they stay until the next ones.
  delete announcement_;
  announcement_ = makeNotification(*window, words.join(", "));
  QAccessibleEvent event(announcement_, QAccessible::ObjectShow);
  passOn(&event);
}

}  // namespace

void listenToChanges() {
  if (!changes) changes = new Changes(qApp);
  changes->qtHandler = QAccessible::installUpdateHandler(receiveChange);
}

void announce(QWidget& widget) {
  changes->announce(&widget);
}

}  // namespace forms
