#pragma once

namespace fundlet {

// The usable area of a screen, without system bars, in pixels. Screen 0 is the primary one; all is
// 0 for a number that no screen has.
struct Screen {
  explicit Screen(int number);

  int AvailableLeft = 0;
  int AvailableTop = 0;
  int AvailableWidth = 0;
  int AvailableHeight = 0;
};

}  // namespace fundlet
