#include <array>

#include "desktop/native_window.h"
#include "desktop/window.h"

namespace fundlet {

// The properties of a window that only its property set sets.
struct Window::Properties {
  static NativeWindow& Native(PropertyTarget& target) {
    return static_cast<Window&>(target).Native();
  }
  static void CloseButton(PropertyTarget& target, bool present) {
    Native(target).SetButton(Qt::WindowCloseButtonHint, present);
  }
  static void MaximizeButton(PropertyTarget& target, bool present) {
    Native(target).SetButton(Qt::WindowMaximizeButtonHint, present);
  }
  static void MinimizeButton(PropertyTarget& target, bool present) {
    Native(target).SetButton(Qt::WindowMinimizeButtonHint, present);
  }
  static void FullScreenButton(PropertyTarget& target, bool present) {
    Native(target).SetButton(Qt::WindowFullscreenButtonHint, present);
  }
  static void MinWidth(PropertyTarget& target, std::int64_t width) {
    Native(target).SetSmallest(static_cast<int>(width), Native(target).Smallest().height());
  }
  static void MinHeight(PropertyTarget& target, std::int64_t height) {
    Native(target).SetSmallest(Native(target).Smallest().width(), static_cast<int>(height));
  }
  static void MaxWidth(PropertyTarget& target, std::int64_t width) {
    Native(target).SetLargest(static_cast<int>(width), Native(target).Largest().height());
  }
  static void MaxHeight(PropertyTarget& target, std::int64_t height) {
    Native(target).SetLargest(Native(target).Largest().width(), static_cast<int>(height));
  }
  static void Resizeable(PropertyTarget& target, bool resizeable) {
    Native(target).SetResizeable(resizeable);
  }
  static void Placement(PropertyTarget& target, std::int64_t placement) {
    constexpr std::int64_t kCentredOnMainScreen = 2;
    static_cast<Window&>(target).centred_ = placement == kCentredOnMainScreen;
  }
  static void BackColor(PropertyTarget& target, Colour colour) {
    Native(target).SetBackColor(colour);
  }
  static void HasBackColor(PropertyTarget& target, bool painted) {
    Native(target).SetHasBackColor(painted);
  }
  static void MenuBarVisible(PropertyTarget& target, bool visible) {
    Native(target).SetMenuBarVisible(visible);
  }
};

std::string Window::Described() const {
  return "window “" + native_->windowTitle().toStdString() + "”";
}

const PropertySetter* Window::FindSetter(std::string_view name) const {
  // A window shows when Show is called.
  static constexpr std::array kRows = {
      PropertyRow{"BackColor", &Properties::BackColor},
      PropertyRow{"CloseButton", &Properties::CloseButton},
      PropertyRow{"Composite", kNoEffect<bool>},
      PropertyRow{"Frame", kNoEffect<std::int64_t>},
      PropertyRow{"FullScreen", kNoEffect<bool>},
      PropertyRow{"FullScreenButton", &Properties::FullScreenButton},
      PropertyRow{"HasBackColor", &Properties::HasBackColor},
      PropertyRow{"Height", SetThrough<&Window::SetHeight>::kFunction},
      PropertyRow{"LiveResize", kNoEffect<bool>},
      PropertyRow{"MacProcID", kNoEffect<std::int64_t>},
      PropertyRow{"MaxHeight", &Properties::MaxHeight},
      PropertyRow{"MaxWidth", &Properties::MaxWidth},
      PropertyRow{"MaximizeButton", &Properties::MaximizeButton},
      PropertyRow{"MenuBarVisible", &Properties::MenuBarVisible},
      PropertyRow{"MinHeight", &Properties::MinHeight},
      PropertyRow{"MinWidth", &Properties::MinWidth},
      PropertyRow{"MinimizeButton", &Properties::MinimizeButton},
      PropertyRow{"Placement", &Properties::Placement},
      PropertyRow{"Resizeable", &Properties::Resizeable},
      PropertyRow{"Title", SetThrough<&Window::SetTitle>::kFunction},
      PropertyRow{"Visible", kNoEffect<bool>},
      PropertyRow{"Width", SetThrough<&Window::SetWidth>::kFunction},
  };
  return FindIn(kRows, name);
}

}  // namespace fundlet
