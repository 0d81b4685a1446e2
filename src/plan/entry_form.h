#pragma once

#include <string>

#include "plan/plan.h"

namespace fundlet {

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
