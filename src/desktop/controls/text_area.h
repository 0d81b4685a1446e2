#pragma once

#include <functional>

#include "desktop/controls/control.h"

namespace fundlet {

// A text of many lines, wrapped at the control's width. A carriage return ends a line. Offsets and
// lengths count characters; they are clamped to the text, and lengths must not be negative.
class TextArea : public TextControl {
 public:
  explicit TextArea(ControlOwner& owner);

  std::string Text() const;
  void SetText(std::string_view text);
  // Neither scrolls the page.
  void SetSelStart(std::int64_t start);
  void SetSelLength(std::int64_t length);
  std::int64_t SelStart() const;
  std::int64_t SelLength() const;

  std::function<void(TextArea&)> GotFocus;

  void FireGotFocus() override;
  // Only Copy, also while another control has the focus: the selection stays.
  bool CanEdit(EditCommand command) const override;
  void Edit(EditCommand command) override;

  PropertyTable Properties() const override;

 private:
  void Select(std::int64_t start, std::int64_t length);
};

}  // namespace fundlet
