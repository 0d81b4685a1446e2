#pragma once

#include <cstdint>
#include <string>

namespace fundlet {

// The numbers of the eight entry fields, in the order in which validation reads them.
enum class FocusCode : std::int64_t {
  StartYear = 1,
  StartAge = 2,
  YearsLeft = 3,
  COLA = 4,
  StartFundlet = 5,
  FundletAPR = 6,
  SocialSecurity = 7,
  EndFundlet = 8,
};

// The window as the plan sees it: eight texts that it can read, rewrite, select and put the user
// on, one line for the result, and a way to say something. Texts are UTF-8.
class EntryForm {
 public:
  virtual ~EntryForm() = default;

  virtual std::string Text(FocusCode field) const = 0;
  virtual void SetText(FocusCode field, const std::string& text) = 0;
  virtual void SelectAll(FocusCode field) = 0;  // selects the whole text, moves no focus
  virtual void SetFocus(FocusCode field) = 0;
  virtual void ShowResult(const std::string& text) = 0;
  virtual void Alert(const std::string& message) = 0;  // returns when it has been dismissed
};

}  // namespace fundlet
