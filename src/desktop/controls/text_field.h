#pragma once

#include <functional>
#include <optional>

#include "desktop/controls/control.h"

namespace fundlet {

// A one-line text that the user can edit. Offsets and lengths count characters; they are clamped to
// the text, and lengths must not be negative.
class TextField : public TextControl {
 public:
  explicit TextField(ControlOwner& owner);

  std::string Text() const;
  // Also sets a text that is longer than the limit.
  void SetText(std::string_view text);
  void SetSelStart(std::int64_t start);    // puts the caret there; nothing is selected then
  void SetSelLength(std::int64_t length);  // selects from SelStart
  std::int64_t SelStart() const;
  std::int64_t SelLength() const;

  // The field has gained or lost the focus.
  std::function<void(TextField&)> GotFocus;
  std::function<void(TextField&)> LostFocus;
  // A key with a text (KeyText) is pressed. Called before the field acts on it; if the handler
  // returns true, the field ignores the key.
  std::function<bool(TextField&, const std::string& key)> KeyDown;

  // Text is being pasted or dropped. Gets the text that would result and the limit in characters;
  // returns the text to set, or nullopt to refuse.
  std::function<std::optional<std::string>(const std::string& text, std::size_t limit)> Pasting;

  void FireGotFocus() override;
  void FireLostFocus() override;
  bool LosesFocusWithWindow() const override { return true; }
  void CommitComposition() override;
  bool CanEdit(EditCommand command) const override;
  void Edit(EditCommand command) override;

  PropertyTable Properties() const override;

 protected:
  std::string WidestText() const override;
  int WidthForText() const override;

 private:
  // A selection that is set while the field does not have the focus; made when it gains the focus.
  struct Selection {
    std::int64_t start;
    std::int64_t length;
  };
  bool HasFocus() const;
  void Select(Selection selection);

  bool IsBeyondLimit() const;

  std::optional<Selection> waiting_selection_;
  std::string longest_text_;  // the longest within the limit that SetText has set
};

}  // namespace fundlet
