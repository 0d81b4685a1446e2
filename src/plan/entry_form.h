#pragma once

#include <string>

#include "plan/plan.h"

namespace fundlet {

// What the plan needs of the main window: the eight fields with their texts, the line of the
// result, and the alert. Texts are UTF-8. `field` is never None.
class EntryForm {
 public:
  virtual ~EntryForm() = default;

  virtual std::string Text(FocusCode field) const = 0;
  virtual void SetText(FocusCode field, const std::string& text) = 0;
  virtual void SelectAll(FocusCode field) = 0;  // selects the whole text; the focus stays
  virtual void SetFocus(FocusCode field) = 0;
  virtual void ShowResult(const std::string& text) = 0;
  virtual void Alert(const std::string& message) = 0;  // returns when the user has closed it
};

}  // namespace fundlet
