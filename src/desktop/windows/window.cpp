#include "desktop/windows/window.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QKeyEvent>

#include "desktop/base/application.h"
#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/base/screen.h"
#include "desktop/controls/push_button.h"
#include "desktop/windows/blocking_dialog.h"
#include "desktop/windows/native_window.h"

namespace fundlet {

Window::Window() : native_(std::make_unique<NativeWindow>(*this)) {}

namespace {

// The visible windows, the frontmost last.
struct WindowOrder : std::vector<Window*> {};

WindowOrder& VisibleWindows() { return RunState::Of<WindowOrder>(); }

// The setter of a row that calls this function of the native window.
template <auto Method>
constexpr auto kThroughNative = [](PropertyTarget& window, const PropertyValue& value) {
  [&]<typename Value>(void (NativeWindow::*method)(Value)) {
    (static_cast<Window&>(window).Native().*method)(std::get<Value>(value));
  }(Method);
};

}  // namespace

PropertyTable Window::Properties() const {
  static constexpr auto kRows = std::to_array<PropertyRow>({
      {"Width", 0, kThrough<&Window::SetWidth>},
      {"Height", 0, kThrough<&Window::SetHeight>},
      {"MinWidth", 64, kThroughNative<&NativeWindow::SetMinWidth>},
      {"MinHeight", 64, kThroughNative<&NativeWindow::SetMinHeight>},
      {"MaxWidth", 32000, kThroughNative<&NativeWindow::SetMaxWidth>},
      {"MaxHeight", 32000, kThroughNative<&NativeWindow::SetMaxHeight>},
      {"Frame", 0},
      {"Title", "", kThrough<&Window::SetTitle>},
      {"CloseButton", true, kThroughNative<&NativeWindow::SetButton<Qt::WindowCloseButtonHint>>},
      {"Resizeable", false, kThroughNative<&NativeWindow::SetResizeable>},
      {"MaximizeButton", false,
       kThroughNative<&NativeWindow::SetButton<Qt::WindowMaximizeButtonHint>>},
      {"MinimizeButton", true,
       kThroughNative<&NativeWindow::SetButton<Qt::WindowMinimizeButtonHint>>},
      {"FullScreenButton", false,
       kThroughNative<&NativeWindow::SetButton<Qt::WindowFullscreenButtonHint>>},
      {"Composite", false},
      {"MacProcID", 0},
      {"Placement", 0, kThrough<&Window::SetPlacement>},
      {"Visible", true},  // Show makes a window visible
      {"LiveResize", true},
      {"FullScreen", false},
      {"HasBackColor", true, kThroughNative<&NativeWindow::SetHasBackColor>},
      {"BackColor", kWhite, kThroughNative<&NativeWindow::SetBackColor>},
      {"MenuBarVisible", true, kThroughNative<&NativeWindow::SetMenuBarVisible>},
  });
  return kRows;
}

std::string Window::Described() const { return "window “" + FromQt(native_->windowTitle()) + "”"; }

// Find, because VisibleWindows would fail if the window outlives the run.
Window::~Window() {
  open_ = false;
  if (auto* order = RunState::Find<WindowOrder>()) std::erase(*order, this);
}

Window* Window::Front() {
  const WindowOrder& windows = VisibleWindows();
  return windows.empty() ? nullptr : windows.back();
}

int Window::Width() const { return native_->ContentSize().width(); }
int Window::Height() const { return native_->ContentSize().height(); }
int Window::Left() const { return native_->geometry().left(); }
int Window::Top() const { return native_->geometry().top(); }

void Window::SetLeft(std::int64_t left) {
  native_->setGeometry(QRect(QPoint(static_cast<int>(left), Top()), native_->size()));
}

void Window::SetTop(std::int64_t top) {
  native_->setGeometry(QRect(QPoint(Left(), static_cast<int>(top)), native_->size()));
}

void Window::SetWidth(std::int64_t width) {
  native_->SetContentSize(static_cast<int>(width), Height());
}

void Window::SetHeight(std::int64_t height) {
  native_->SetContentSize(Width(), static_cast<int>(height));
}

void Window::SetTitle(std::string_view title) { native_->setWindowTitle(ToQt(title)); }

MenuBar& Window::MenuBar() const {
  if (menu_bar_ != nullptr) return *menu_bar_;
  if (App().MenuBar != nullptr) return *App().MenuBar;
  throw NilObjectException("There are no menus to show in the window.");
}

void Window::_AddMenuHandler(const std::string& item_name, std::function<bool()> handler) {
  menu_handlers_[item_name] = std::move(handler);
}

void Window::_AddControl(const std::string& name, std::unique_ptr<Control> control) {
  const bool taken = std::any_of(controls_.begin(), controls_.end(),
                                 [&](const auto& other) { return other->Name() == name; });
  if (taken) {
    delete control->Native();
    throw RuntimeException("The window has a control “" + name + "” already.");
  }
  control->SetName(name);
  controls_.push_back(std::move(control));
}

Control& Window::_ControlByName(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [name](const auto& control) { return control->Name() == name; });
  if (found != controls_.end()) return **found;
  throw NilObjectException("The window has no control “" + std::string(name) + "”.");
}

void Window::Open() {
  open_ = true;
  Gate().EnterWithin([this] { Event_Open(); });
}

void Window::Show() {
  if (!open_ || Gate().IsShut()) return;
  if (!std::exchange(shown_once_, true)) {
    FirstShow();
    return;
  }
  native_->setWindowState(native_->windowState() & ~Qt::WindowMinimized);
  native_->raise();
  native_->activateWindow();
}

