#include "desktop/run/lost_releases.h"

#include <windows.h>

#include <QCoreApplication>

namespace fundlet {

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

}  // namespace fundlet
