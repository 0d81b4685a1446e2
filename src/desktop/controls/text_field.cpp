#include "desktop/controls/text_field.h"

#include <array>
#include <utility>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"
#include "desktop/controls/entry_widget.h"
#include "services/text.h"

namespace fundlet {

TextField::TextField(ControlOwner& owner) : TextControl(owner, new EntryWidget) {
  NativeAs<EntryWidget>().AttachTo(*this);
}

std::string TextField::Text() const { return FromQt(NativeAs<QLineEdit>().text()); }

void TextField::SetText(std::string_view text) {
  NativeAs<EntryWidget>().Write(ToQt(text));
  waiting_selection_.reset();
  if (!IsBeyondLimit() && text.size() > longest_text_.size()) longest_text_ = text;
  FitText();
}

bool TextField::IsBeyondLimit() const {
  const std::size_t limit = NativeAs<EntryWidget>().Limit();
  return limit > 0 && Len(Text()) > limit;
}

// A text beyond the limit is condensed too, so that the whole number is visible.
std::string TextField::WidestText() const { return IsBeyondLimit() ? Text() : longest_text_; }

bool TextField::HasFocus() const { return Owner().Focused() == this; }

void TextField::SetSelStart(std::int64_t start) { Select({start, 0}); }
void TextField::SetSelLength(std::int64_t length) { Select({SelStart(), length}); }

void TextField::Select(Selection selection) {
  auto& field = NativeAs<QLineEdit>();
  const int begin = UnitsOf(field.text(), selection.start);
  const int end = UnitsOf(field.text(), selection.start + selection.length);
  if (!HasFocus()) {
    const std::int64_t start = CharactersOf(field.text(), begin);
    waiting_selection_ = {start, CharactersOf(field.text(), end) - start};
    return;
  }
  field.deselect();
  field.setCursorPosition(begin);
  if (end > begin) field.setSelection(begin, end - begin);
}

std::int64_t TextField::SelStart() const {
  if (waiting_selection_) return waiting_selection_->start;
  const auto& field = NativeAs<QLineEdit>();
  const int start = field.hasSelectedText() ? field.selectionStart() : field.cursorPosition();
  return CharactersOf(field.text(), start);
}

std::int64_t TextField::SelLength() const {
  if (waiting_selection_) return waiting_selection_->length;
  const QString selected = NativeAs<QLineEdit>().selectedText();
  return CharactersOf(selected, static_cast<int>(selected.size()));
}

int TextField::WidthForText() const { return NativeAs<EntryWidget>().WidthForText(); }

void TextField::FireGotFocus() {
  if (const auto selection = std::exchange(waiting_selection_, std::nullopt)) Select(*selection);
  if (GotFocus) GotFocus(*this);
}

void TextField::CommitComposition() { NativeAs<EntryWidget>().CommitComposition(); }

void TextField::FireLostFocus() {
  CommitComposition();
  if (LostFocus) LostFocus(*this);
  NativeAs<QLineEdit>().setCursorPosition(0);
}

bool TextField::CanEdit(EditCommand command) const {
  const auto& field = NativeAs<QLineEdit>();
  if (!HasFocus() || (field.isReadOnly() && command != EditCommand::Copy)) return false;
  // The clipboard is not asked, because its owner may not answer.
  if (command == EditCommand::Paste) return true;
  if (command == EditCommand::Undo) return field.isUndoAvailable();
  if (command == EditCommand::Clear) return field.hasSelectedText();
  return command != EditCommand::None && field.hasSelectedText() &&
         field.echoMode() == QLineEdit::Normal;
}

void TextField::Edit(EditCommand command) {
  auto& field = NativeAs<EntryWidget>();
  if (command == EditCommand::Undo) field.undo();
  if (command == EditCommand::Cut) field.cut();
  if (command == EditCommand::Copy) field.copy();
  if (command == EditCommand::Paste) field.PasteFrom(QClipboard::Clipboard);
  if (command == EditCommand::Clear) field.del();
}

PropertyTable TextField::Properties() const {
  static const auto rows =
      Joined(kDataBindingRows,
             std::to_array<PropertyRow>({
                 {"AutomaticallyCheckSpelling", false},
                 {"Alignment", kFieldAlignment.left, &SetAlignment<QLineEdit, kFieldAlignment>},
                 {"AcceptTabs", false},
                 {"LimitText", 0, kThroughWidget<&EntryWidget::SetLimit>},
                 {"ReadOnly", false, kThroughWidget<&QLineEdit::setReadOnly>},
                 {"Mask", ""},
                 {"Text", "", kThrough<&TextField::SetText>},
                 {"CueText", "", kThroughWidget<&EntryWidget::SetCueText>},
             }),
             kFontRows,
             std::to_array<PropertyRow>({
                 {"AutoDeactivate", true},
                 {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                 {"Visible", true, kThrough<&Control::SetVisible>},
                 {"Format", ""},
                 {"Enabled", true, kThrough<&Control::SetEnabled>},
                 {"BackColor", kWhite, &SetColour<QPalette::Base>},
                 {"TextColor", kBlack, &SetColour<QPalette::Text>},
                 {"UseFocusRing", true, kThrough<&Control::SetUseFocusRing>},
                 {"Password", false, kThroughWidget<&EntryWidget::SetPassword>},
                 {"Border", true, kThroughWidget<&QLineEdit::setFrame>},
                 {"TabStop", true},
             }),
             kCommonRows);
  return rows;
}

}  // namespace fundlet