void Window::FirstShow() {
  Control* first = ApplyTabOrder();
  native_->ShowMenus();
  if (centred_) Centre();
  native_->ShowFirst();
  native_->raise();
  native_->activateWindow();
  if (first != nullptr) first->SetFocus();
  Activated();
}

// Puts the window in the middle of the primary screen's usable area, and makes it lower if that is
// too low.
void Window::Centre() {
  constexpr int kTitleBar = 30;  // pixels; no desktop environment has a higher one
  const Screen screen(0);
  const int menus = native_->height() - Height();
  const int most = std::max(screen.AvailableHeight - kTitleBar - menus, native_->MinHeight());
  if (Height() > most) {
    SetHeight(most);
    Resized();
  }
  SetLeft(screen.AvailableLeft + (screen.AvailableWidth - Width()) / 2);
  SetTop(screen.AvailableTop + std::max(kTitleBar, (screen.AvailableHeight - Height()) / 2));
}

// Tab goes through the controls by rising TabIndex; controls with the same index keep the order in
// which they were added.
Control* Window::ApplyTabOrder() {
  std::vector<Control*> order;
  for (const auto& control : controls_) {
    if (control->Native()->focusPolicy() != Qt::NoFocus) order.push_back(control.get());
  }
  std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) {
    return a->TabIndex() < b->TabIndex();
  });
  QWidget* before = &native_->Content();
  for (const Control* control : order) {
    QWidget::setTabOrder(before, control->Native());
    before = control->Native();
  }
  return order.empty() ? nullptr : order.front();
}

void Window::Close() {
  if (!open_) return;
  open_ = false;
  native_->hide();
  std::erase(VisibleWindows(), this);
  Gate().EnterWithin([this] { Event_Close(); });
}

void Window::ClearFocus() {
  if (QWidget* widget = native_->focusWidget(); widget != nullptr) widget->clearFocus();
  if (focused_ != nullptr) OnFocusLost(*focused_);
}

void Window::Activated() {
  if (!open_) return;
  std::erase(VisibleWindows(), this);
  VisibleWindows().push_back(this);
  if (activation_due_) return;
  activation_due_ = true;
  Gate().Enter("", [this] {
    activation_due_ = false;
    if (open_) Event_Activate();
  });
}

void Window::Deactivated() {
  if (focused_ != nullptr && focused_->LosesFocusWithWindow()) OnFocusLost(*focused_);
}

void Window::CloseAsked() {
  BlockingDialog::Dismiss(EndsProgram() ? nullptr : native_.get());
  Gate().Enter("", [this] { Close(); });
}

void Window::Resized() {
  Gate().EnterWithin([this] { Event_Resized(); });
}

bool Window::PressButtonFor(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool return_key = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (!plain || (!return_key && event.key() != Qt::Key_Escape)) return false;
  for (const auto& control : controls_) {
    auto* button = dynamic_cast<PushButton*>(control.get());
    if (button == nullptr || !(return_key ? button->IsDefault() : button->IsCancel())) continue;
    if (!event.isAutoRepeat()) button->Press();
    return true;
  }
  return false;
}

bool Window::KeyPressed(const QKeyEvent& event) {
  bool used = PressButtonFor(event);
  if (used) return true;
  Gate().EnterWithin([&] {
    const std::string key = KeyText(event);
    used = !key.empty() && Event_KeyDown(key);
  });
  return used;
}

void Window::ShowEditMenu(const QPoint& place) {
  if (native_->Menus() != nullptr) native_->Menus()->ShowEditMenu(place);
}

QWidget& Window::Content() const { return native_->Content(); }

void Window::OnFocusGained(Control& control) {
  if (!open_ || focused_ == &control) return;
  Control* before = std::exchange(focused_, &control);
  native_->ShowFocus();
  Gate().EnterWithin([&] {
    if (before != nullptr) before->FireLostFocus();
    control.FireGotFocus();
  });
}

void Window::OnFocusLost(Control& control) {
  if (!open_ || focused_ != &control) return;
  focused_ = nullptr;
  native_->ShowFocus();
  Gate().EnterWithin([&] { control.FireLostFocus(); });
}

std::function<void()> Window::ActionOf(const MenuItem& item) {
  if (dynamic_cast<const QuitMenuItem*>(&item) != nullptr) return [] { Quit(0); };
  if (const auto found = menu_handlers_.find(item.Name); found != menu_handlers_.end()) {
    return [&handler = found->second] { handler(); };
  }
  if (Control* target = EditTarget(item.Edits); target != nullptr) {
    return [target, command = item.Edits] { target->Edit(command); };
  }
  return {};
}

Control* Window::EditTarget(EditCommand command) const {
  if (focused_ != nullptr && focused_->CanEdit(command)) return focused_;
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& control) { return control->CanEdit(command); });
  return found != controls_.end() ? found->get() : nullptr;
}

void Window::UpdateMenuItems() {
  // While a message is open, a field may still show a value that the handler beneath has replaced,
  // and Event_EnableMenuItems may read the fields.
  if (BlockingDialog::IsOpen()) return;
  Gate().EnterWithin([this] {
    MenuBar().ForEach([this](MenuItem& item) {
      if (item.AutoEnable && ActionOf(item)) {
        item.Enable();
      } else {
        item.Disable();
      }
    });
    Event_EnableMenuItems();
  });
  if (native_->Menus() != nullptr) native_->Menus()->UpdateActions();
}

void Window::Choose(MenuItem& item) {
  if (BlockingDialog::IsOpen()) return;
  UpdateMenuItems();
  if (!item.Enabled()) return;
  Gate().Enter(item.Text, [this, &item] {
    if (const auto action = ActionOf(item)) action();
  });
}

}  // namespace fundlet
