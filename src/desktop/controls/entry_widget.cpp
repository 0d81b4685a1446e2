#include "desktop/controls/entry_widget.h"

#include <utility>

#include <QApplication>
#include <QDropEvent>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyle>
#include <QStyleOptionFrame>

#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/controls/text_field.h"

namespace fundlet {

namespace {

std::int64_t Length(const QString& text) {
  return CharactersOf(text, static_cast<int>(text.size()));
}

// Whether QLineEdit enters the key's text. Some keyboards type with Control and Alt together.
bool EntersText(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return !event.text().isEmpty() && event.text().at(0) >= ' ' && event.text().at(0) != '\x7F' &&
         modifiers != Qt::ControlModifier;
}

// The decimal key of the keypad, which types a comma on many keyboard layouts. On some of them the
// key has no Qt::KeypadModifier, so its scan code is compared too.
bool IsDecimalKey(const QKeyEvent& event) {
#ifdef Q_OS_WIN
  constexpr quint32 kScanCode = 83;
#else
  constexpr quint32 kScanCode = 91;
#endif
  const bool of_keypad =
      event.modifiers().testFlag(Qt::KeypadModifier) || event.nativeScanCode() == kScanCode;
  return of_keypad && (event.text() == "," || event.text() == u"\u066B");
}

// An auto-repeat of a shortcut of the Edit menu. QLineEdit overrides these shortcuts and gets them
// as keys; they act once.
bool IsCommandRepeat(const QKeyEvent& event) {
  const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
  const bool shortcut = letter && event.modifiers().testFlag(Qt::ControlModifier);
  return event.isAutoRepeat() && (shortcut || event.matches(QKeySequence::Paste));
}

// Not while a handler runs or a message is open, because the handler works on the text.
bool AcceptsDrop(const QLineEdit& field, const QDropEvent& event) {
  return event.mimeData()->hasText() && !field.isReadOnly() && !Gate().Busy();
}

}  // namespace

EntryWidget::EntryWidget() {
  setMaxLength(32767);
  connect(this, &QLineEdit::textEdited, this, [this] { change_accepted_ = true; });
  connect(this, &QLineEdit::textChanged, this, &EntryWidget::Changed);
}

TextField& EntryWidget::Field() const { return static_cast<TextField&>(Attached()); }

void EntryWidget::SetCueText(std::string_view text) { setPlaceholderText(ToQt(text)); }

int EntryWidget::WidthForText() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  const QMargins margins = textMargins();
  constexpr int kOwnMargins = 4;  // QLineEdit's, on both sides together
  constexpr int kCaret = 1;
  return contents.width() - margins.left() - margins.right() - kOwnMargins - kCaret;
}

void EntryWidget::Write(const QString& text) {
  change_accepted_ = true;
  setText(text);
  change_accepted_ = false;
  // Without the focus, a text that is too long shows its beginning.
  if (!hasFocus()) setCursorPosition(0);
}

// Assistive technology sets the text without a textEdited signal, so its changes are checked here.
void EntryWidget::Changed(const QString& text) {
  const bool fits = limit_ == 0 || Length(text) <= limit_ || text.size() < accepted_text_.size();
  if (std::exchange(change_accepted_, false) || fits) {
    accepted_text_ = text;
  } else {
    Write(QString(accepted_text_));
    Replace(text);
  }
}

bool EntryWidget::HasRoomFor(const QString& typed) const {
  return limit_ == 0 || Length(text()) - Length(selectedText()) + Length(typed) <= limit_;
}

// The text to set instead of one that results from a paste or a drop; nullopt to refuse it.
std::optional<QString> EntryWidget::Accepted(const QString& outcome) const {
  if (!Field().Pasting) return outcome;
  std::optional<std::string> entry;
  Gate().EnterWithin([&] { entry = Field().Pasting(FromQt(outcome), limit_); });
  return entry ? std::optional(ToQt(*entry)) : std::nullopt;
}

void EntryWidget::Insert(const QString& text) {
  if (isReadOnly()) return;
  CommitComposition();
  const int begin = hasSelectedText() ? selectionStart() : cursorPosition();
  const QString behind = this->text().mid(begin + selectedText().size());
  const auto entry = Accepted(this->text().left(begin) + text.trimmed() + behind);
  const bool changes = entry && !text.trimmed().isEmpty();
  if (!changes || (limit_ > 0 && Length(*entry) > limit_)) {
    QApplication::beep();
    return;
  }
  selectAll();
  insert(*entry);
  setCursorPosition(static_cast<int>(std::max<qsizetype>(0, entry->size() - behind.size())));
}

// Replaces the whole text by an action that needs no focus (drop, middle click, assistive
// technology).
void EntryWidget::Replace(const QString& text) {
  Attached().SetFocus();
  selectAll();
  Insert(text);
  // If the window is inactive, the program may rewrite the field at the coming activation, so
  // LostFocus lets it read the text first.
  if (isActiveWindow()) return;
  Owner().OnFocusLost(Attached());
  activateWindow();
}

