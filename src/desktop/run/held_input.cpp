#include "desktop/run/held_input.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWindow>

#include "desktop/base/application.h"
#include "desktop/base/run_state.h"
#include "desktop/drawing/own_frame.h"
#include "desktop/run/key_rules.h"
#include "desktop/windows/blocking_dialog.h"
#include "desktop/windows/native_window.h"
#include "services/background.h"

namespace fundlet {

namespace {

// The number of yields after which a computation lets Qt deliver events; they take some
// milliseconds.
constexpr int kYieldsPerTick = 500'000;

// How long a click waits for the activation of its window, which the compositor may refuse.
constexpr int kActivationTimeoutMs = 200;

bool IsTouch(const QEvent& event) {
  return event.type() == QEvent::TouchBegin || event.type() == QEvent::TouchUpdate ||
         event.type() == QEvent::TouchEnd;
}

// The event as a press, a release or a ShortcutOverride of a key; null if it is none.
const QKeyEvent* KeyOf(const QEvent& event) { return dynamic_cast<const QKeyEvent*>(&event); }

bool IsUserInput(const QEvent& event) {
  const QEvent::Type type = event.type();
  return KeyOf(event) != nullptr || dynamic_cast<const QMouseEvent*>(&event) != nullptr ||
         type == QEvent::Wheel || type == QEvent::InputMethod || type == QEvent::ContextMenu ||
         type == QEvent::Close;
}

bool IsShortcutRepeat(const QEvent& event) {
  const QKeyEvent* key = KeyOf(event);
  return key != nullptr && key->isAutoRepeat() && key->modifiers().testFlag(Qt::ControlModifier);
}

bool IsCancelGesture(const QEvent& event) {
  const QKeyEvent* key = KeyOf(event);
  if (key == nullptr) return false;
  const auto modifiers = key->modifiers() & ~Qt::KeypadModifier;
  return (key->key() == Qt::Key_Escape && modifiers == Qt::NoModifier) ||
         // On French and other layouts the full stop needs Shift.
         (key->key() == Qt::Key_Period && (modifiers & ~Qt::ShiftModifier) == Qt::ControlModifier);
}

}  // namespace

HeldInput::HeldInput() {
  QCoreApplication::instance()->installEventFilter(this);
  activation_timer_.callOnTimeout(this, &HeldInput::StopAwaiting);
  SetBackgroundTask([] {
    const QScopedValueRollback pumping(RunState::Of<HeldInput>().pumping_, true);
    QCoreApplication::processEvents();
    return kYieldsPerTick;
  });
}

HeldInput::~HeldInput() { SetBackgroundTask(nullptr); }

bool HeldInput::MustHold() const {
  const bool behind_held = !held_.empty() && !replaying_ && !Gate().Busy();
  return pumping_ || activation_timer_.isActive() || behind_held;
}

bool HeldInput::ComesBeforeActivation(QObject* object, const QEvent& event) const {
  return QGuiApplication::platformName().startsWith("wayland") && !replaying_ &&
         event.type() == QEvent::MouseButtonPress && object->isWindowType() &&
         object != QGuiApplication::focusWindow() && NativeWindow::Of(object) != nullptr &&
         !BlockingDialog::IsOpen() && QApplication::activePopupWidget() == nullptr &&
         !OwnFrame::IsOnTitle(object, event);
}

void HeldInput::StopAwaiting() {
  activation_timer_.stop();
  ScheduleReplay();
}

// If the release and the press of an auto-repeat reach Qt separately, Qt takes them for a release
// and a new press. Equal time stamps give them away: nobody does both within a millisecond.
// Not on Windows, where Qt marks each auto-repeat, and sets the time stamps itself.
bool HeldInput::IsUnmarkedRepeat(QObject* object, const QEvent& event) {
  const QKeyEvent* key = KeyOf(event);
  if (key == nullptr || !object->isWindowType()) return false;
  if (QGuiApplication::platformName() == "windows") return false;
  // Keys that come through the accessibility service carry no time stamp.
  if (key->nativeScanCode() == 0 || key->timestamp() == 0) return false;
  const std::pair stroke(key->nativeScanCode(), key->timestamp());
  if (event.type() == QEvent::KeyRelease) last_release_ = stroke;
  return event.type() != QEvent::KeyRelease && !key->isAutoRepeat() && stroke == last_release_;
}

// Delivers, marked as an auto-repeat, a repeat that Qt did not mark.
void HeldInput::DeliverAsRepeat(QObject* object, QEvent& event) {
  event.accept();
  if (event.type() != QEvent::KeyPress) return;
  const auto& key = static_cast<const QKeyEvent&>(event);
  QKeyEvent repeat(key.type(), key.key(), key.modifiers(), key.nativeScanCode(),
                   key.nativeVirtualKey(), key.nativeModifiers(), key.text(), true);
  QCoreApplication::sendEvent(object, &repeat);
}

bool HeldInput::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::WindowActivate && activation_timer_.isActive()) StopAwaiting();
  // A request to quit from the desktop environment closes an open message, and the handler that has
  // opened it goes on. The request must also end the program, even during the start.
  if (event->type() == QEvent::Quit && object == qApp && BlockingDialog::IsOpen()) Quit(0);
  // Some widgets would accept the touch, and it would act at once. Ignored, it becomes a click.
  if (IsTouch(*event) && object->isWindowType()) {
    event->ignore();
    return MustHold() || BlockingDialog::Blocks(object, *event);
  }
  if (!IsUserInput(*event)) return false;
  if (IsUnmarkedRepeat(object, *event)) {
    DeliverAsRepeat(object, *event);
    return true;
  }
  if (pumping_ && IsCancelGesture(*event)) {
    if (event->type() == QEvent::KeyPress) SetUserCancelled(true);
    event->accept();
    return true;
  }
  if (!MustHold() && ComesBeforeActivation(object, *event)) {
    activation_timer_.start(kActivationTimeoutMs);
  }
  if (MustHold()) {
    Hold(object, event);
    return true;
  }
  if (BlockingDialog::Blocks(object, *event)) {
    event->accept();
    return true;
  }
  return event->type() == QEvent::KeyPress &&
         ApplyKeyRules(*object, static_cast<QKeyEvent&>(*event));
}

