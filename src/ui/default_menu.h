#pragma once

#include "desktop/base/menu.h"

namespace fundlet {

// The one menu bar of the program, which the application and all windows share.
class DefaultMenu : public MenuBar {
 public:
  // The one instance, built at the first call.
  static DefaultMenu& Instance();

 private:
  DefaultMenu();
  // Each builds one top-level menu.
  static void Untitled0(MenuBar& menu);
  static void Untitled1(MenuBar& menu);
  static void Untitled2(MenuBar& menu);
  static void Untitled3(MenuBar& menu);
  static void Untitled4(MenuBar& menu);
};

// The Copy item of the application's menus.
MenuItem& EditCopy();

}  // namespace fundlet
