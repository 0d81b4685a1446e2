#include "desktop/controls/shapes.h"

#include <array>

#include <QBasicTimer>
#include <QPainter>
#include <QWidget>

#include "desktop/accessibility/accessible_interfaces.h"

namespace fundlet {

namespace {

constexpr int kSpokes = 12;
constexpr int kMillisecondsPerSpoke = 60;

QColor ColourOfText(const QWidget& widget, float opacity) {
  QColor colour = widget.palette().color(QPalette::WindowText);
  colour.setAlphaF(opacity);
  return colour;
}

class RuleWidget : public QWidget {
 public:
  RuleWidget() { SetAccessibleRole(*this, QAccessible::Separator); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter(this).fillRect(0, height() / 2 - 1, width(), 1, ColourOfText(*this, 0.35F));
  }
};

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

  void timerEvent(QTimerEvent* /*event*/) override {
    turn_ = (turn_ + 1) % kSpokes;
    update();
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.rotate(turn_ * 360.0 / kSpokes);
    const double radius = qMin(width(), height()) / 2.0;
    for (int spoke = 1; spoke <= kSpokes; ++spoke) {
      const QColor colour = ColourOfText(*this, static_cast<float>(spoke) / kSpokes);
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

PropertyTable ShapeControl::Properties() const {
  static const auto rows = Joined(std::to_array<PropertyRow>({
                                      {"Enabled", true, kThrough<&Control::SetEnabled>},
                                      {"AutoDeactivate", true},
                                      {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                                      {"Visible", true, kThrough<&Control::SetVisible>},
                                      {"InitialParent", ""},
                                      {"TabStop", true},
                                  }),
                                  kCommonRows);
  return rows;
}

Separator::Separator(ControlOwner& owner) : ShapeControl(owner, new RuleWidget) {}
ProgressWheel::ProgressWheel(ControlOwner& owner) : ShapeControl(owner, new WheelWidget) {}

}  // namespace fundlet
