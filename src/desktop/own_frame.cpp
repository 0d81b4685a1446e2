#include "desktop/own_frame.h"

#include <functional>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace fundlet {

namespace {

constexpr int kBorder = 1;
constexpr int kTitleHeight = 32;

QPen InkOf(const QWidget& widget) {
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
    painter.setPen(InkOf(*this));
    painter.translate(QRectF(rect()).center());
    for (const QLineF& stroke : strokes_) painter.drawLine(stroke);
  }

 private:
  std::vector<QLineF> strokes_;
};

// Lies beneath all that the window holds; the window's margins leave the frame's strips free.
class FrameWidget : public QWidget {
 public:
  explicit FrameWidget(QWidget& window) : QWidget(&window), window_(window) {
    setPalette(QApplication::palette());
    setFont(QApplication::font());
    AddButton("Close", {{-5, -5, 5, 5}, {-5, 5, 5, -5}}, [this] { window_.close(); });
    if (window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint)) {
      AddButton("Minimise", {{-5, 4, 5, 4}}, [this] { window_.showMinimized(); });
    }
    window.setContentsMargins(kBorder, kBorder + kTitleHeight, kBorder, kBorder);
    window.installEventFilter(this);
    Fit();
    lower();
    show();
  }

 protected:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    const bool shows = event->type() == QEvent::WindowActivate ||
                       event->type() == QEvent::WindowDeactivate ||
                       event->type() == QEvent::WindowTitleChange;
    if (shows) update();
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
    painter.setPen(InkOf(*this));
    const int room = static_cast<int>(buttons_.size()) * kTitleHeight;
    const QRect title(room, kBorder, width() - 2 * room, kTitleHeight);
    painter.drawText(
        title, Qt::AlignCenter,
        painter.fontMetrics().elidedText(window_.windowTitle(), Qt::ElideRight, title.width()));
  }

  void mousePressEvent(QMouseEvent* event) override {
    const bool on_title = event->position().y() < kBorder + kTitleHeight;
    if (on_title && event->button() == Qt::LeftButton) window_.windowHandle()->startSystemMove();
  }

 private:
  void AddButton(const QString& name, std::vector<QLineF> strokes, std::function<void()> act) {
    buttons_.push_back(new FrameButton(*this, name, std::move(strokes)));
    connect(buttons_.back(), &QAbstractButton::clicked, this, std::move(act));
  }

  void Fit() {
    setGeometry(window_.rect());
    int right = width() - kBorder;
    for (QAbstractButton* button : buttons_) {
      right -= kTitleHeight;
      button->setGeometry(right, kBorder, kTitleHeight, kTitleHeight);
    }
  }

  QWidget& window_;
  std::vector<QAbstractButton*> buttons_;  // from the right
};

FrameWidget* FrameOf(const QWidget& window) {
  for (QObject* child : window.children()) {
    if (auto* frame = dynamic_cast<FrameWidget*>(child)) return frame;
  }
  return nullptr;
}

}  // namespace

bool OwnFrame::PutRound(QWidget& window) {
  QWindow* native = window.windowHandle();
  const bool toolkit_draws = QGuiApplication::platformName().startsWith("wayland") &&
                             native != nullptr && native->frameMargins().top() > 0;
  if (!toolkit_draws) return FrameOf(window) != nullptr;
  native->setFlags(native->flags() | Qt::FramelessWindowHint);
  new FrameWidget(window);
  return true;
}

bool OwnFrame::Takes(const QObject* object, const QEvent& event) {
  const bool mouse =
      event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
      event.type() == QEvent::MouseButtonDblClick || event.type() == QEvent::MouseMove;
  if (!mouse) return false;
  const double y = static_cast<const QMouseEvent&>(event).scenePosition().y();
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const bool here = window->windowHandle() == object ||
                      window->isAncestorOf(qobject_cast<const QWidget*>(object));
    if (here && FrameOf(*window) != nullptr) return y < kBorder + kTitleHeight;
  }
  return false;
}

}  // namespace fundlet