void EntryWidget::PasteFrom(QClipboard::Mode mode) {
  Insert(QGuiApplication::clipboard()->text(mode));
}

void EntryWidget::focusInEvent(QFocusEvent* event) {
  // The click that gives the focus selects the whole text; its release must not change that.
  press_selected_all_ = event->reason() == Qt::MouseFocusReason;
  FocusReporting::focusInEvent(event);
}

// QLineEdit's own menu asks for the clipboard's content, and the program that owns it may not
// answer.
void EntryWidget::contextMenuEvent(QContextMenuEvent* event) {
  Owner().ShowEditMenu(event->globalPos());
}

bool EntryWidget::IsUsedByProgram(const QKeyEvent& event) const {
  bool used = false;
  const std::string key = KeyText(event);
  if (key.empty() || !Field().KeyDown) return used;
  Gate().EnterWithin([&] { used = Field().KeyDown(Field(), key); });
  return used;
}

void EntryWidget::keyPressEvent(QKeyEvent* event) {
  if (!IsUsedByProgram(*event) && !Owner().PressButtonFor(*event)) Enter(event);
  // The program has been offered the key already, so it does not go on to the window.
  event->accept();
}

void EntryWidget::Enter(QKeyEvent* event) {
  if (IsCommandRepeat(*event)) return;
  if (IsDecimalKey(*event)) {
    QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), event->nativeScanCode(),
                    event->nativeVirtualKey(), event->nativeModifiers(), ".", event->isAutoRepeat(),
                    static_cast<quint16>(event->count()));
    keyPressEvent(&point);
    return;
  }
  if (event->matches(QKeySequence::Paste)) {
    const bool selection = event->key() == Qt::Key_Insert &&
                           event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    PasteFrom(selection ? QClipboard::Selection : QClipboard::Clipboard);
  } else if (EntersText(*event) && !HasRoomFor(event->text())) {
    QApplication::beep();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void EntryWidget::inputMethodEvent(QInputMethodEvent* event) {
  if (composed_.isEmpty()) text_before_composition_ = text();
  const QString committed = event->commitString();
  if (!committed.isEmpty() && !HasRoomFor(committed)) {
    RefuseComposition();
    return;
  }
  composed_ = event->preeditString();
  QLineEdit::inputMethodEvent(event);
  if (!committed.isEmpty()) text_before_composition_ = text();
}

// QLineEdit has deleted the selected text when the composition began; undo() restores it.
void EntryWidget::RefuseComposition() {
  composed_.clear();
  QInputMethodEvent end;
  QLineEdit::inputMethodEvent(&end);
  if (text() != text_before_composition_) undo();
  QApplication::beep();
}

void EntryWidget::CommitComposition() {
  if (composed_.isEmpty()) return;
  if (hasFocus()) QGuiApplication::inputMethod()->commit();
  if (composed_.isEmpty()) return;
  // Not every input method answers QInputMethod::commit().
  QInputMethodEvent commit;
  commit.setCommitString(composed_);
  inputMethodEvent(&commit);
  QGuiApplication::inputMethod()->reset();
}

void EntryWidget::mousePressEvent(QMouseEvent* event) {
  if (press_selected_all_ || event->button() == Qt::MiddleButton) return;
  QLineEdit::mousePressEvent(event);
}

void EntryWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!press_selected_all_) QLineEdit::mouseMoveEvent(event);
}

void EntryWidget::mouseReleaseEvent(QMouseEvent* event) {
  const bool selected_all = std::exchange(press_selected_all_, false);
  if (event->button() == Qt::MiddleButton) {
    const bool pastes = QGuiApplication::clipboard()->supportsSelection() && !isReadOnly() &&
                        rect().contains(event->pos());
    if (pastes) Replace(QGuiApplication::clipboard()->text(QClipboard::Selection));
  } else if (!selected_all) {
    QLineEdit::mouseReleaseEvent(event);
  }
}

// QLineEdit selects a word at a double click, and the whole text only at a third click.
void EntryWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QLineEdit::mouseDoubleClickEvent(event);
  selectAll();
  press_selected_all_ = true;
}

void EntryWidget::dragEnterEvent(QDragEnterEvent* event) { dragMoveEvent(event); }

void EntryWidget::dragMoveEvent(QDragMoveEvent* event) {
  event->setAccepted(AcceptsDrop(*this, *event));
}

void EntryWidget::dropEvent(QDropEvent* event) {
  event->setAccepted(AcceptsDrop(*this, *event));
  // The dragged text stays where it comes from.
  event->setDropAction(Qt::CopyAction);
  if (event->isAccepted()) Replace(event->mimeData()->text());
}

}  // namespace fundlet
