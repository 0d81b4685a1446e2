#include "desktop/drawing/own_frame.h"

#include <functional>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace fundlet {

namespace {

constexpr int kBorder = 1;
constexpr int kGrip = 5;  // the border of a window that can be resized by it
constexpr int kTitleHeight = 32;

QPen TitlePen(const QWidget& widget) {
  const auto group = widget.isActiveWindow() ? QPalette::Active : QPalette::Disabled;
  return {widget.palette().color(group, QPalette::WindowText), 1.5};
}

class FrameButton : public QAbstractButton {
 public:
  FrameButton(QWidget& frame, const QString& name, std::vector<QLineF> strokes)
      : QAbstractButton(&frame), strokes_(std::move(strokes)) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setAccessibleName(name);
    setToolTip(name);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse()) painter.fillRect(rect(), palette().color(QPalette::Midlight));
    if (isDown()) painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.setPen(TitlePen(*this));
    painter.translate(QRectF(rect()).center());
    for (const QLineF& stroke : strokes_) painter.drawLine(stroke);
  }

 private:
  std::vector<QLineF> strokes_;
};

// Lies beneath the other widgets of the window, whose margins leave the frame's strips free.
class FrameWidget : public QWidget {
 public:
  explicit FrameWidget(QWidget& window)
      : QWidget(&window),
        window_(window),
        resizeable_(window.minimumSize() != window.maximumSize()),
        border_(resizeable_ ? kGrip : kBorder) {
    setPalette(QApplication::palette());
    setFont(QApplication::font());
    AddButton("Close", {{-5, -5, 5, 5}, {-5, 5, 5, -5}}, [this] { window_.close(); });
    if (window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint)) {
      AddButton("Minimise", {{-5, 4, 5, 4}}, [this] { window_.showMinimized(); });
    }
    window.setContentsMargins(border_, TitleBottom(), border_, border_);
    setMouseTracking(resizeable_);
    window.installEventFilter(this);
    Fit();
    lower();
    show();
  }

  int TitleBottom() const { return border_ + kTitleHeight; }

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::Enter) dragged_ = false;
    if (type == QEvent::Resize) {
      // While the user drags an edge, the compositor may demand less than the size given with
      // xdg_toplevel.set_min_size, and Qt 6.8 complies. At other times any size must be accepted.
      if (dragged_) window_.resize(window_.size().expandedTo(window_.minimumSize()));
      Fit();
    }
    const bool activation = type == QEvent::WindowActivate || type == QEvent::WindowDeactivate;
    if (activation || type == QEvent::WindowTitleChange) update();
    return false;
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(TitlePen(*this));
    const int side = static_cast<int>(buttons_.size()) * kTitleHeight;
    const QRect title(side, border_, width() - 2 * side, kTitleHeight);
    painter.drawText(
        title, Qt::AlignCenter,
        painter.fontMetrics().elidedText(window_.windowTitle(), Qt::ElideRight, title.width()));
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    const QPointF at = event->position();
    if (const Qt::Edges edges = EdgesAt(at)) {
      dragged_ = window_.windowHandle()->startSystemResize(edges);
    } else if (at.y() < TitleBottom()) {
      window_.windowHandle()->startSystemMove();
    }
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    const Qt::Edges edges = EdgesAt(event->position());
    const bool across = edges.testAnyFlags(Qt::LeftEdge | Qt::RightEdge);
    const bool along = edges.testAnyFlags(Qt::TopEdge | Qt::BottomEdge);
    const bool falling =
        edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    Qt::CursorShape shape = across ? Qt::SizeHorCursor : Qt::ArrowCursor;
    if (along) shape = Qt::SizeVerCursor;
    if (across && along) shape = falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    setCursor(shape);
  }

 private:
  Qt::Edges EdgesAt(QPointF at) const {
    Qt::Edges edges;
    if (!resizeable_) return edges;
    if (at.x() < border_) edges |= Qt::LeftEdge;
    if (at.x() >= width() - border_) edges |= Qt::RightEdge;
    if (at.y() < border_) edges |= Qt::TopEdge;
    if (at.y() >= height() - border_) edges |= Qt::BottomEdge;
    return edges;
  }

  void AddButton(const QString& name, std::vector<QLineF> strokes, std::function<void()> act) {
    buttons_.push_back(new FrameButton(*this, name, std::move(strokes)));
    connect(buttons_.back(), &QAbstractButton::clicked, this, std::move(act));
  }

  void Fit() {
    setGeometry(window_.rect());
    int right = width() - border_;
    for (QAbstractButton* button : buttons_) {
      right -= kTitleHeight;
      button->setGeometry(right, border_, kTitleHeight, kTitleHeight);
    }
  }

  QWidget& window_;
  bool resizeable_;
  int border_;
  bool dragged_ = false;                   // by an edge, until the pointer is back in the window
  std::vector<QAbstractButton*> buttons_;  // from the right
};

FrameWidget* FrameOf(const QWidget& window) {
  for (QObject* child : window.children()) {
    if (auto* frame = dynamic_cast<FrameWidget*>(child)) return frame;
  }
  return nullptr;
}

}  // namespace

bool OwnFrame::AddTo(QWidget& window) {
  QWindow* native = window.windowHandle();
  const bool qt_draws = QGuiApplication::platformName().startsWith("wayland") &&
                        native != nullptr && native->frameMargins().top() > 0;
  if (!qt_draws) return FrameOf(window) != nullptr;
  native->setFlags(native->flags() | Qt::FramelessWindowHint);
  // A size grip within the window would resize it without the frame's knowing.
  if (auto* dialog = qobject_cast<QDialog*>(&window)) dialog->setSizeGripEnabled(false);
  new FrameWidget(window);
  // The layout of a dialog adds the margins to its size.
  QCoreApplication::sendPostedEvents(&window, QEvent::LayoutRequest);
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  return true;
}

bool OwnFrame::IsOnTitle(const QObject* object, const QEvent& event) {
  const auto* mouse = dynamic_cast<const QMouseEvent*>(&event);
  if (mouse == nullptr) return false;
  const auto* widget = qobject_cast<const QWidget*>(object);
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const bool here = window->windowHandle() == object || window->isAncestorOf(widget);
    const FrameWidget* frame = here ? FrameOf(*window) : nullptr;
    if (frame != nullptr) return mouse->scenePosition().y() < frame->TitleBottom();
  }
  return false;
}

}  // namespace fundlet
