#include "desktop/base/screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace fundlet {

Screen::Screen(int number) {
  const QScreen* screen = QGuiApplication::screens().value(number);  // the primary one is the first
  if (screen == nullptr) return;
  screen->availableGeometry().getRect(&AvailableLeft, &AvailableTop, &AvailableWidth,
                                      &AvailableHeight);
}

}  // namespace fundlet
