#include <array>

#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

NativeWindow& NativeOf(PropertyTarget& target) { return static_cast<Window&>(target).Native(); }
int Pixels(const PropertyValue& value) { return static_cast<int>(std::get<std::int64_t>(value)); }

template <Qt::WindowType kButton>
void SetButton(PropertyTarget& window, const PropertyValue& present) {
  NativeOf(window).SetButton(kButton, std::get<bool>(present));
}

}  // namespace

std::string Window::Described() const {
  return "window “" + native_->windowTitle().toStdString() + "”";
}

PropertyTable Window::Properties() const {
  using Target = PropertyTarget;
  using Value = PropertyValue;
  static constexpr auto kRows = std::to_array<PropertyRow>({
      {"Width", 0, kThrough<&Window::SetWidth>},
      {"Height", 0, kThrough<&Window::SetHeight>},
      {"MinWidth", 64,
       [](Target& window, const Value& width) {
         NativeOf(window).SetSmallest(Pixels(width), NativeOf(window).Smallest().height());
       }},
      {"MinHeight", 64,
       [](Target& window, const Value& height) {
         NativeOf(window).SetSmallest(NativeOf(window).Smallest().width(), Pixels(height));
       }},
      {"MaxWidth", 32000,
       [](Target& window, const Value& width) {
         NativeOf(window).SetLargest(Pixels(width), NativeOf(window).Largest().height());
       }},
      {"MaxHeight", 32000,
       [](Target& window, const Value& height) {
         NativeOf(window).SetLargest(NativeOf(window).Largest().width(), Pixels(height));
       }},
      {"Frame", 0},
      {"Title", "", kThrough<&Window::SetTitle>},
      {"CloseButton", true, &SetButton<Qt::WindowCloseButtonHint>},
      {"Resizeable", false,
       [](Target& window, const Value& resizeable) {
         NativeOf(window).SetResizeable(std::get<bool>(resizeable));
       }},
      {"MaximizeButton", false, &SetButton<Qt::WindowMaximizeButtonHint>},
      {"MinimizeButton", true, &SetButton<Qt::WindowMinimizeButtonHint>},
      {"FullScreenButton", false, &SetButton<Qt::WindowFullscreenButtonHint>},
      {"Composite", false},
      {"MacProcID", 0},
      {"Placement", 0,
       [](Target& window, const Value& placement) {
         constexpr std::int64_t kCentredOnMainScreen = 2;
         static_cast<Window&>(window).centred_ = placement == Value(kCentredOnMainScreen);
       }},
      {"Visible", true},  // a window shows when Show is called
      {"LiveResize", true},
      {"FullScreen", false},
      {"HasBackColor", true,
       [](Target& window, const Value& painted) {
         NativeOf(window).SetHasBackColor(std::get<bool>(painted));
       }},
      {"BackColor", kWhite,
       [](Target& window, const Value& colour) {
         NativeOf(window).SetBackColor(std::get<Colour>(colour));
       }},
      {"MenuBarVisible", true,
       [](Target& window, const Value& visible) {
         NativeOf(window).SetMenuBarVisible(std::get<bool>(visible));
       }},
  });
  return kRows;
}

}  // namespace fundlet
