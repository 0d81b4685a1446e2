#pragma once

namespace fundlet {

// A screen of the desktop, by its number; 0 is the main one. The figures are those of the part that
// no system bar takes, in pixels.
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
