#pragma once

#include <deque>
#include <memory>
#include <utility>

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

namespace fundlet {

// What the user does while a computation runs. The yields of the computation let Qt paint
// and move on every few milliseconds; the keys, clicks and requests to close that come meanwhile
// are held, and handed on in their order when the handler that computes has returned. The gesture
// that cancels (Escape, or Ctrl and full stop; Cmd on a Mac) is the exception: it takes effect at
// once.
//
// On some desktops a click reaches a window before the activation that it brings. It is held until
// then, so that what the activation does with the focus comes before what the user has clicked on.
class HeldInput : public QObject {
 public:
  HeldInput();
  ~HeldInput() override;

  bool eventFilter(QObject* object, QEvent* event) override;
  // Hands on what is held, one event after the other; to be called whenever no handler runs.
  void ScheduleReplay();

 private:
  struct Held {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  static int BackgroundTick();
  void PumpIfDue();
  bool IsUnmarkedRepeat(QObject* object, const QEvent& event);
  static void DeliverAsRepeat(QObject* object, QEvent& event);
  bool MustHold() const;
  bool ComesBeforeActivation(QObject* object, const QEvent& event) const;
  void StopAwaiting();
  bool Hold(QObject* object, QEvent* event);
  void ReplayNext();
  static void Deliver(QObject& receiver, QEvent& event);

  std::deque<Held> held_;
  QPointer<QWindow> awaited_;  // the window that a held click activates
  QTimer activation_timer_;
  std::pair<quint32, quint64> last_release_;  // the key, and when
  QElapsedTimer since_pump_;
  bool pumping_ = false;
  bool replaying_ = false;
  bool replay_scheduled_ = false;
};

}  // namespace fundlet
