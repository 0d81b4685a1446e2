#include "desktop/controls/text_field.h"

#include <array>
#include <utility>

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/controls/entry_widget.h"
#include "desktop/controls/focus_reporting.h"
#include "desktop/controls/keys.h"
#include "desktop/controls/qt_properties.h"
#include "services/text.h"

namespace fundlet {

namespace {

class FieldWidget : public FocusReporting<EntryWidget> {
 public:
  using FocusReporting::FocusReporting;

  // The width in which a text and the caret after it are visible as a whole.
  int WidthForText() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QMargins margins = textMargins();
    constexpr int kOwnMargins = 4;
    constexpr int kCaret = 1;
    return contents.width() - margins.left() - margins.right() - kOwnMargins - kCaret;
  }

 protected:
  void focusInEvent(QFocusEvent* event) override {
    // The click that gives the focus selects the whole text; its release must not change that.
    press_selected_all_ = event->reason() == Qt::MouseFocusReason;
    FocusReporting::focusInEvent(event);
  }
  void AboutToReplace() override { Attached().SetFocus(); }
  // If the window is inactive, its coming activation would overwrite the text with the plan's
  // value, so the text is read into the plan first.
  void Replaced() override {
    if (isActiveWindow()) return;
    Owner().OnFocusLost(Attached());
    activateWindow();
  }
  // QLineEdit's own menu asks for the clipboard's content, and its owner may not answer.
  void contextMenuEvent(QContextMenuEvent* event) override {
    Owner().ShowEditMenu(event->globalPos());
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (ProgramUses(*event) || Owner().PressButtonFor(*event)) {
      event->accept();
    } else {
      FocusReporting::keyPressEvent(event);
      // The program has been offered the key already, so it does not go on to the window.
      event->accept();
    }
  }

 private:
  bool ProgramUses(const QKeyEvent& event) {
    bool used = false;
    const std::string key = KeyText(event);
    auto& field = static_cast<TextField&>(Attached());
    if (key.empty() || !field.KeyDown) return used;
    Gate().EnterWithin([&] { used = field.KeyDown(field, key); });
    return used;
  }
};

FieldWidget& FieldOf(const Control& control) {
  return static_cast<FieldWidget&>(*control.Native());
}

}  // namespace

TextField::TextField(ControlOwner& owner) : TextControl(owner, new FieldWidget(owner)) {
  FieldOf(*this).AttachTo(*this);
  FieldOf(*this).setFocusPolicy(Qt::StrongFocus);
  FieldOf(*this).FilterInsertion = [this](const QString& outcome) -> std::optional<QString> {
    if (!Pasting) return outcome;
    std::optional<std::string> entry;
    Gate().EnterWithin([&] { entry = Pasting(FromQt(outcome), FieldOf(*this).Limit()); });
    return entry ? std::optional(ToQt(*entry)) : std::nullopt;
  };
}

std::string TextField::Text() const { return FromQt(FieldOf(*this).text()); }

void TextField::SetText(std::string_view text) {
  const int limit = FieldOf(*this).Limit();
  FieldOf(*this).Write(ToQt(text));
  waiting_selection_.reset();
  const bool beyond_limit = limit > 0 && Len(text) > static_cast<std::size_t>(limit);
  const bool widest = !beyond_limit && text.size() > longest_text_.size();
  if (widest) longest_text_ = text;
  if (std::exchange(beyond_limit_, beyond_limit) || beyond_limit || widest) FitText();
}

// A text beyond the limit is condensed too, so that the whole number is visible.
std::string TextField::WidestText() const { return beyond_limit_ ? Text() : longest_text_; }

bool TextField::HasFocus() const { return Owner().Focused() == this; }

void TextField::SetSelStart(std::int64_t start) { Select({start, 0}); }
void TextField::SetSelLength(std::int64_t length) { Select({SelStart(), length}); }

