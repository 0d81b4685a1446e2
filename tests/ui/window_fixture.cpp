#include "tests/ui/window_fixture.h"

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QWindow>

#include "app/my_application.h"
#include "ui/global_module.h"

namespace fundlet {

namespace user {

namespace {

QWindow* InFront() {
  if (QWindow* focused = QGuiApplication::focusWindow()) return focused;
  throw std::runtime_error("no window has the keyboard");
}

QAction* ActionNamed(const QWidget& menu, QString text) {
  for (QAction* action : menu.actions()) {
    if (action->text().remove('&') == text) return action;
  }
  throw std::runtime_error("no menu item " + text.toStdString());
}

// Does the work of a window manager, which the offscreen platform lacks: returns the keyboard focus
// from a popup to its window, and from a closed window to the front one.
void ManageKeyboard() {
  const QWindow* focused = QGuiApplication::focusWindow();
  if (focused != nullptr && focused->isVisible() && focused->type() != Qt::Popup) return;
  QWidget* next = QApplication::activeWindow();
  if (next == nullptr || !next->isVisible()) {
    next = Window::Front() != nullptr ? &Window::Front()->Native() : nullptr;
  }
  if (next != nullptr) next->windowHandle()->requestActivate();
}

}  // namespace

void Settle() {
  for (int round = 0; round < 4; ++round) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ManageKeyboard();
  }
}

void Press(const QString& keys) {
  for (const QString& word : keys.split(' ')) {
    const QKeyCombination key = QKeySequence::fromString(word)[0];
    QTest::keyClick(InFront(), key.key(), key.keyboardModifiers());
    Settle();
  }
}

void Type(const std::string& text) {
  for (const char c : text) QTest::keyClick(InFront(), c);
  Settle();
}

void Replace(const std::string& text) {
  Press("Ctrl+A Backspace");
  Type(text);
}

void Click(QWidget& widget, std::optional<QPoint> at) {
  QWidget* window = widget.window();
  const QPoint place = widget.mapTo(window, at.value_or(widget.rect().center()));
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
  Settle();
}

void Activate(const Window& window) {
  window.Native().activateWindow();
  Settle();
}

void CloseBox(QWidget& window) {
  window.windowHandle()->close();
  Settle();
}

void VisitAnotherWindow(const std::function<void()>& meanwhile) {
  QWidget other;
  other.show();
  other.activateWindow();
  Settle();
  meanwhile();
  Activate(aFundletWindow::Instance());
}

void OpenMenu(const QString& menu) {
  auto* bar = QApplication::activeWindow()->findChild<QMenuBar*>();
  Click(*bar, bar->actionGeometry(ActionNamed(*bar, menu)).center());
}

void OpenContextMenu() {
  QWidget* widget = QApplication::focusWidget();
  // QMenu ignores a click where the pointer was when the menu opened.
  QTest::mouseMove(widget->window()->windowHandle(), QPoint(1, 1));
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, widget->mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(widget, &event);
  Settle();
}

void Pick(const QString& item, const QString& subitem) {
  for (const QString& text : {item, subitem}) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (text.isEmpty()) break;
    if (menu == nullptr) throw std::runtime_error("no menu is open");
    const QPoint at = menu->actionGeometry(ActionNamed(*menu, text)).center();
    // QMenu ignores a click until the mouse has moved within it.
    QTest::mouseMove(menu->windowHandle(), at - QPoint(3, 1));
    QTest::mouseMove(menu->windowHandle(), at);
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, at);
    Settle();
  }
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  Settle();
}

void Choose(const QString& menu, const QString& item, const QString& subitem) {
  OpenMenu(menu);
  Pick(item, subitem);
}

}  // namespace user

std::ptrdiff_t VisibleWindows(const QString& title) {
  return std::ranges::count_if(QGuiApplication::topLevelWindows(), [&](const QWindow* window) {
    return window->isVisible() && window->title() == title;
  });
}

std::string EnabledEditing(Window& window) {
  std::string names;
  window.UpdateMenuItems();
  window.MenuBar().ForEach([&](MenuItem& item) {
    if (item.Enabled() && item.Edits != EditCommand::None) names += item.Name;
  });
  return names;
}

std::string FocusName() {
  const QWidget* widget = QApplication::focusWidget();
  return widget != nullptr ? widget->objectName().toStdString() : "";
}

Answer ByKey(Qt::Key key) {
  return [key](QWidget& dialog) { QTest::keyClick(dialog.windowHandle(), key); };
}

Answer BySaving(const std::string& path) {
  return [path](QWidget& dialog) {
    auto& name = Found<QLineEdit>("fileNameEdit");
    name.setFocus();
    name.selectAll();
    QGuiApplication::clipboard()->setText(QString::fromStdString(path));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
  };
}

void FundletTest::UseScreen(int width, int height) {
  const QString screen = R"({"screens": [{"name": "only", "x": 0, "y": 0, "width": %1, "height": %2,
                             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  folder_.Write("screen", screen.arg(width).arg(height).toStdString());
  qputenv("QT_QPA_PLATFORM",
          ("offscreen:configfile=" + (folder_.Path() / "screen").string()).c_str());
}

void FundletTest::Start(const QString& system_font) {
  GlobalModule::Initialise();
  runtime_.emplace("fundlet");
  runtime_->Start(&MyApplication::_EarlyStartup, [&] {
    watchdog_ = std::make_unique<QObject>();
    Watch();
    if (!system_font.isEmpty()) QApplication::setFont(QFont(system_font));
    MyApplication::_LateStartup();
  });
  user::Settle();
}

void FundletTest::End() {
  GlobalModule::Release();
  watchdog_.reset();
  runtime_.reset();
}

void FundletTest::Watch() {
  // Restarted first, because an answer may run an event loop of its own, in which dialogs open too.
  QTimer::singleShot(2, watchdog_.get(), [this] { Watch(); });
  QWidget* dialog = QApplication::activeWindow();
  if (qobject_cast<QDialog*>(dialog) == nullptr || dialog == handled_) return;
  const QScopedValueRollback handled(handled_, dialog);
  const auto* box = qobject_cast<QMessageBox*>(dialog);
  QString text = dialog->windowTitle();
  if (box != nullptr) text += ": " + box->text() + box->informativeText();
  static const QRegularExpression unseen("^Fundlet: |\u200B");  // the zero width breaks of a path
  shown_.push_back(text.remove(unseen).toStdString());
  if (expected_.empty()) {
    ADD_FAILURE() << "unexpected dialog: " << shown_.back();
    dialog->close();
    return;
  }
  const Answer answer = std::move(expected_.front());
  expected_.pop_front();
  answer(*dialog);
}

}  // namespace fundlet
