#include "desktop/base/screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace fundlet {

namespace {

QScreen* ScreenOf(int number) {
  if (number == 0) return QGuiApplication::primaryScreen();
  return QGuiApplication::screens().value(number, nullptr);
}

}  // namespace

Screen::Screen(int number) {
  const QScreen* screen = ScreenOf(number);
  if (screen == nullptr) return;
  const QRect available = screen->availableGeometry();
  left_ = available.left();
  top_ = available.top();
  width_ = available.width();
  height_ = available.height();
}

}  // namespace fundlet
