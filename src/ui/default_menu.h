#pragma once

#include "desktop/base/menu.h"

namespace fundlet {

// The one menu bar of the program: its tree is built once and shared by the application and its
// windows.
class DefaultMenu : public MenuBar {
 public:
  // The one instance, made at the first call.
  static DefaultMenu& Instance();

 private:
  DefaultMenu();
  // Each builds one of the top-level menus.
  static void Untitled0(MenuBar& menu);
  static void Untitled1(MenuBar& menu);
  static void Untitled2(MenuBar& menu);
  static void Untitled3(MenuBar& menu);
  static void Untitled4(MenuBar& menu);
};

// The Copy item of the application's menus.
MenuItem& EditCopy();

}  // namespace fundlet