void TextField::Select(Selection selection) {
  QLineEdit& field = FieldOf(*this);
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
  const QLineEdit& field = FieldOf(*this);
  const int start = field.hasSelectedText() ? field.selectionStart() : field.cursorPosition();
  return CharactersOf(field.text(), start);
}

std::int64_t TextField::SelLength() const {
  if (waiting_selection_) return waiting_selection_->length;
  const QString selected = FieldOf(*this).selectedText();
  return CharactersOf(selected, static_cast<int>(selected.size()));
}

void TextField::SetLimitText(std::int64_t limit) {
  FieldOf(*this).SetLimit(static_cast<int>(limit));
}

void TextField::SetAlignment(std::int64_t alignment) {
  FieldOf(*this).setAlignment(AlignmentOf(alignment, kFieldAlignment));
}

void TextField::SetReadOnly(bool read_only) { FieldOf(*this).setReadOnly(read_only); }
void TextField::SetPassword(bool password) {
  FieldOf(*this).setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
}
void TextField::SetBorder(bool border) { FieldOf(*this).setFrame(border); }

void TextField::SetBackColor(Colour colour) { SetColour(FieldOf(*this), QPalette::Base, colour); }
void TextField::SetTextColor(Colour colour) { SetColour(FieldOf(*this), QPalette::Text, colour); }
void TextField::SetCueText(std::string_view text) { FieldOf(*this).setPlaceholderText(ToQt(text)); }

int TextField::WidthForText() const { return FieldOf(*this).WidthForText(); }

void TextField::FireGotFocus() {
  if (const auto selection = std::exchange(waiting_selection_, std::nullopt)) Select(*selection);
  if (GotFocus) GotFocus(*this);
}

void TextField::CommitComposition() { FieldOf(*this).CommitComposition(); }

void TextField::FireLostFocus() {
  CommitComposition();
  if (LostFocus) LostFocus(*this);
  FieldOf(*this).setCursorPosition(0);
}

bool TextField::CanEdit(EditCommand command) const {
  const QLineEdit& field = FieldOf(*this);
  if (!HasFocus() || (field.isReadOnly() && command != EditCommand::Copy)) return false;
  switch (command) {
    case EditCommand::Undo:
      return field.isUndoAvailable();
    case EditCommand::Cut:
    case EditCommand::Copy:
      return field.hasSelectedText() && field.echoMode() == QLineEdit::Normal;
    case EditCommand::Paste:
      return true;  // the clipboard is not asked, because its owner may not answer
    case EditCommand::Clear:
      return field.hasSelectedText();
    case EditCommand::None:
      break;
  }
  return false;
}

void TextField::Edit(EditCommand command) {
  FieldWidget& field = FieldOf(*this);
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
                 {"Alignment", kFieldAlignment.left, kThrough<&TextField::SetAlignment>},
                 {"AcceptTabs", false},
                 {"LimitText", 0, kThrough<&TextField::SetLimitText>},
                 {"ReadOnly", false, kThrough<&TextField::SetReadOnly>},
                 {"Mask", ""},
                 {"Text", "", kThrough<&TextField::SetText>},
                 {"CueText", "", kThrough<&TextField::SetCueText>},
             }),
             kFontRows,
             std::to_array<PropertyRow>({
                 {"AutoDeactivate", true},
                 {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                 {"Visible", true, kThrough<&Control::SetVisible>},
                 {"Format", ""},
                 {"Enabled", true, kThrough<&Control::SetEnabled>},
                 {"BackColor", kWhite, kThrough<&TextField::SetBackColor>},
                 {"TextColor", kBlack, kThrough<&TextField::SetTextColor>},
                 {"UseFocusRing", true, kThrough<&Control::SetUseFocusRing>},
                 {"Password", false, kThrough<&TextField::SetPassword>},
                 {"Border", true, kThrough<&TextField::SetBorder>},
                 {"TabStop", true},
             }),
             kCommonRows);
  return rows;
}

}  // namespace fundlet
