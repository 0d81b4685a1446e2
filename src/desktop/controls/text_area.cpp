#include "desktop/controls/text_area.h"

#include <array>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"
#include "desktop/controls/focus_reporting.h"
#include "desktop/controls/qt_properties.h"

namespace fundlet {

namespace {

class AreaWidget : public FocusReporting<QPlainTextEdit> {
 public:
  using FocusReporting::FocusReporting;

  // Moves the caret or the selection without scrolling; the user decides what part of the page is
  // visible.
  void PutCursor(const QTextCursor& cursor) {
    const int first_line = verticalScrollBar()->value();
    setTextCursor(cursor);
    verticalScrollBar()->setValue(first_line);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (isReadOnly() && WindowTakesKey(*event)) return;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (MovesCaret(event->key()) && modifiers == Qt::NoModifier) BringCaretIntoView();
    const bool up = event->key() == Qt::Key_Up;
    const bool by_line = up || event->key() == Qt::Key_Down;
    if (isReadOnly() && by_line && modifiers == Qt::NoModifier) {
      MoveByLines(up ? -1 : 1);
    } else {
      FocusReporting::keyPressEvent(event);
    }
  }
  // QPlainTextEdit's own menu shows no shortcut for Copy.
  void contextMenuEvent(QContextMenuEvent* event) override {
    Owner().ShowEditMenu(event->globalPos());
  }

 private:
  static bool MovesCaret(int key) { return (key >= Qt::Key_Home && key <= Qt::Key_PageDown); }
  // If the caret is out of sight, the keys move it from the first visible line.
  void BringCaretIntoView() {
    if (!viewport()->rect().intersects(cursorRect())) PutCursor(cursorForPosition(QPoint(0, 0)));
  }
  // Scrolls the page and moves the caret, so that a screen reader reads the caret's line.
  void MoveByLines(int lines) {
    const int first_line = verticalScrollBar()->value() + lines;
    moveCursor(lines > 0 ? QTextCursor::Down : QTextCursor::Up);
    verticalScrollBar()->setValue(first_line);
  }
  // Gives Return and Escape to the window's buttons, because read-only text does not use them.
  bool WindowTakesKey(QKeyEvent& event) const {
    const bool used = Owner().PressButtonFor(event);
    event.setAccepted(used);
    return used;
  }
};

AreaWidget& AreaOf(const Control& control) { return static_cast<AreaWidget&>(*control.Native()); }

}  // namespace

TextArea::TextArea(ControlOwner& owner) : TextControl(owner, new AreaWidget(owner)) {
  AreaOf(*this).AttachTo(*this);
  AreaOf(*this).setTabChangesFocus(true);
  // It has no label, so a screen reader names it by the window's title.
  AreaOf(*this).setAccessibleName(owner.Content().window()->windowTitle());
}

std::string TextArea::Text() const {
  return FromQt(AreaOf(*this).toPlainText().replace('\n', '\r'));
}

void TextArea::SetText(std::string_view text) {
  AreaOf(*this).setPlainText(ToQt(text).replace('\r', '\n'));
}

void TextArea::SetSelStart(std::int64_t start) {
  AreaWidget& area = AreaOf(*this);
  QTextCursor cursor = area.textCursor();
  cursor.setPosition(UnitsOf(area.toPlainText(), start));
  area.PutCursor(cursor);
}

void TextArea::SetSelLength(std::int64_t length) {
  AreaWidget& area = AreaOf(*this);
  const QString text = area.toPlainText();
  QTextCursor cursor = area.textCursor();
  const std::int64_t start = SelStart();
  cursor.setPosition(UnitsOf(text, start));
  cursor.setPosition(UnitsOf(text, start + length), QTextCursor::KeepAnchor);
  area.PutCursor(cursor);
}

std::int64_t TextArea::SelStart() const {
  const QPlainTextEdit& area = AreaOf(*this);
  return CharactersOf(area.toPlainText(), area.textCursor().selectionStart());
}

std::int64_t TextArea::SelLength() const {
  const QString selected = AreaOf(*this).textCursor().selectedText();
  return CharactersOf(selected, static_cast<int>(selected.size()));
}

void TextArea::SetReadOnly(bool read_only) {
  QPlainTextEdit& area = AreaOf(*this);
  area.setReadOnly(read_only);
  if (read_only) {
    area.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
}

void TextArea::SetScrollbarVertical(bool shown) {
  AreaOf(*this).setVerticalScrollBarPolicy(shown ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void TextArea::SetScrollbarHorizontal(bool shown) {
  AreaOf(*this).setHorizontalScrollBarPolicy(shown ? Qt::ScrollBarAsNeeded
                                                   : Qt::ScrollBarAlwaysOff);
  AreaOf(*this).setLineWrapMode(shown ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
}

void TextArea::SetBorder(bool border) {
  AreaOf(*this).setFrameShape(border ? QFrame::StyledPanel : QFrame::NoFrame);
}

void TextArea::SetBackColor(Colour colour) { SetColour(AreaOf(*this), QPalette::Base, colour); }
void TextArea::SetTextColor(Colour colour) { SetColour(AreaOf(*this), QPalette::Text, colour); }

void TextArea::FireGotFocus() {
  if (GotFocus) GotFocus(*this);
}

bool TextArea::CanEdit(EditCommand command) const {
  return command == EditCommand::Copy && AreaOf(*this).textCursor().hasSelection();
}

void TextArea::Edit(EditCommand /*command*/) { AreaOf(*this).copy(); }

PropertyTable TextArea::Properties() const {
  static const auto rows =
      Joined(kDataBindingRows,
             std::to_array<PropertyRow>({
                 {"AutomaticallyCheckSpelling", true},
                 {"Alignment", 0},
                 {"AcceptTabs", false},
                 {"LimitText", 0},
                 {"ReadOnly", true, kThrough<&TextArea::SetReadOnly>},
                 {"Mask", ""},
                 {"Text", "", kThrough<&TextArea::SetText>},
             }),
             kFontRows,
             std::to_array<PropertyRow>({
                 {"LineSpacing", 1.0},
                 {"LineHeight", 0.0},
                 {"HideSelection", true},
                 {"AutoDeactivate", true},
                 {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                 {"Visible", true, kThrough<&Control::SetVisible>},
                 {"Format", ""},
                 {"Enabled", true, kThrough<&Control::SetEnabled>},
                 {"BackColor", kWhite, kThrough<&TextArea::SetBackColor>},
                 {"TextColor", kBlack, kThrough<&TextArea::SetTextColor>},
                 {"UseFocusRing", false, kThrough<&Control::SetUseFocusRing>},
                 {"Styled", false},
                 {"ScrollbarVertical", true, kThrough<&TextArea::SetScrollbarVertical>},
                 {"ScrollbarHorizontal", false, kThrough<&TextArea::SetScrollbarHorizontal>},
                 {"Multiline", true},
                 {"Border", true, kThrough<&TextArea::SetBorder>},
                 {"TabStop", true},
             }),
             kCommonRows);
  return rows;
}

}  // namespace fundlet
