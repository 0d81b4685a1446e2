#pragma once

namespace fundlet {

// A moment in the local time zone: that of its creation.
class Date {
 public:
  Date();
  int Year() const { return year_; }

 private:
  int year_;
};

}  // namespace fundlet
