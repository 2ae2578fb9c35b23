// What a person does while the program waits for a tool, kept for afterwards.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <deque>
#include <memory>

class QEvent;

namespace forms {

/// Stands between Qt and all windows. Qt can leave input unserved by itself, but takes the closing of a
/// window for input, and lets keys through once a screen reader runs: the accessibility bus sees them first,
/// and Qt posts them when it answers.
class HeldInput : public QObject {
 public:
  explicit HeldInput(QObject* application);

  /// Keeps input from here on.
  void hold() { holding_ = true; }
  bool isHolding() const { return holding_; }

  /// Stops keeping, and has the event loop serve what was kept, in its order, one event at each turn of the
  /// event loop: one can open a dialog that needs the next. Input that comes meanwhile waits its turn.
  void release();
  /// True while a next turn of the event loop has something to serve.
  bool isServing() const { return !holding_ && !held_.empty(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Held {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
    /// Those of a mouse event: Qt moves the event's own along with the mouse, in copies too.
    QPointF place, scenePlace, globalPlace;
  };

  void keep(QObject* receiver, const QEvent& event);
  void serveNext();

  bool holding_ = false;
  std::deque<Held> held_;
  const QEvent* served_ = nullptr;  ///< is being delivered, so that the filter lets it through
};

}  // namespace forms
