// What a person does while the program waits for a tool, kept for afterwards.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <deque>
#include <memory>

class QEvent;

namespace forms {

/// Stands between Qt and all windows. Qt could leave input unserved by itself; but then the closing of a
/// window stays unserved too, which Qt takes for input, and a key does not, once a screen reader runs: the
/// accessibility bus sees it first, and its answer posts the key like any other event.
class HeldInput : public QObject {
 public:
  /// Lets all input through until `hold`.
  explicit HeldInput(QObject* application);

  /// Keeps input from here on.
  void hold() { holding_ = true; }
  bool isHolding() const { return holding_; }

  /// Serves what was kept, in its order, one event at each turn of the event loop: serving one can open a
  /// dialog that needs those that follow. Input that comes meanwhile waits behind it.
  void release();
  /// True while a next turn of the event loop has something to serve.
  bool isServing() const { return !holding_ && !held_.empty(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Held {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
    /// Of a mouse event: Qt moves its point, copies included, along with the mouse.
    QPointF place, scenePlace, globalPlace;
  };

  void keep(QObject* receiver, const QEvent& event);
  void serveNext();
  void serve(QObject* receiver, QEvent& event);

  bool holding_ = false;
  std::deque<Held> held_;
  const QEvent* served_ = nullptr;
};

}  // namespace forms
