#pragma once

#include <span>

#include "desktop/controls/push_button.h"
#include "desktop/controls/text_area.h"
#include "desktop/windows/window.h"

namespace fundlet {

// The properties in which the window and its controls differ from the defaults of their classes.
namespace help_layout {

std::span<const Property> WindowProperties();
std::span<const Property> TextFieldProperties();
std::span<const Property> DoneButtonProperties();

}  // namespace help_layout

// The window with the help page: its text is read-only, and its two controls follow its size. At
// most one is open; a closed one is never shown again.
class aHelpWindow : public Window {
 public:
  aHelpWindow();

  // Brings the open help window to the front, or makes a new one where none is open.
  static void ShowHelp();

  void Layout();
  void CreateControls();
  void _CreateControls0();
  fundlet::TextArea& TextField() const;
  PushButton& DoneButton() const;

  void TextField_GotFocus(fundlet::TextArea& area);
  void DoneButton_Action(PushButton& button);
  void AddMenuHandlers();
  void Event_Resized() override;
  void Event_Close() override;
  void Event_EnableMenuItems() override;
  void Event_Open() override;
  // Does nothing: the help is in front already. False.
  bool _HelpFundlet_Action();
};

}  // namespace fundlet
