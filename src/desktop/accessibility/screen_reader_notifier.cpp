#include "desktop/accessibility/screen_reader_notifier.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QWidget>

#include "desktop/accessibility/accessible_interfaces.h"
#include "desktop/base/run_state.h"

namespace fundlet {

namespace {

bool ChangesNothing(const QAccessibleEvent& event) {
  if (event.type() != QAccessible::TextUpdated) return false;
  const auto& update = static_cast<const QAccessibleTextUpdateEvent&>(event);
  return update.textRemoved() == update.textInserted();
}

bool BecomesActive(const QAccessibleEvent& event) {
  if (!static_cast<const QAccessibleStateChangeEvent&>(event).changedStates().active) return false;
  const QAccessibleInterface* window = event.accessibleInterface();
  return window != nullptr && window->state().active;
}

}  // namespace

ScreenReaderNotifier::ScreenReaderNotifier() {
  InstallAccessibleInterfaces();
  QAccessible::installUpdateHandler(&ScreenReaderNotifier::OnEvent);
}

ScreenReaderNotifier::~ScreenReaderNotifier() { QAccessible::installUpdateHandler(nullptr); }

void ScreenReaderNotifier::OnEvent(QAccessibleEvent* event) {
  auto* notifier = RunState::Find<ScreenReaderNotifier>();
  if (notifier == nullptr || !notifier->HoldsBack(*event)) Send(*event);
}

bool ScreenReaderNotifier::HoldsBack(const QAccessibleEvent& event) {
  // Parts of a widget, such as the items of a menu, have no object of their own.
  const bool whole = event.object() != nullptr && event.child() == -1;
  switch (event.type()) {
    case QAccessible::Focus:
      focused_ = whole ? event.object() : nullptr;
      if (!whole) known_ = {};
      if (whole) NotifyLater();
      return whole;
    case QAccessible::PopupMenuEnd:
      // Qt sends no focus event when a menu closes.
      NotifyFocusLater();
      return false;
    case QAccessible::StateChanged:
      // After a window becomes active, a screen reader expects a focus event, which is sent again
      // if it has been sent before. Only then: Orca skips a focus event when a newer one has come,
      // and the caret event between the two moves Orca's focus silently.
      if (BecomesActive(event)) {
        known_ = {};
        NotifyFocusLater();
      }
      return false;
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
      if (!whole || event.object() != known_.object) return ChangesNothing(event);
      NotifyLater();
      return true;
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
      if (whole) NotifyLater();
      return whole;
    default:
      return false;
  }
}

void ScreenReaderNotifier::NotifyLater() {
  if (std::exchange(due_, true)) return;
  QMetaObject::invokeMethod(this, &ScreenReaderNotifier::Notify, Qt::QueuedConnection);
}

void ScreenReaderNotifier::NotifyFocusLater() {
  const auto notify = [this] {
    if (QApplication::activePopupWidget() != nullptr || QApplication::focusWidget() == nullptr)
      return;
    focused_ = QApplication::focusWidget();
    NotifyLater();
  };
  QMetaObject::invokeMethod(this, notify, Qt::QueuedConnection);
}

void ScreenReaderNotifier::Notify() {
  due_ = false;
  const Known before = std::exchange(known_, {});
  QObject* focused = std::exchange(focused_, nullptr);
  if (focused == nullptr) focused = before.object;
  known_ = StateOf(focused);
  if (focused != nullptr && focused != before.object) {
    QAccessibleEvent event(focused, QAccessible::Focus);
    Send(event);
    NotifyText(before, StateOf(before.object));
    NotifySelection({}, known_);
  } else {
    NotifyText(before, known_);
    NotifySelection(before, known_);
  }
  for (const Announcement& announcement : std::exchange(announcements_, {})) {
    if (announcement.widget != nullptr) Say(*announcement.widget, announcement.text);
  }
}

ScreenReaderNotifier::Known ScreenReaderNotifier::StateOf(QObject* object) {
  Known known;
  known.object = object;
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(object);
  QAccessibleTextInterface* text = interface != nullptr ? interface->textInterface() : nullptr;
  if (text == nullptr) return known;
  known.text = text->text(0, text->characterCount());
  known.caret = text->cursorPosition();
  if (text->selectionCount() > 0) text->selection(0, &known.selected_from, &known.selected_to);
  return known;
}

// updateAccessibility() always calls the installed handler, so OnEvent is removed while the event
// is sent.
void ScreenReaderNotifier::Send(QAccessibleEvent& event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&event);
  QAccessible::installUpdateHandler(&ScreenReaderNotifier::OnEvent);
}

void ScreenReaderNotifier::NotifyText(const Known& before, const Known& now) {
  if (now.object == nullptr || before.text == now.text) return;
  // The text behind the caret has most likely not changed.
  const auto limit = std::min(before.text.size(), now.text.size());
  const auto behind_caret = std::min(limit, now.text.size() - std::max(now.caret, 0));
  qsizetype tail = 0;
  while (tail < behind_caret &&
         before.text.at(before.text.size() - 1 - tail) == now.text.at(now.text.size() - 1 - tail)) {
    ++tail;
  }
  qsizetype head = 0;
  while (head < limit - tail && before.text.at(head) == now.text.at(head)) ++head;
  QAccessibleTextUpdateEvent event(now.object, static_cast<int>(head),
                                   before.text.mid(head, before.text.size() - head - tail),
                                   now.text.mid(head, now.text.size() - head - tail));
  Send(event);
}

void ScreenReaderNotifier::NotifySelection(const Known& before, const Known& now) {
  if (now.caret == -1) return;
  if (now.caret != before.caret) {
    QAccessibleTextCursorEvent event(now.object, now.caret);
    Send(event);
  }
  if (now.selected_from != before.selected_from || now.selected_to != before.selected_to) {
    QAccessibleTextSelectionEvent event(now.object, now.selected_from, now.selected_to);
    Send(event);
  }
}

void ScreenReaderNotifier::Announce(QWidget& widget, const QString& text) {
  auto* notifier = RunState::Find<ScreenReaderNotifier>();
  if (notifier == nullptr || !QAccessible::isActive() || !widget.isActiveWindow()) return;
  notifier->announcements_.push_back({&widget, text});
  notifier->NotifyLater();
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void ScreenReaderNotifier::Say(QWidget& widget, const QString& text) {
  QAccessibleAnnouncementEvent event(&widget, text);
  Send(event);
}

#elif defined(Q_OS_WIN)

// Qt calls UiaRaiseNotificationEvent(), by which Windows has a text spoken, only for a changed
// value that is a text.
void ScreenReaderNotifier::Say(QWidget& widget, const QString& text) {
  QAccessibleValueChangeEvent event(&widget, text);
  Send(event);
}

#else

// Screen readers speak the name of a notification when an ObjectShow event is sent for it. It is a
// child without a size, so that the widget keeps its own role and description.
void ScreenReaderNotifier::Say(QWidget& widget, const QString& text) {
  static constexpr const char* kName = "fundlet notification";
  auto* notification = widget.findChild<QWidget*>(kName, Qt::FindDirectChildrenOnly);
  if (notification == nullptr) {
    notification = new QWidget(&widget);
    notification->setObjectName(kName);
    SetAccessibleRole(*notification, QAccessible::Notification);
  }
  notification->setAccessibleName(text);
  QAccessibleEvent event(notification, QAccessible::ObjectShow);
  Send(event);
}

#endif

}  // namespace fundlet
