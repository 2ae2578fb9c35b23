#include "forms/held_input.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace forms {
namespace {

enum class Receiver { Window, Widget, Slider };

enum class Fate {
  Kept,    ///< served after the wait, in its turn
  Taken,   ///< dropped; Qt believes that it was used
  Refused  ///< dropped; Qt believes that it was not used
};

struct Rule {
  QEvent::Type type;
  Receiver receiver = Receiver::Window;
  Fate fate = Fate::Kept;
};

/// What becomes of an event in a wait. All others go through: the desktop's (painting, sizes, states, focus),
/// and those that ask for an answer (a drag that passes over, an input method, the closing of a window).
constexpr Rule kRules[] = {
    // Widgets get mouse and keys by way of their window.
    {QEvent::MouseMove, Receiver::Window, Fate::Kept},
    {QEvent::MouseButtonPress, Receiver::Window, Fate::Kept},
    {QEvent::MouseButtonRelease, Receiver::Window, Fate::Kept},
    {QEvent::MouseButtonDblClick, Receiver::Window, Fate::Kept},
    {QEvent::Wheel, Receiver::Window, Fate::Kept},
    {QEvent::ContextMenu, Receiver::Window, Fate::Kept},
    {QEvent::KeyPress, Receiver::Window, Fate::Kept},
    {QEvent::KeyRelease, Receiver::Window, Fate::Kept},
    {QEvent::Drop, Receiver::Window, Fate::Kept},
    // Composed text: dead keys and input methods.
    {QEvent::InputMethod, Receiver::Widget, Fate::Kept},
    // A slider's timer repeats what a pressed mouse does to it, and the release may be among what is kept.
    {QEvent::Timer, Receiver::Slider, Fate::Kept},
    // A key that is taken here goes to its window next, and not to a shortcut.
    {QEvent::ShortcutOverride, Receiver::Widget, Fate::Taken},
    // The mouse may have gone on from where the tip would show.
    {QEvent::ToolTip, Receiver::Widget, Fate::Taken},
    // Qt turns into mouse events what no window takes. None takes those of a tablet, nor gestures, anyway.
    {QEvent::TouchBegin, Receiver::Window, Fate::Refused},
    {QEvent::TouchUpdate, Receiver::Window, Fate::Refused},
    {QEvent::TouchEnd, Receiver::Window, Fate::Refused},
};

bool isReceiver(const QObject& object, Receiver receiver) {
  if (receiver == Receiver::Window) return object.isWindowType();
  return receiver == Receiver::Widget ? object.isWidgetType() : object.inherits("QAbstractSlider");
}

/// A mouse event as it was, at the places that it had. Taking the base over keeps the mark of what a person
/// did, without which Qt gives no focus by a click.
class RestoredMouseEvent : public QMouseEvent {
 public:
  RestoredMouseEvent(const QMouseEvent& event, QPointF place, QPointF scenePlace, QPointF globalPlace)
      : QMouseEvent(event.type(), place, scenePlace, globalPlace, event.button(), event.buttons(),
                    event.modifiers(), event.pointingDevice()) {
    const quint64 time = event.timestamp();
    QEvent::operator=(event);
    setTimestamp(time);
  }
};

/// A drop with data of its own: those of a real one go with the answer to the desktop.
class KeptDrop : public QDropEvent {
 public:
  explicit KeptDrop(const QDropEvent& drop)
      : QDropEvent(drop.position(), drop.possibleActions(), &data_, drop.buttons(), drop.modifiers()) {
    if (drop.mimeData()->hasText()) data_.setText(drop.mimeData()->text());
    if (drop.mimeData()->hasUrls()) data_.setUrls(drop.mimeData()->urls());
  }

