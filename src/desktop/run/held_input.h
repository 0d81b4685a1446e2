#pragma once

#include <deque>
#include <memory>
#include <utility>

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace fundlet {

// Holds the user's input while a computation runs. The computation's yields let Qt deliver events
// every few milliseconds. Keys, clicks, text of input methods and requests to close are kept, and
// delivered in their order when the handler has returned. Only the cancel keys (Escape, Ctrl+full
// stop; Cmd+full stop on a Mac) act at once. Qt makes clicks of a touch or a pen, which are held
// like those of the mouse.
//
// On Wayland a click reaches a window before the activation that it causes. The click is held until
// the activation has set the focus.
//
// Also discards the input to windows beneath an open dialog (BlockingDialog::Blocks), marks key
// repeats that Qt does not mark, and applies the rules for keys (ApplyKeyRules).
class HeldInput : public QObject {
 public:
  HeldInput();
  ~HeldInput() override;

  bool eventFilter(QObject* object, QEvent* event) override;
  // Delivers the held events, one by one. To be called whenever the last handler has returned.
  void ScheduleReplay();

 private:
  struct Held {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  bool IsUnmarkedRepeat(QObject* object, const QEvent& event);
  static void DeliverAsRepeat(QObject* object, QEvent& event);
  bool MustHold() const;
  bool ComesBeforeActivation(QObject* object, const QEvent& event) const;
  void StopAwaiting();
  void Hold(QObject* object, QEvent* event);
  void ReplayNext();

  std::deque<Held> held_;
  QTimer activation_timer_;  // runs while a held click waits for the activation of its window
  std::pair<quint32, quint64> last_release_;  // of a key: scan code and time stamp
  bool pumping_ = false;
  bool replaying_ = false;
  bool replay_scheduled_ = false;
};

}  // namespace fundlet
