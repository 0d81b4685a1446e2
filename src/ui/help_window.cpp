#include "ui/help_window.h"

#include <memory>

#include "ui/default_menu.h"
#include "ui/global_module.h"
#include "ui/help_text.h"
#include "ui/main_layout.h"

namespace fundlet {

namespace {

constexpr int kWidth = 498;
constexpr int kHeight = 430;
constexpr int kTextWidth = 452;
constexpr int kTextHeight = 356;

// The place of the button at the size of creation once the window has been resized; it differs
// slightly from the place at creation.
constexpr int kResizedButtonLeft = 403;
constexpr int kResizedButtonTop = 395;

}  // namespace

namespace help_layout {

std::span<const Property> WindowProperties() {
  static constexpr Property kOwn[] = {
      {"Title", "Fundlet Help"}, {"Width", kWidth},
      {"Height", kHeight},       {"MinWidth", 400},
      {"MinHeight", 300},        {"Resizeable", true},
      {"Placement", 2},          {"BackColor", main_layout::kPaleGreen},
  };
  return kOwn;
}

std::span<const Property> TextFieldProperties() {
  static const std::string page = HelpText();
  static const Property own[] = {
      {"Name", "TextField"},   {"Left", 20},    {"Top", 20},    {"Width", kTextWidth},
      {"Height", kTextHeight}, {"TabIndex", 0}, {"Text", page}, {"TextFont", "Geneva"},
  };
  return own;
}

std::span<const Property> DoneButtonProperties() {
  static constexpr Property kOwn[] = {
      {"Name", "DoneButton"}, {"Left", 405},   {"Top", 392},         {"Width", 69},
      {"Height", 18},         {"TabIndex", 1}, {"Caption", "Close"}, {"Default", true},
  };
  return kOwn;
}

}  // namespace help_layout

aHelpWindow::aHelpWindow() {
  Layout();
  CreateControls();
  AddMenuHandlers();
}

void aHelpWindow::ShowHelp() {
  if (!GlobalModule::HelpShowing) {
    GlobalModule::HelpWindow = std::make_shared<aHelpWindow>();
    GlobalModule::HelpWindow->Open();
  }
  GlobalModule::HelpWindow->Show();
}

void aHelpWindow::Layout() {
  _SetProperties(EncodePropertySet(Properties(), help_layout::WindowProperties()));
}

void aHelpWindow::CreateControls() { _CreateControls0(); }

void aHelpWindow::_CreateControls0() {
  _AddControl("TextField", std::make_unique<fundlet::TextArea>(*this));
  TextField()._SetProperties(
      EncodePropertySet(TextField().Properties(), help_layout::TextFieldProperties()));
  TextField().GotFocus = [this](fundlet::TextArea& area) { TextField_GotFocus(area); };

  _AddControl("DoneButton", std::make_unique<PushButton>(*this));
  DoneButton()._SetProperties(
      EncodePropertySet(DoneButton().Properties(), help_layout::DoneButtonProperties()));
  DoneButton().Action = [this](PushButton& button) { DoneButton_Action(button); };
}

fundlet::TextArea& aHelpWindow::TextField() const {
  return ControlOf<fundlet::TextArea>("TextField");
}

PushButton& aHelpWindow::DoneButton() const { return ControlOf<PushButton>("DoneButton"); }

void aHelpWindow::TextField_GotFocus(fundlet::TextArea& area) {
  area.SetSelStart(0);
  area.SetSelLength(0);
}

void aHelpWindow::DoneButton_Action(PushButton& /*button*/) { Close(); }

void aHelpWindow::AddMenuHandlers() {
  _AddMenuHandler("HelpFundlet", [this] { return _HelpFundlet_Action(); });
}

void aHelpWindow::Event_Resized() {
  TextField().SetHeight(Height() - kHeight + kTextHeight);
  TextField().SetWidth(Width() - kWidth + kTextWidth);
  DoneButton().SetTop(Height() - kHeight + kResizedButtonTop);
  DoneButton().SetLeft(Width() - kWidth + kResizedButtonLeft);
}

void aHelpWindow::Event_Close() { GlobalModule::HelpShowing = false; }

void aHelpWindow::Event_EnableMenuItems() {
  if (TextField().SelLength() > 0) EditCopy().Enable();
}

void aHelpWindow::Event_Open() { GlobalModule::HelpShowing = true; }

bool aHelpWindow::_HelpFundlet_Action() { return false; }

}  // namespace fundlet
