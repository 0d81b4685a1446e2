#include "desktop/controls/progress_wheel.h"

#include <QBasicTimer>
#include <QPainter>
#include <QTimerEvent>
#include <QWidget>

#include "desktop/accessibility/accessible_interfaces.h"

namespace fundlet {

namespace {

constexpr int kSpokes = 12;
constexpr int kMillisecondsPerSpoke = 60;

class WheelWidget : public QWidget {
 public:
  WheelWidget() {
    // Set before the name, because setAccessibleName() makes Qt create and keep the interface.
    SetAccessibleRole(*this, QAccessible::Animation);
    setAccessibleName("Busy");
  }

 protected:
  void showEvent(QShowEvent* /*event*/) override { timer_.start(kMillisecondsPerSpoke, this); }
  void hideEvent(QHideEvent* /*event*/) override { timer_.stop(); }

  void timerEvent(QTimerEvent* event) override {
    if (event->timerId() != timer_.timerId()) return;
    turn_ = (turn_ + 1) % kSpokes;
    update();
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.rotate(turn_ * 360.0 / kSpokes);
    const double radius = qMin(width(), height()) / 2.0;
    for (int spoke = 0; spoke < kSpokes; ++spoke) {
      QColor colour = palette().color(QPalette::WindowText);
      colour.setAlphaF(static_cast<float>(spoke + 1) / kSpokes);
      painter.setPen(QPen(colour, radius / 5, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
      painter.rotate(360.0 / kSpokes);
    }
  }

 private:
  QBasicTimer timer_;
  int turn_ = 0;
};

}  // namespace

ProgressWheel::ProgressWheel(ControlOwner& owner) : ShapeControl(owner, new WheelWidget) {}

}  // namespace fundlet
