#pragma once

namespace fundlet {

// The usable area of a screen, without system bars, in pixels. Screen 0 is the primary one; all is
// 0 for a number that no screen has.
class Screen {
 public:
  explicit Screen(int number);

  int AvailableLeft() const { return left_; }
  int AvailableTop() const { return top_; }
  int AvailableWidth() const { return width_; }
  int AvailableHeight() const { return height_; }

 private:
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
};

}  // namespace fundlet