 private:
  QMimeData data_;
};

/// Of a mouse that moves the last place counts. In front of a double click Qt sends a press that it marks,
/// and that no widget gets; a copy would lose the mark.
bool replaces(const QEvent& event, const QEvent& before) {
  if (event.type() == QEvent::MouseButtonDblClick) return before.type() == QEvent::MouseButtonPress;
  return event.type() == QEvent::MouseMove && before.type() == QEvent::MouseMove;
}

std::unique_ptr<QEvent> copyOf(const QEvent& event) {
  if (event.type() != QEvent::Drop) return std::unique_ptr<QEvent>(event.clone());
  return std::make_unique<KeptDrop>(static_cast<const QDropEvent&>(event));
}

}  // namespace

HeldInput::HeldInput(QObject* application) : QObject(application) {
  application->installEventFilter(this);
}

bool HeldInput::eventFilter(QObject* watched, QEvent* event) {
  if (event == served_) return false;
  if (!holding_ && held_.empty()) return false;
  const auto* rule = std::ranges::find(kRules, event->type(), &Rule::type);
  if (rule == std::end(kRules) || !isReceiver(*watched, rule->receiver)) return false;
  if (rule->fate == Fate::Kept) keep(watched, *event);
  // Whoever drops something keeps what was dropped.
  if (event->type() == QEvent::Drop) static_cast<QDropEvent*>(event)->setDropAction(Qt::CopyAction);
  event->setAccepted(rule->fate != Fate::Refused);
  return true;
}

void HeldInput::keep(QObject* receiver, const QEvent& event) {
  // A slider's timer comes again. It must not come after a release that is yet to stop it: Qt may have given
  // the timer's number to that of a later press by then.
  const auto isReleaseOrTimer = [](const Held& held) {
    return held.event->type() == QEvent::MouseButtonRelease || held.event->type() == QEvent::Timer;
  };
  if (event.type() == QEvent::Timer && std::ranges::any_of(held_, isReleaseOrTimer)) return;
  if (!held_.empty() && held_.back().receiver == receiver && replaces(event, *held_.back().event))
    held_.pop_back();
  Held kept{receiver, copyOf(event), {}, {}, {}};
  if (const auto* mouse = dynamic_cast<const QMouseEvent*>(&event)) {
    kept.place = mouse->position();
    kept.scenePlace = mouse->scenePosition();
    kept.globalPlace = mouse->globalPosition();
  }
  held_.push_back(std::move(kept));
}

void HeldInput::release() {
  holding_ = false;
  if (!held_.empty()) QMetaObject::invokeMethod(this, &HeldInput::serveNext, Qt::QueuedConnection);
}

void HeldInput::serveNext() {
  if (holding_ || held_.empty()) return;
  Held next = std::move(held_.front());
  held_.pop_front();
  release();
  // What was typed before may have moved the focus on.
  QObject* receiver = next.receiver;
  if (next.event->type() == QEvent::InputMethod) receiver = QGuiApplication::focusObject();
  if (receiver == nullptr) return;
  // A dialog that has come up meanwhile takes all input, as it does when Qt serves it.
  const QWindow* modal = QGuiApplication::modalWindow();
  const auto* window = qobject_cast<QWindow*>(receiver);
  if (window != nullptr && modal != nullptr && modal != window && !modal->isAncestorOf(window)) return;
  if (const auto* mouse = dynamic_cast<const QMouseEvent*>(next.event.get()))
    next.event = std::make_unique<RestoredMouseEvent>(*mouse, next.place, next.scenePlace, next.globalPlace);
  if (const auto* drop = dynamic_cast<const QDropEvent*>(next.event.get())) {
    // Qt may have let go of the widget under the drag meanwhile.
    QDragEnterEvent enter(drop->position().toPoint(), drop->possibleActions(), drop->mimeData(),
                          drop->buttons(), drop->modifiers());
    qApp->notify(receiver, &enter);
  }
  served_ = next.event.get();
  // `sendEvent` would take the mark off that a person's input bears.
  qApp->notify(receiver, next.event.get());
  served_ = nullptr;
}

}  // namespace forms