void HeldInput::Hold(QObject* object, QEvent* event) {
  event->setAccepted(event->type() != QEvent::Close);
  // Not queued: ShortcutOverride, which ReplayNext sends again (ChoosesShortcut), and repeats of a
  // shortcut, which acts once.
  if (event->type() != QEvent::ShortcutOverride && !IsShortcutRepeat(*event)) {
    held_.push_back({object, std::unique_ptr<QEvent>(event->clone())});
  }
}

void HeldInput::ScheduleReplay() {
  if (held_.empty() || std::exchange(replay_scheduled_, true)) return;
  QMetaObject::invokeMethod(this, &HeldInput::ReplayNext, Qt::QueuedConnection);
}

void HeldInput::ReplayNext() {
  replay_scheduled_ = false;
  // While a handler runs, nothing is delivered: the gate calls ScheduleReplay when it is idle.
  if (held_.empty() || activation_timer_.isActive() || Gate().Busy()) return;
  const Held next = std::move(held_.front());
  held_.pop_front();
  if (next.receiver != nullptr) {
    const QScopedValueRollback replaying(replaying_, true);
    const QKeyEvent* press = next.event->type() == QEvent::KeyPress ? KeyOf(*next.event) : nullptr;
    if (press == nullptr || !ChoosesShortcut(*next.receiver, *press)) {
      QCoreApplication::sendEvent(next.receiver, next.event.get());
    }
  }
  ScheduleReplay();
}

}  // namespace fundlet
