#include "desktop/windows/native_window.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPainter>
#include <QPalette>
#include <QWindow>

#include "desktop/base/application.h"
#include "desktop/base/qt_text.h"
#include "desktop/drawing/own_frame.h"
#include "desktop/drawing/program_style.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

constexpr int kRingWidth = 2;
constexpr int kRingMargin = 2 * kRingWidth;  // the ring, and some background

// The content area. It draws the ring round the control that has the focus, in the gap that the
// layout leaves between the controls.
class ContentWidget : public QWidget {
 public:
  ContentWidget(const Window& window, QWidget* parent) : QWidget(parent), window_(window) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const Control* focused = window_.Focused();
    if (focused == nullptr || !focused->UseFocusRing()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kRingWidth));
    const QRectF control = focused->Native()->geometry();
    const double half = kRingWidth / 2.0;
    painter.drawRoundedRect(control.adjusted(-half, -half, half, half), kRingWidth, kRingWidth);
  }

 private:
  const Window& window_;
};

}  // namespace

NativeWindow::NativeWindow(Window& window) : window_(window) {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint);
  setCentralWidget(new QWidget);
  content_ = new ContentWidget(window, centralWidget());
  centralWidget()->installEventFilter(this);
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

QWidget* NativeWindow::TopLevelOf(QObject* object) {
  if (auto* widget = qobject_cast<QWidget*>(object)) return widget->window();
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->windowHandle() == object) return top;
  }
  return nullptr;
}

NativeWindow* NativeWindow::Of(QObject* object) {
  return dynamic_cast<NativeWindow*>(TopLevelOf(object));
}

void NativeWindow::ReadProgramIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  QIcon icon;
  for (const int size : {16, 32, 64, 128}) {
    icon.addFile(ToQt(App().IconFiles).arg(size), QSize(size, size));
  }
  QApplication::setWindowIcon(icon);
}

void NativeWindow::SetContentSize(int width, int height) {
  content_->resize(width, height);
  FitToContent();
}

void NativeWindow::SetLimit(int& limit, std::int64_t pixels) {
  limit = static_cast<int>(pixels);
  FitToContent();
}

void NativeWindow::SetResizeable(bool resizeable) {
  resizeable_ = resizeable;
  FitToContent();
}

QSize NativeWindow::Outside() const {
  const QMargins margins = contentsMargins();
  const int menu_height = menus_ ? menuBar()->heightForWidth(ContentSize().width()) : 0;
  return {margins.left() + margins.right(), margins.top() + margins.bottom() + menu_height};
}

void NativeWindow::FitToContent() {
  outside_ = Outside();
  const QSize largest(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  if (accepts_any_size_) {
    setMinimumSize(resizeable_ ? smallest_ + outside_ : QSize(0, 0));
    setMaximumSize(largest);
  } else {
    setMinimumSize((resizeable_ ? smallest_ : ContentSize()) + outside_);
    setMaximumSize(((resizeable_ ? largest_ : ContentSize()) + outside_).boundedTo(largest));
  }
  ShowFocus();
  if (!isMaximized() && !isFullScreen()) resize(ContentSize() + outside_);
}

void NativeWindow::SetBackColor(Colour colour) {
  centralWidget()->setPalette(PaletteFor(QColor(colour.red, colour.green, colour.blue)));
}

void NativeWindow::ShowMenus() {
  if (!menu_bar_visible_) return;
  menus_ = std::make_unique<MenuView>(window_);
  FitToContent();
}

void NativeWindow::ShowFirst() {
  show();
  // The frame resizes the central widget. While resizeable_ is false, eventFilter does not resize
  // the content with it.
  const bool resizeable = std::exchange(resizeable_, false);
  accepts_any_size_ = OwnFrame::AddTo(*this);
  resizeable_ = resizeable;
  if (accepts_any_size_) FitToContent();
}

void NativeWindow::Activate() {
  activateWindow();
  window_.Activated();
}

bool NativeWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) window_.Activated();
  if (event->type() == QEvent::WindowDeactivate) window_.Deactivated();
  const bool used = QMainWindow::event(event);
  if (event->type() == QEvent::LayoutRequest && Outside() != outside_) FitToContent();
  return used;
}

// The icon is read after the first window has been painted, so that it does not delay the start.
void NativeWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (QApplication::windowIcon().isNull()) {
    QMetaObject::invokeMethod(qApp, ReadProgramIcon, Qt::QueuedConnection);
  }
}

void NativeWindow::closeEvent(QCloseEvent* event) {
  window_.CloseAsked();
  event->accept();
}

void NativeWindow::keyPressEvent(QKeyEvent* event) {
  event->setAccepted(window_.KeyPressed(*event));
}

bool NativeWindow::eventFilter(QObject* object, QEvent* event) {
  const bool resized = object == centralWidget() && event->type() == QEvent::Resize && isVisible();
  // The first show gives the central widget the content's size, which changes nothing.
  if (resized && resizeable_ && centralWidget()->size() != ContentSize()) {
    content_->resize(centralWidget()->size());
    window_.Resized();
  }
  if (resized) ShowFocus();
  return QMainWindow::eventFilter(object, event);
}

void NativeWindow::ShowFocus() {
  content_->update();
  const QSize visible = centralWidget()->size();
  QPoint place = content_->pos();
  const QWidget* focused = focusWidget();
  if (focused != nullptr && focused->parentWidget() == content_) {
    const QMargins ring(kRingMargin, kRingMargin, kRingMargin, kRingMargin);
    const QRect shown = focused->geometry().marginsAdded(ring);
    place.setX(std::max(std::min(place.x(), visible.width() - shown.right() - 1), -shown.left()));
    place.setY(std::max(std::min(place.y(), visible.height() - shown.bottom() - 1), -shown.top()));
  }
  const QSize hidden = (ContentSize() - visible).expandedTo(QSize(0, 0));
  content_->move(std::clamp(place.x(), -hidden.width(), 0),
                 std::clamp(place.y(), -hidden.height(), 0));
}

}  // namespace fundlet
