#include "forms/spoken_changes.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

#include "forms/surface.h"

namespace forms {
namespace {

constexpr auto kAnnounced = "announced";
constexpr auto kAtWork = "atWork";
/// Milliseconds: of a value on its way, several a second are enough; an announcement is to come behind what a
/// reader says about the focus, and once for keys that repeat.
constexpr int kValuesAfter = 300;
constexpr int kWordsAfter = 500;

/// Some words on a window, for one time.
class Announcement : public QObject {
 public:
  Announcement(QWidget* window, const QString& text) : QObject(window), words(text) {}

  const QString words;
};

/// What Qt 6.4 passes on and readers tell their users, wherever the focus is, is that a notification shows.
class SpokenAnnouncement : public QAccessibleObject {
 public:
  explicit SpokenAnnouncement(Announcement* object) : QAccessibleObject(object), words_(object->words) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(object()->parent());
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? words_ : ""; }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }

 private:
  QString words_;
};

using Widgets = std::vector<QPointer<QWidget>>;

void note(Widgets& widgets, QWidget* widget) {
  if (std::ranges::find(widgets, widget, &QPointer<QWidget>::data) == widgets.end())
    widgets.emplace_back(widget);
}

/// Stands between Qt and the accessibility bus.
class Changes : public QObject {
 public:
  explicit Changes(QObject* parent) : QObject(parent) {
    for (QTimer* timer : {&valuesDue_, &wordsDue_}) timer->setSingleShot(true);
    connect(&valuesDue_, &QTimer::timeout, this, [this] { tellValues(); });
    connect(&wordsDue_, &QTimer::timeout, this, [this] { tellWords(); });
  }

  void hear(QAccessibleEvent* event);
  QAccessible::UpdateHandler passTo = nullptr;

 private:
  void pass(QAccessibleEvent* event);
  void announce(QWidget* widget);
  void tellValues();
  void tellWords();

  Widgets values_, words_;
  QTimer valuesDue_, wordsDue_;
  QPointer<Announcement> last_;
};

QPointer<Changes> changes;

void hearChange(QAccessibleEvent* event) {
  changes->hear(event);
}

/// A button that is disabled before the eyes of the user, for the time of some work, is none that comes alive
/// after it.
bool comesAlive(const QAccessibleEvent* event, QWidget* button) {
  if (event->type() != QAccessible::StateChanged) return false;
  if (!static_cast<const QAccessibleStateChangeEvent*>(event)->changedStates().disabled) return false;
  const bool works = button->property(kAtWork).toBool();
  button->setProperty(kAtWork, !button->isEnabled());
  return button->isEnabled() && !works;
}

void Changes::hear(QAccessibleEvent* event) {
  auto* widget = qobject_cast<QWidget*>(event->object());
  const bool isOurs = widget != nullptr && widget->isVisible() && !widget->hasFocus() &&
                      dynamic_cast<Surface*>(widget->window()) != nullptr;
  if (!isOurs) return pass(event);
  const bool isNumber = event->type() == QAccessible::ValueChanged && qobject_cast<QSlider*>(widget);
  const bool isText = event->type() == QAccessible::NameChanged && qobject_cast<QLabel*>(widget);
  const bool isNewText =
      event->type() == QAccessible::TextInserted || event->type() == QAccessible::TextUpdated;
  const bool isLine = isNewText && qobject_cast<QLineEdit*>(widget);
  const bool isButton = qobject_cast<QPushButton*>(widget) && comesAlive(event, widget);
  if (isLine || isButton || (isText && widget->property(kAnnounced).toBool())) announce(widget);
  if (!isNumber && !isText) return pass(event);
  note(values_, widget);
  if (!valuesDue_.isActive()) valuesDue_.start(kValuesAfter);
}

void Changes::pass(QAccessibleEvent* event) {
  QAccessible::installUpdateHandler(passTo);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(hearChange);
}

void Changes::announce(QWidget* widget) {
  note(words_, widget);
  wordsDue_.start(kWordsAfter);
}

void Changes::tellValues() {
  for (const QPointer<QWidget>& widget : std::exchange(values_, {})) {
    if (const auto* slider = qobject_cast<QSlider*>(widget)) {
      QAccessibleValueChangeEvent event(widget, slider->value());
      pass(&event);
    } else if (widget != nullptr) {
      QAccessibleEvent event(widget, QAccessible::NameChanged);
      pass(&event);
    }
  }
}

void Changes::tellWords() {
  QStringList words;
  QWidget* window = nullptr;
  for (const QPointer<QWidget>& widget : std::exchange(words_, {})) {
    if (widget == nullptr || !widget->isEnabled() || !widget->isVisible()) continue;
    window = widget->window();
    if (const auto* line = qobject_cast<QLineEdit*>(widget))
      words.prepend(line->accessibleName() + " " + line->text());
    else
      words.append(widget->accessibleName());
  }
  if (window == nullptr) return;
  // A reader asks for the words later on.
  delete last_;
  last_ = new Announcement(window, words.join(", "));
  QAccessibleEvent event(last_, QAccessible::ObjectShow);
  pass(&event);
}

}  // namespace

void listenToChanges() {
  if (!changes) changes = new Changes(qApp);
  changes->passTo = QAccessible::installUpdateHandler(hearChange);
}

void setAnnounced(QWidget& label) {
  label.setProperty(kAnnounced, true);
}

QAccessibleInterface* spokenAnnouncement(QObject* object) {
  auto* announcement = dynamic_cast<Announcement*>(object);
  return announcement != nullptr ? new SpokenAnnouncement(announcement) : nullptr;
}

}  // namespace forms
