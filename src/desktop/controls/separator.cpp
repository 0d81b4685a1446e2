#include "desktop/controls/separator.h"

#include <QPainter>
#include <QWidget>

#include "desktop/accessibility/accessible_interfaces.h"

namespace fundlet {

namespace {

class RuleWidget : public QWidget {
 public:
  RuleWidget() { SetAccessibleRole(*this, QAccessible::Separator); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QColor colour = palette().color(QPalette::WindowText);
    colour.setAlphaF(0.35F);
    painter.fillRect(0, height() / 2 - 1, width(), 1, colour);
  }
};

}  // namespace

Separator::Separator(ControlOwner& owner) : ShapeControl(owner, new RuleWidget) {}

}  // namespace fundlet
