#include "desktop/run/key_rules.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

// The function with which QTest sends a synthetic key through Qt's normal path: first
// ShortcutOverride, then the shortcuts.
QT_BEGIN_NAMESPACE
// NOLINTNEXTLINE(misc-use-internal-linkage)
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool repeated, ushort count);
QT_END_NAMESPACE

namespace fundlet {

namespace {

// The modifiers of the key without those that type: AltGr is Control and Alt on Windows, and the
// Option key of a Mac is Alt.
Qt::KeyboardModifiers CommandModifiers(const QKeyEvent& key) {
#if defined(Q_OS_MACOS)
  return key.modifiers() & ~Qt::AltModifier;
#elif defined(Q_OS_WIN)
  const bool alt_gr = key.modifiers().testFlags(Qt::ControlModifier | Qt::AltModifier);
  return alt_gr ? key.modifiers() & ~Qt::AltModifier : key.modifiers();
#else
  return key.modifiers();
#endif
}

// Whether the widget would enter the text of a key with Alt or Meta.
bool EntersCommand(const QObject& object, const QKeyEvent& key) {
  const auto* widget = qobject_cast<const QWidget*>(&object);
  if (widget == nullptr || !widget->testAttribute(Qt::WA_InputMethodEnabled)) return false;
  return CommandModifiers(key).testAnyFlags(Qt::AltModifier | Qt::MetaModifier) &&
         !key.text().isEmpty() && key.text().at(0).isPrint();
}

// The digit, 1 to 9, of a key in the digits' row that types another character and is pressed with
// Control alone; 0 for every other key.
int DigitOnShift(const QObject& object, const QKeyEvent& key) {
#ifdef Q_OS_WIN
  constexpr quint32 kScanCodeOfZero = 1;
#else
  constexpr quint32 kScanCodeOfZero = 9;
#endif
  const quint32 digit = key.nativeScanCode() - kScanCodeOfZero;
  const bool is_digit = key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
  const bool shortcut = object.isWindowType() && key.modifiers() == Qt::ControlModifier;
  return shortcut && !is_digit && digit <= 9 ? static_cast<int>(digit) : 0;
}

}  // namespace

bool ChoosesShortcut(QObject& window, const QKeyEvent& key) {
  return qt_sendShortcutOverrideEvent(&window, key.timestamp(), key.key(), key.modifiers(),
                                      key.text(), key.isAutoRepeat(), 1);
}

bool ApplyKeyRules(QObject& receiver, QKeyEvent& press) {
  if (EntersCommand(receiver, press)) {
    press.ignore();
    return true;
  }
  const int digit = DigitOnShift(receiver, press);
  const QKeyEvent shortcut(QEvent::KeyPress, Qt::Key_0 + digit, press.modifiers(), QString(),
                           press.isAutoRepeat());
  return digit != 0 && ChoosesShortcut(receiver, shortcut);
}

#ifdef Q_OS_WIN

namespace {

constexpr LPARAM kWasDown = LPARAM{KF_REPEAT} << 16;
constexpr LPARAM kIsReleased = LPARAM{KF_UP} << 16;

// Qt delivers each release of a modifier key, also one that follows no press.
bool IsModifier(WPARAM key) {
  return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU || key == VK_LWIN || key == VK_RWIN;
}

}  // namespace

LostReleases::LostReleases() { QCoreApplication::instance()->installNativeEventFilter(this); }

bool LostReleases::nativeEventFilter(const QByteArray& /*type*/, void* message,
                                     qintptr* /*result*/) {
  const auto& key = *static_cast<const MSG*>(message);
  const bool pressed = key.message == WM_KEYDOWN || key.message == WM_SYSKEYDOWN;
  if (pressed && (key.lParam & kWasDown) == 0 && !IsModifier(key.wParam)) {
    SendMessageW(key.hwnd, WM_KEYUP, key.wParam, key.lParam | kWasDown | kIsReleased);
  }
  return false;
}

#endif

}  // namespace fundlet
