#pragma once

namespace fundlet {

// The moment of the object's creation, in the local time zone.
class Date {
 public:
  Date();
  int Year() const { return year_; }

 private:
  int year_;
};

}  // namespace fundlet
