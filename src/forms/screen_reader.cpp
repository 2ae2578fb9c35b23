#include "forms/screen_reader.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/surface.h"

namespace forms {
namespace {

/// Qt tells a screen reader that a plain widget is a filler, be it a window or the frame of a group.
class SpokenSurface : public QAccessibleWidget {
 public:
  explicit SpokenSurface(Surface* surface) : QAccessibleWidget(surface) {}

  QAccessible::Role role() const override {
    if (widget()->isWindow())
      return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
    return widget()->accessibleName().isEmpty() ? QAccessibleWidget::role() : QAccessible::Grouping;
  }
};

/// Qt lets the accessibility bus check a button without a click.
class SpokenOption : public QAccessibleWidget {
 public:
  SpokenOption(QAbstractButton* button, QAccessible::Role role)
      : QAccessibleWidget(button, role), button_(button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_->isChecked();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != toggleAction()) return QAccessibleWidget::doAction(name);
    button_->click();
  }

 private:
  QAbstractButton* button_;
};

/// Tells what the position stands for.
class SpokenSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SpokenSlider(QSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QVariant currentValue() const override { return spoken(slider_->value()); }
  void setCurrentValue(const QVariant& value) override {
    slider_->setValue(qRound(value.toDouble() / factor()));
  }
  QVariant minimumValue() const override {
    return std::min(spoken(slider_->minimum()), spoken(slider_->maximum()));
  }
  QVariant maximumValue() const override {
    return std::max(spoken(slider_->minimum()), spoken(slider_->maximum()));
  }
  QVariant minimumStepSize() const override { return std::abs(factor()); }

 private:
  double factor() const { return slider_->property(kSpokenFactor).toDouble(); }
  /// Adding nothing turns a negative zero into a plain one.
  double spoken(int position) const { return position * factor() + 0.0; }

  QSlider* slider_;
};

/// Object name of the widget of no size whose accessible name a screen reader is to say.
constexpr auto kAnnouncement = "announcement";

QAccessibleInterface* makeSpoken(const QString& /*kind*/, QObject* object) {
  if (auto* surface = dynamic_cast<Surface*>(object)) return new SpokenSurface(surface);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (widget->objectName() == kAnnouncement) return new QAccessibleWidget(widget, QAccessible::Notification);
  // Qt's own dialogs have buttons, sliders and frames, too.
  if (dynamic_cast<Surface*>(widget->window()) == nullptr) return nullptr;
  // Qt takes the outlines of a panel for windows.
  if (widget->metaObject() == &QFrame::staticMetaObject) return new QAccessibleWidget(widget);
  if (auto* option = qobject_cast<QRadioButton*>(widget))
    return new SpokenOption(option, QAccessible::RadioButton);
  if (auto* box = qobject_cast<QCheckBox*>(widget)) return new SpokenOption(box, QAccessible::CheckBox);
  if (auto* slider = qobject_cast<QSlider*>(widget)) return new SpokenSlider(slider);
  return nullptr;
}

using Widgets = QList<QPointer<QWidget>>;

/// Collects widgets that have something to tell when its time is over.
class Collector : public QTimer {
 public:
  Collector(int milliseconds, void (*tell)(const Widgets&)) : QTimer(qApp) {
    setSingleShot(true);
    setInterval(milliseconds);
    callOnTimeout(this, [this, tell] { tell(std::exchange(widgets_, {})); });
  }
  void add(QWidget* widget) {
    if (!widgets_.contains(widget)) widgets_ += widget;
  }

 private:
  Widgets widgets_;
};

Collector* changed = nullptr;
Collector* announced = nullptr;
/// What Qt has by itself between its widgets and the accessibility bus.
QAccessible::UpdateHandler qtHandler = nullptr;

void receive(QAccessibleEvent* event);

void passOn(QAccessibleEvent* event) {
  QAccessible::installUpdateHandler(qtHandler);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(receive);
}

void receive(QAccessibleEvent* event) {
  auto* widget = qobject_cast<QWidget*>(event->object());
  const bool isValue = event->type() == QAccessible::ValueChanged && qobject_cast<QSlider*>(widget);
  const bool isText = event->type() == QAccessible::NameChanged && qobject_cast<QLabel*>(widget);
  const bool isOurs = (isValue || isText) && dynamic_cast<Surface*>(widget->window()) != nullptr;
  if (!isOurs || !widget->isVisible() || widget->hasFocus()) return passOn(event);
  changed->add(widget);
  if (!changed->isActive()) changed->start();
}

void tellChanges(const Widgets& widgets) {
  for (QWidget* widget : widgets) {
    if (const auto* slider = qobject_cast<QSlider*>(widget)) {
      QAccessibleValueChangeEvent value(widget, slider->value());
      passOn(&value);
    } else if (widget != nullptr) {
      QAccessibleEvent text(widget, QAccessible::NameChanged);
      passOn(&text);
    }
  }
}

/// Readers say the name of a notification that is shown, wherever the focus is. Qt has
/// QAccessibleAnnouncementEvent for it from 6.8 on: ours can go with the last older Qt.
void tellAnnouncements(const Widgets& widgets) {
  QStringList words;
  QWidget* window = nullptr;
  for (const QWidget* widget : widgets) {
    if (widget == nullptr || !widget->isVisible()) continue;
    window = widget->window();
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    words += widget->accessibleName() + (line != nullptr ? " " + line->text() : QString());
  }
  if (window == nullptr) return;
  // A reader asks for the words later on: they stay until the next ones.
  static QPointer<QWidget> last;
  delete last;
  last = new QWidget;
  last->setObjectName(kAnnouncement);
  last->setAccessibleName(words.join(", "));
  last->setFixedSize(0, 0);
  // Last of all: from Qt 6.11 on a window's new child is described at once.
  last->setParent(window);
  last->show();
}

}  // namespace

void serveScreenReaders() {
  QAccessible::installFactory(makeSpoken);
  // While a slider moves, a few values a second are enough.
  changed = new Collector(300, tellChanges);
  // After what a reader says about the focus, and once for keys that repeat.
  announced = new Collector(500, tellAnnouncements);
  qtHandler = QAccessible::installUpdateHandler(receive);
}

void announce(QWidget& widget) {
  announced->add(&widget);
  announced->start();
}

}  // namespace forms
