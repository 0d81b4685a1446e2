#pragma once

#include <functional>
#include <optional>

#include "desktop/controls/control.h"

namespace fundlet {

// A one-line text that the user can edit. Offsets and lengths count characters.
class TextField : public TextControl {
 public:
  explicit TextField(ControlOwner& owner);

  std::string Text() const;
  // What the program writes stands, also where it is longer than the limit.
  void SetText(std::string_view text);
  void SetSelStart(std::int64_t start);    // puts the caret there; nothing is selected then
  void SetSelLength(std::int64_t length);  // selects from SelStart
  std::int64_t SelStart() const;
  std::int64_t SelLength() const;
  // The largest number of characters that what the user enters can bring the text to; 0 for none.
  void SetLimitText(std::int64_t limit);
  void SetAlignment(std::int64_t alignment);  // one of kFieldAlignment
  void SetReadOnly(bool read_only);
  void SetPassword(bool password);
  void SetBorder(bool border);
  void SetBackColor(Colour colour);
  void SetTextColor(Colour colour);
  void SetCueText(std::string_view text);

  // The focus has come to the field, or gone from it.
  std::function<void(TextField&)> GotFocus;
  std::function<void(TextField&)> LostFocus;
  // A key was pressed, given as its one-character text, before the field acts on it. True uses the
  // key up.
  std::function<bool(TextField&, const std::string& key)> KeyDown;

  // A text is put into the field from elsewhere. Given what would then stand there, and the limit;
  // gives what shall stand there, or nothing to refuse it.
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
  // A selection made while the field did not have the focus: it is seen when the focus comes.
  struct Selection {
    std::int64_t start;
    std::int64_t length;
  };
  bool HasFocus() const;
  void Select(Selection selection);

  std::optional<Selection> waiting_selection_;
  bool beyond_limit_ = false;  // what the program has written last
  std::string longest_text_;   // of those within the limit that the program has written
};

}  // namespace fundlet
