#pragma once

#include <array>
#include <string>

#include "desktop/controls/label.h"
#include "desktop/controls/push_button.h"
#include "desktop/controls/shapes.h"
#include "desktop/controls/text_field.h"
#include "desktop/windows/window.h"
#include "plan/entry_fields.h"
#include "plan/entry_form.h"
#include "plan/plan.h"

namespace fundlet {

// The main window: it owns the one plan of the run and connects the plan's operations with the
// controls, the menus and the events. Opening it starts the program's work, closing it ends the
// program.
class aFundletWindow : public Window, private EntryForm {
 public:
  // The one main window, made, opened and shown at the first call.
  static aFundletWindow& Instance();

  aFundletWindow();

  Plan& ThePlan() { return plan_; }

  // The parts of the construction.
  void Layout();
  void CreateControls();
  void _CreateControls0();

  // The controls, looked up by name at each call.
  Label& StaticText1() const { return ControlOf<Label>("StaticText1"); }
  TextField& StartYearField() const { return ControlOf<TextField>("StartYearField"); }
  Label& StaticText2() const { return ControlOf<Label>("StaticText2"); }
  TextField& StartAgeField() const { return ControlOf<TextField>("StartAgeField"); }
  Label& StaticText3() const { return ControlOf<Label>("StaticText3"); }
  Label& StaticText4() const { return ControlOf<Label>("StaticText4"); }
  TextField& YearsLeftField() const { return ControlOf<TextField>("YearsLeftField"); }
  Label& StaticText5() const { return ControlOf<Label>("StaticText5"); }
  Label& StaticText6() const { return ControlOf<Label>("StaticText6"); }
  TextField& COLAField() const { return ControlOf<TextField>("COLAField"); }
  Label& StaticText7() const { return ControlOf<Label>("StaticText7"); }
  Separator& Separator1() const { return ControlOf<Separator>("Separator1"); }
  Label& StaticText8() const { return ControlOf<Label>("StaticText8"); }
  TextField& StartFundletField() const { return ControlOf<TextField>("StartFundletField"); }
  Label& StaticText9() const { return ControlOf<Label>("StaticText9"); }
  TextField& FundletAPRField() const { return ControlOf<TextField>("FundletAPRField"); }
  Label& StaticText10() const { return ControlOf<Label>("StaticText10"); }
  Label& StaticText11() const { return ControlOf<Label>("StaticText11"); }
  TextField& SocialSecurityField() const { return ControlOf<TextField>("SocialSecurityField"); }
  Separator& Separator2() const { return ControlOf<Separator>("Separator2"); }
  Label& StaticText13() const { return ControlOf<Label>("StaticText13"); }
  PushButton& CalculateButton() const { return ControlOf<PushButton>("CalculateButton"); }
  TextField& EndFundletField() const { return ControlOf<TextField>("EndFundletField"); }
  Label& AnnualDrawField() const { return ControlOf<Label>("AnnualDrawField"); }
  ProgressWheel& Windmill() const { return ControlOf<ProgressWheel>("Windmill"); }
  PushButton& PrintButton() const { return ControlOf<PushButton>("PrintButton"); }
  PushButton& SaveButton() const { return ControlOf<PushButton>("SaveButton"); }
  PushButton& RestoreButton() const { return ControlOf<PushButton>("RestoreButton"); }

  // The plan's operations on this window's plan.
  void CalculateDraw(double draw);
  void CalculateBalance(std::int64_t year, double draw);
  void CalculateSurvival(double fraction);
  void SaveSchedule();
  void SaveParameters();
  void RestoreParameters();
  void StartParameters();
  bool ErrorDetected();
  void DisplayParameters();
  void Refocus();

  // The handlers of the fields. KeyDown returns True if it has used the key.
  void StartYearField_GotFocus(TextField&) { GotFocus(FocusCode::StartYear); }
  void StartYearField_LostFocus(TextField&) { LostFocus(FocusCode::StartYear); }
  bool StartYearField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void StartAgeField_GotFocus(TextField&) { GotFocus(FocusCode::StartAge); }
  void StartAgeField_LostFocus(TextField&) { LostFocus(FocusCode::StartAge); }
  bool StartAgeField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void YearsLeftField_GotFocus(TextField&) { GotFocus(FocusCode::YearsLeft); }
  void YearsLeftField_LostFocus(TextField&) { LostFocus(FocusCode::YearsLeft); }
  bool YearsLeftField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void COLAField_GotFocus(TextField&) { GotFocus(FocusCode::COLA); }
  void COLAField_LostFocus(TextField&) { LostFocus(FocusCode::COLA); }
  bool COLAField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void StartFundletField_GotFocus(TextField&) { GotFocus(FocusCode::StartFundlet); }
  void StartFundletField_LostFocus(TextField&) { LostFocus(FocusCode::StartFundlet); }
  bool StartFundletField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void FundletAPRField_GotFocus(TextField&) { GotFocus(FocusCode::FundletAPR); }
  void FundletAPRField_LostFocus(TextField&) { LostFocus(FocusCode::FundletAPR); }
  bool FundletAPRField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void SocialSecurityField_GotFocus(TextField&) { GotFocus(FocusCode::SocialSecurity); }
  void SocialSecurityField_LostFocus(TextField&) { LostFocus(FocusCode::SocialSecurity); }
  bool SocialSecurityField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }
  void EndFundletField_GotFocus(TextField&) { GotFocus(FocusCode::EndFundlet); }
  void EndFundletField_LostFocus(TextField&) { LostFocus(FocusCode::EndFundlet); }
  bool EndFundletField_KeyDown(TextField&, const std::string& key) { return KeyDown(key); }

