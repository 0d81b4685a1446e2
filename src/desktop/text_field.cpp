#include "desktop/text_field.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

#include "desktop/focus_reporting.h"
#include "desktop/native_window.h"
#include "desktop/qt_colour.h"
#include "desktop/qt_text.h"
#include "services/text.h"

namespace fundlet {

namespace {

constexpr int kNoLimit = 32767;

class FieldWidget : public FocusReporting<QLineEdit> {
 public:
  FieldWidget(Window& window, TextField& field) : FocusReporting(window, field), field_(field) {}

  // The width that a text can have and be seen whole, the caret behind it included.
  int TextRoom() const {
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
    // The click that brings the focus selects the whole text, and must not undo that.
    brought_by_click_ = event->reason() == Qt::MouseFocusReason;
    FocusReporting::focusInEvent(event);
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (!brought_by_click_) FocusReporting::mousePressEvent(event);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (!brought_by_click_) FocusReporting::mouseMoveEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (!brought_by_click_) FocusReporting::mouseReleaseEvent(event);
    brought_by_click_ = false;
  }
  // The toolkit's own menu asks the clipboard, whose holder may not answer.
  void contextMenuEvent(QContextMenuEvent* event) override {
    static_cast<NativeWindow*>(window())->ShowMenuAt("EditMenu", event->globalPos());
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (ProgramUses(*event) || static_cast<NativeWindow*>(window())->HandleKey(*event)) {
      event->accept();
    } else {
      FocusReporting::keyPressEvent(event);
      // What the field has no use for either has been offered to the program already.
      event->accept();
    }
  }

 private:
  bool ProgramUses(const QKeyEvent& event) {
    bool used = false;
    const std::string key = KeyText(event);
    if (key.empty() || !field_.KeyDown) return used;
    ProgramGate::Instance().EnterWithin("", [&] { used = field_.KeyDown(field_, key); });
    return used;
  }

  TextField& field_;
  bool brought_by_click_ = false;
};

FieldWidget& FieldOf(const Control& control) {
  return static_cast<FieldWidget&>(*control.Native());
}

Qt::Alignment FieldAlignment(std::int64_t alignment) {
  constexpr std::int64_t kCentre = 2;
  constexpr std::int64_t kRight = 3;
  if (alignment == kCentre) return Qt::AlignHCenter;
  return alignment == kRight ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

TextField::TextField(Window& window) : TextControl(window, new FieldWidget(window, *this)) {
  FieldOf(*this).setFocusPolicy(Qt::StrongFocus);
  // A text dropped on a field would stand there without the focus, and be lost at the next rewrite.
  FieldOf(*this).setAcceptDrops(false);
  QObject::connect(
      &FieldOf(*this), &QLineEdit::textEdited, &FieldOf(*this),
      [this](const QString& text) { UpdateTypingLimit(static_cast<int>(text.size())); });
}

std::string TextField::Text() const { return FromQt(FieldOf(*this).text()); }

void TextField::SetText(std::string_view text) {
  const QString shown = ToQt(text);
  UpdateTypingLimit(static_cast<int>(shown.size()));
  FieldOf(*this).setText(shown);
  waiting_selection_.reset();
  const bool within_limit = limit_ == 0 || shown.size() <= limit_;
  if (!within_limit || text.size() <= longest_text_.size()) return;
  longest_text_ = text;
  FitText();
}

// The toolkit cuts any text to its limit, also one that the program writes. So its limit is raised
// for such a text, and comes down with it as the user shortens it.
void TextField::UpdateTypingLimit(int present_length) {
  const int most = limit_ > 0 ? std::max(limit_, present_length) : kNoLimit;
  QLineEdit& field = FieldOf(*this);
  if (field.maxLength() == most) return;
  const int caret = field.cursorPosition();
  field.setMaxLength(most);
  field.setCursorPosition(caret);
}

bool TextField::HasFocus() const { return OwnerWindow().Focused() == this; }

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
  limit_ = static_cast<int>(limit);
  UpdateTypingLimit(static_cast<int>(FieldOf(*this).text().size()));
}

void TextField::SetAlignment(std::int64_t alignment) {
  FieldOf(*this).setAlignment(FieldAlignment(alignment) | Qt::AlignVCenter);
}

void TextField::SetReadOnly(bool read_only) { FieldOf(*this).setReadOnly(read_only); }
void TextField::SetPassword(bool password) {
  FieldOf(*this).setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
}
void TextField::SetBorder(bool border) { FieldOf(*this).setFrame(border); }

void TextField::SetBackColor(Colour colour) { SetColour(FieldOf(*this), QPalette::Base, colour); }
void TextField::SetTextColor(Colour colour) { SetColour(FieldOf(*this), QPalette::Text, colour); }
void TextField::SetCueText(std::string_view text) { FieldOf(*this).setPlaceholderText(ToQt(text)); }

int TextField::TextRoom() const { return FieldOf(*this).TextRoom(); }

void TextField::FireGotFocus() {
  if (const auto selection = std::exchange(waiting_selection_, std::nullopt)) Select(*selection);
  if (GotFocus) GotFocus(*this);
}

void TextField::FireLostFocus() {
  if (LostFocus) LostFocus(*this);
}

PropertyTable TextField::Properties() const {
  static const auto rows = Joined(kDataRows,
                                  std::to_array<PropertyRow>({
                                      {"AutomaticallyCheckSpelling", false},
                                      {"Alignment", 0, kThrough<&TextField::SetAlignment>},
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
                                  kPlaceRows);
  return rows;
}

}  // namespace fundlet
