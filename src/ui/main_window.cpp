#include "ui/main_window.h"

#include "desktop/base/screen.h"
#include "desktop/dialogs/save_dialog.h"
#include "desktop/run/runtime.h"
#include "files/draw_schedule.h"
#include "files/remembered_parameters.h"
#include "plan/draw_solver.h"
#include "plan/life_table.h"
#include "plan/parameters_file.h"
#include "plan/validation.h"
#include "services/text.h"
#include "ui/about_panel.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {

namespace {

constexpr int kTitleBarHeight = 24;  // pixels above the content

}  // namespace

aFundletWindow& aFundletWindow::Instance() {
  return static_cast<aFundletWindow&>(ImplicitInstance(
      "aFundletWindow.aFundletWindow", [] { return std::make_unique<aFundletWindow>(); }));
}

aFundletWindow::aFundletWindow() {
  Layout();
  CreateControls();
  AddMenuHandlers();
}

void aFundletWindow::PlaceOnScreen() {
  const Screen screen(0);
  SetLeft((screen.AvailableWidth - Width()) / 2);
  if (screen.AvailableHeight <= Height()) {
    SetTop(screen.AvailableTop + kTitleBarHeight);
  } else {
    SetTop(screen.AvailableTop + (screen.AvailableHeight - Height() - kTitleBarHeight) / 2);
  }
}

void aFundletWindow::Event_Open() {
  PlaceOnScreen();
  FillSurviving(plan_);
  StartParameters();
  plan_.WindowOpened = true;
}

void aFundletWindow::Event_Activate() {
  if (plan_.WindowOpened) {
    plan_.WindowOpened = false;
    DisplayParameters();
    SelectAll(FocusCode::StartYear);
    ShowResult(ResultText(0.0));
  } else if (plan_.ErrorFocus != FocusCode::None) {
    plan_.TheFocus = plan_.ErrorFocus;
  }
  Refocus();
}

void aFundletWindow::Event_Close() { Quit(0); }

void aFundletWindow::Event_EnableMenuItems() {
  AppAbout().Enable();
  if (plan_.OKtoPrint) {
    FileSave().Enable();
  } else {
    FileSave().Disable();
  }
  FileParams().Enable();
  FileRestore().Enable();
  ReadField(plan_, FocusCode::StartAge, Text(FocusCode::StartAge));
  EditSurvival().Enable();
  Survival2().Enable();
  Survival3().Enable();
  Survival8().Enable();
}

bool aFundletWindow::Event_KeyDown(const std::string& key) { return KeyDown(key); }

bool aFundletWindow::KeyDown(const std::string& key) {
  if (key != App().HelpKey) return false;
  aHelpWindow::ShowHelp();
  return true;
}

void aFundletWindow::CalculateButton_Action(PushButton& /*button*/) {
  ClearFocus();
  if (ErrorDetected()) return;
  PrepareArrays(plan_);
  Windmill().SetVisible(true);
  Windmill().Refresh(true);
  plan_.OKtoPrint = true;
  CalculateDraw(InitialGuess(plan_));
  ShowResult(ResultText(plan_.AnnualDraw));
  Windmill().SetVisible(false);
  Windmill().Refresh(true);
  PrintButton().SetEnabled(plan_.OKtoPrint);
  if (plan_.OKtoPrint) {
    Refocus();
  } else {
    GlobalModule::AlertBox("Unable to calculate annual draw with these parameters.");
  }
}

void aFundletWindow::PrintButton_Action(PushButton& /*button*/) { SaveSchedule(); }
void aFundletWindow::SaveButton_Action(PushButton& /*button*/) { SaveParameters(); }
void aFundletWindow::RestoreButton_Action(PushButton& /*button*/) { RestoreParameters(); }

void aFundletWindow::CalculateDraw(double draw) { fundlet::CalculateDraw(plan_, draw); }

void aFundletWindow::CalculateBalance(std::int64_t year, double draw) {
  fundlet::CalculateBalance(plan_, year, draw);
}

void aFundletWindow::CalculateSurvival(double fraction) {
  fundlet::CalculateSurvival(plan_, fraction);
}

void aFundletWindow::SaveSchedule() {
  const auto file = GetSaveFolderItem("", kScheduleFileName);
  if (file) fundlet::SaveSchedule(plan_, *file);
}

void aFundletWindow::SaveParameters() { fundlet::SaveParameters(plan_, *this); }
void aFundletWindow::RestoreParameters() { fundlet::RestoreParameters(plan_, *this); }

void aFundletWindow::StartParameters() { fundlet::StartParameters(plan_, *this); }

bool aFundletWindow::ErrorDetected() { return fundlet::ErrorDetected(plan_, *this); }
void aFundletWindow::DisplayParameters() { fundlet::DisplayParameters(plan_, *this); }
void aFundletWindow::Refocus() { fundlet::Refocus(plan_, *this); }

bool aFundletWindow::FillInLifeExpectancy(double fraction) {
  CalculateSurvival(fraction);
  SetText(FocusCode::YearsLeft, Str(plan_.YearsLeft));
  SetFocus(FocusCode::YearsLeft);
  return false;
}

bool aFundletWindow::_Survival8_Action() { return FillInLifeExpectancy(0.125); }
bool aFundletWindow::_Survival2_Action() { return FillInLifeExpectancy(0.5); }
bool aFundletWindow::_Survival3_Action() { return FillInLifeExpectancy(0.25); }

bool aFundletWindow::_FileRestore_Action() {
  RestoreParameters();
  return false;
}

bool aFundletWindow::_FileParams_Action() {
  SaveParameters();
  return false;
}

bool aFundletWindow::_AppAbout_Action() { return ShowAboutPanel(); }

bool aFundletWindow::_FileSave_Action() {
  SaveSchedule();
  return false;
}

bool aFundletWindow::_HelpFundlet_Action() {
  aHelpWindow::ShowHelp();
  return false;
}

std::string aFundletWindow::Text(FocusCode field) const { return Field(field).Text(); }

void aFundletWindow::SetText(FocusCode field, const std::string& text) {
  Field(field).SetText(text);
}

void aFundletWindow::SelectAll(FocusCode field) {
  TextField& control = Field(field);
  control.SetSelStart(0);
  control.SetSelLength(static_cast<std::int64_t>(Len(control.Text())));
}

void aFundletWindow::SetFocus(FocusCode field) { Field(field).SetFocus(); }
void aFundletWindow::ShowResult(const std::string& text) { AnnualDrawField().SetText(text); }
void aFundletWindow::Alert(const std::string& message) { GlobalModule::AlertBox(message); }

}  // namespace fundlet