  // The handlers of the buttons. The names are fixed and differ from the captions: PrintButton
  // saves the schedule, SaveButton remembers the parameters, RestoreButton recalls them.
  void CalculateButton_Action(PushButton& button);
  void PrintButton_Action(PushButton& button);
  void SaveButton_Action(PushButton& button);
  void RestoreButton_Action(PushButton& button);

  // The events of the window.
  bool EndsProgram() const override { return true; }
  void Event_Open() override;
  void Event_Activate() override;
  void Event_Close() override;
  void Event_EnableMenuItems() override;
  bool Event_KeyDown(const std::string& key) override;
  void AddMenuHandlers();

  // The handlers of the menu items, whose results are ignored. Survival2, Survival3 and Survival8
  // stand for one half, one quarter and one eighth; FileParams remembers the parameters,
  // FileRestore recalls them, FileSave saves the schedule.
  bool _Survival8_Action();
  bool _Survival2_Action();
  bool _Survival3_Action();
  bool _FileRestore_Action();
  bool _FileParams_Action();
  bool _AppAbout_Action();
  bool _FileSave_Action();
  bool _HelpFundlet_Action();

  // The menu items, looked up by name at each call.
  MenuItem& HelpMenu() const { return Item<MenuItem>("HelpMenu"); }
  MenuItem& HelpFundlet() const { return Item<MenuItem>("HelpFundlet"); }
  MenuItem& UntitledMenu0() const { return Item<MenuItem>("UntitledMenu0"); }
  MenuItem& EditMenu() const { return Item<MenuItem>("EditMenu"); }
  AppleMenuItem& UntitledMenu3() const { return Item<AppleMenuItem>("UntitledMenu3"); }
  MenuItem& UntitledMenu7() const { return Item<MenuItem>("UntitledMenu7"); }
  MenuItem& EditSurvival() const { return Item<MenuItem>("EditSurvival"); }
  MenuItem& UntitledMenu8() const { return Item<MenuItem>("UntitledMenu8"); }
  MenuItem& Survival8() const { return Item<MenuItem>("Survival8"); }
  MenuItem& UntitledMenu9() const { return Item<MenuItem>("UntitledMenu9"); }
  MenuItem& Survival3() const { return Item<MenuItem>("Survival3"); }
  MenuItem& UntitledMenu10() const { return Item<MenuItem>("UntitledMenu10"); }
  MenuItem& Survival2() const { return Item<MenuItem>("Survival2"); }
  MenuItem& UntitledMenu11() const { return Item<MenuItem>("UntitledMenu11"); }
  MenuItem& UntitledMenu1() const { return Item<MenuItem>("UntitledMenu1"); }
  MenuItem& EditClear() const { return Item<MenuItem>("EditClear"); }
  MenuItem& EditPaste() const { return Item<MenuItem>("EditPaste"); }
  MenuItem& EditCopy() const { return Item<MenuItem>("EditCopy"); }
  MenuItem& EditCut() const { return Item<MenuItem>("EditCut"); }
  MenuItem& UntitledMenu2() const { return Item<MenuItem>("UntitledMenu2"); }
  MenuItem& EditUndo() const { return Item<MenuItem>("EditUndo"); }
  MenuItem& FileMenu() const { return Item<MenuItem>("FileMenu"); }
  MenuItem& UntitledMenu12() const { return Item<MenuItem>("UntitledMenu12"); }
  AppleMenuItem& AppAbout() const { return Item<AppleMenuItem>("AppAbout"); }
  QuitMenuItem& FileQuit() const { return Item<QuitMenuItem>("FileQuit"); }
  MenuItem& UntitledMenu4() const { return Item<MenuItem>("UntitledMenu4"); }
  MenuItem& FileRestore() const { return Item<MenuItem>("FileRestore"); }
  MenuItem& FileParams() const { return Item<MenuItem>("FileParams"); }
  MenuItem& UntitledMenu5() const { return Item<MenuItem>("UntitledMenu5"); }
  MenuItem& FileSave() const { return Item<MenuItem>("FileSave"); }
  MenuItem& UntitledMenu6() const { return Item<MenuItem>("UntitledMenu6"); }

 private:
  // EntryForm.
  std::string Text(FocusCode field) const override;
  void SetText(FocusCode field, const std::string& text) override;
  void SelectAll(FocusCode field) override;
  void SetFocus(FocusCode field) override;
  void ShowResult(const std::string& text) override;
  void Alert(const std::string& message) override;

  TextField& Field(FocusCode field) const { return *fields_[static_cast<std::size_t>(field) - 1]; }
  template <typename ItemClass>
  ItemClass& Item(const char* name) const;
  void PlaceOnScreen();
  // Sets the life expectancy by the life table, shows it and moves the focus to it. Returns False.
  bool FillInLifeExpectancy(double fraction);

  void GotFocus(FocusCode field) { EnterField(plan_, field, *this); }
  void LostFocus(FocusCode field) { LeaveField(plan_, field, *this); }
  static bool KeyDown(const std::string& key);

  Plan plan_;
  std::array<TextField*, kFocusCodes.size()> fields_ = {};  // in the order of their codes
};

template <typename ItemClass>
ItemClass& aFundletWindow::Item(const char* name) const {
  auto* item = dynamic_cast<ItemClass*>(&MenuBar()._Lookup(name));
  if (item == nullptr) {
    throw NilObjectException("The menu item “" + std::string(name) + "” is of another class.");
  }
  return *item;
}

}  // namespace fundlet
