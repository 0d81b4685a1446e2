#pragma once

namespace fundlet {

// A moment of the local calendar; a new one holds the present moment.
class Date {
 public:
  Date();
  int Year() const { return year_; }

 private:
  int year_;
};

}  // namespace fundlet
