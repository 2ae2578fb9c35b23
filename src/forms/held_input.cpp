#include "forms/held_input.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>
#include <utility>

namespace forms {
namespace {

/// A mouse event as it was, at the places that it had. Taking the base over keeps the mark of what a person
/// did, without which Qt gives no focus by a click.
class MouseEventAgain : public QMouseEvent {
 public:
  MouseEventAgain(const QMouseEvent& event, QPointF place, QPointF scenePlace, QPointF globalPlace)
      : QMouseEvent(event.type(), place, scenePlace, globalPlace, event.button(), event.buttons(),
                    event.modifiers(), event.pointingDevice()) {
    const quint64 time = event.timestamp();
    QEvent::operator=(event);
    setTimestamp(time);
  }
};

bool isMouse(const QEvent& event) {
  return event.type() == QEvent::MouseMove || event.type() == QEvent::MouseButtonPress ||
         event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::MouseButtonDblClick;
}

}  // namespace

HeldInput::HeldInput(QObject* application) : QObject(application) {
  application->installEventFilter(this);
}

bool HeldInput::eventFilter(QObject* watched, QEvent* event) {
  if (std::exchange(served_, nullptr) == event) return false;
  if (!holding_ && held_.empty()) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // A key that is taken here goes to its window next, and not to a shortcut.
      event->accept();
      return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
      // Qt turns into mouse events what no window takes.
      event->ignore();
      return watched->isWindowType();
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (!watched->isWindowType()) return false;
      keep(static_cast<QWindow*>(watched), *event);
      return true;
    default:
      return false;
  }
}

void HeldInput::keep(QWindow* window, const QEvent& event) {
  const bool isMove = event.type() == QEvent::MouseMove;
  if (isMove && !held_.empty() && held_.back().window == window &&
      held_.back().event->type() == QEvent::MouseMove)
    held_.pop_back();
  Held kept{window, std::unique_ptr<QEvent>(event.clone()), {}, {}, {}};
  if (isMouse(event)) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    kept.place = mouse.position();
    kept.scenePlace = mouse.scenePosition();
    kept.globalPlace = mouse.globalPosition();
  }
  held_.push_back(std::move(kept));
}

void HeldInput::release() {
  holding_ = false;
  if (!held_.empty()) QMetaObject::invokeMethod(this, &HeldInput::serveNext, Qt::QueuedConnection);
}

void HeldInput::serveNext() {
  if (holding_ || held_.empty()) return;
  const Held next = std::move(held_.front());
  held_.pop_front();
  release();
  // A dialog that has come up meanwhile takes all input, as it does when Qt serves it.
  const QWindow* modal = QGuiApplication::modalWindow();
  if (!next.window || (modal != nullptr && modal != next.window && !modal->isAncestorOf(next.window))) return;
  if (isMouse(*next.event)) {
    MouseEventAgain again(static_cast<const QMouseEvent&>(*next.event), next.place, next.scenePlace,
                          next.globalPlace);
    serve(next.window, again);
  } else {
    serve(next.window, *next.event);
  }
}

void HeldInput::serve(QWindow* window, QEvent& event) {
  served_ = &event;
  // `sendEvent` would take the mark off that a person's input bears.
  qApp->notify(window, &event);
}

}  // namespace forms
