#include <functional>
#include <memory>

#include "plan/pasted_entry.h"
#include "ui/default_menu.h"
#include "ui/main_layout.h"
#include "ui/main_window.h"

namespace fundlet {

namespace {

using main_layout::ControlClass;

std::unique_ptr<Control> NewControl(ControlClass control_class, Window& window) {
  switch (control_class) {
    case ControlClass::Label:
      return std::make_unique<Label>(window);
    case ControlClass::TextField:
      return std::make_unique<TextField>(window);
    case ControlClass::PushButton:
      return std::make_unique<PushButton>(window);
    case ControlClass::Separator:
      return std::make_unique<Separator>(window);
    case ControlClass::ProgressWheel:
      break;
  }
  return std::make_unique<ProgressWheel>(window);
}

// The handlers of one field.
struct FieldHandlers {
  const char* field;
  void (aFundletWindow::*got_focus)(TextField&);
  void (aFundletWindow::*lost_focus)(TextField&);
  bool (aFundletWindow::*key_down)(TextField&, const std::string&);
};

constexpr FieldHandlers kFieldHandlers[] = {
    {"StartYearField", &aFundletWindow::StartYearField_GotFocus,
     &aFundletWindow::StartYearField_LostFocus, &aFundletWindow::StartYearField_KeyDown},
    {"StartAgeField", &aFundletWindow::StartAgeField_GotFocus,
     &aFundletWindow::StartAgeField_LostFocus, &aFundletWindow::StartAgeField_KeyDown},
    {"YearsLeftField", &aFundletWindow::YearsLeftField_GotFocus,
     &aFundletWindow::YearsLeftField_LostFocus, &aFundletWindow::YearsLeftField_KeyDown},
    {"COLAField", &aFundletWindow::COLAField_GotFocus, &aFundletWindow::COLAField_LostFocus,
     &aFundletWindow::COLAField_KeyDown},
    {"StartFundletField", &aFundletWindow::StartFundletField_GotFocus,
     &aFundletWindow::StartFundletField_LostFocus, &aFundletWindow::StartFundletField_KeyDown},
    {"FundletAPRField", &aFundletWindow::FundletAPRField_GotFocus,
     &aFundletWindow::FundletAPRField_LostFocus, &aFundletWindow::FundletAPRField_KeyDown},
    {"SocialSecurityField", &aFundletWindow::SocialSecurityField_GotFocus,
     &aFundletWindow::SocialSecurityField_LostFocus, &aFundletWindow::SocialSecurityField_KeyDown},
    {"EndFundletField", &aFundletWindow::EndFundletField_GotFocus,
     &aFundletWindow::EndFundletField_LostFocus, &aFundletWindow::EndFundletField_KeyDown},
};

struct ButtonHandler {
  const char* button;
  void (aFundletWindow::*action)(PushButton&);
};

constexpr ButtonHandler kButtonHandlers[] = {
    {"CalculateButton", &aFundletWindow::CalculateButton_Action},
    {"PrintButton", &aFundletWindow::PrintButton_Action},
    {"SaveButton", &aFundletWindow::SaveButton_Action},
    {"RestoreButton", &aFundletWindow::RestoreButton_Action},
};

// Binds the handlers of one control, if it has any.
void BindHandlers(aFundletWindow& window, const std::string& name) {
  for (const FieldHandlers& handlers : kFieldHandlers) {
    if (name != handlers.field) continue;
    auto& field = window.ControlOf<TextField>(name);
    field.GotFocus = std::bind_front(handlers.got_focus, &window);
    field.LostFocus = std::bind_front(handlers.lost_focus, &window);
    field.KeyDown = std::bind_front(handlers.key_down, &window);
  }
  for (const ButtonHandler& handler : kButtonHandlers) {
    if (name != handler.button) continue;
    window.ControlOf<PushButton>(name).Action = std::bind_front(handler.action, &window);
  }
}

struct MenuHandler {
  const char* item;
  bool (aFundletWindow::*handler)();
};

constexpr MenuHandler kMenuHandlers[] = {
    {"Survival8", &aFundletWindow::_Survival8_Action},
    {"Survival2", &aFundletWindow::_Survival2_Action},
    {"Survival3", &aFundletWindow::_Survival3_Action},
    {"FileRestore", &aFundletWindow::_FileRestore_Action},
    {"FileParams", &aFundletWindow::_FileParams_Action},
    {"AppAbout", &aFundletWindow::_AppAbout_Action},
    {"FileSave", &aFundletWindow::_FileSave_Action},
    {"HelpFundlet", &aFundletWindow::_HelpFundlet_Action},
};

}  // namespace

void aFundletWindow::Layout() {
  SetMenuBar(DefaultMenu::Instance());
  _SetProperties(EncodePropertySet(Properties(), main_layout::WindowProperties()));
}

void aFundletWindow::CreateControls() { _CreateControls0(); }

void aFundletWindow::_CreateControls0() {
  for (const main_layout::ControlRow& row : main_layout::Controls()) {
    const std::string name(row.name);
    _AddControl(name, NewControl(row.control_class, *this));
    Control& control = _ControlByName(name);
    control._SetProperties(
        EncodePropertySet(control.Properties(), main_layout::ControlProperties(row)));
    BindHandlers(*this, name);
  }
  for (const FocusCode code : kFocusCodes) {
    const main_layout::FieldRow& row = main_layout::Field(code);
    auto& field = ControlOf<TextField>(row.field);
    fields_[static_cast<std::size_t>(code) - 1] = &field;
    field.Pasting = std::bind_front(&PastedEntry, code);
    ControlOf<Label>(row.label).SetLabelFor(field);
  }
  AnnualDrawField().SetAnnounced();
}

void aFundletWindow::AddMenuHandlers() {
  for (const MenuHandler& row : kMenuHandlers) {
    _AddMenuHandler(row.item, std::bind_front(row.handler, this));
  }
}

}  // namespace fundlet
