#include "desktop/controls/text_area.h"

#include <array>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"
#include "desktop/controls/control_widget.h"

namespace fundlet {

namespace {

class AreaWidget : public FocusReporting<QPlainTextEdit> {
 public:
  // Moves the caret or the selection without scrolling; the user decides what part of the page is
  // visible.
  void PutCursor(const QTextCursor& cursor) {
    const int first_line = verticalScrollBar()->value();
    setTextCursor(cursor);
    verticalScrollBar()->setValue(first_line);
  }

  void SetReadOnly(bool read_only) {
    setReadOnly(read_only);
    const auto selectable = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    if (read_only) setTextInteractionFlags(selectable);
  }
  void SetScrollbarVertical(bool shown) {
    setVerticalScrollBarPolicy(shown ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  }
  // Without the scroll bar, which is shown when a line is too long, long lines wrap.
  void SetScrollbarHorizontal(bool shown) { setLineWrapMode(shown ? NoWrap : WidgetWidth); }
  void SetBorder(bool border) { setFrameShape(border ? StyledPanel : NoFrame); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    // Return and Escape press the window's buttons, because read-only text does not use them.
    if (isReadOnly() && Owner().PressButtonFor(*event)) return;
    const int key = event->key();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && key >= Qt::Key_Home && key <= Qt::Key_PageDown) BringCaretIntoView();
    if (plain && isReadOnly() && (key == Qt::Key_Up || key == Qt::Key_Down)) {
      MoveByLines(key == Qt::Key_Up ? -1 : 1);
    } else {
      FocusReporting::keyPressEvent(event);
    }
  }
  // QPlainTextEdit's own menu shows no shortcut for Copy.
  void contextMenuEvent(QContextMenuEvent* event) override {
    Owner().ShowEditMenu(event->globalPos());
  }

 private:
  // If the caret is out of sight, the keys that move it (Home to PageDown) start from the first
  // visible line.
  void BringCaretIntoView() {
    if (!viewport()->rect().intersects(cursorRect())) PutCursor(cursorForPosition(QPoint(0, 0)));
  }
  // Scrolls the page and moves the caret, so that a screen reader reads the caret's line.
  void MoveByLines(int lines) {
    const int first_line = verticalScrollBar()->value() + lines;
    moveCursor(lines > 0 ? QTextCursor::Down : QTextCursor::Up);
    verticalScrollBar()->setValue(first_line);
  }
};

}  // namespace

TextArea::TextArea(ControlOwner& owner) : TextControl(owner, new AreaWidget) {
  auto& area = NativeAs<AreaWidget>();
  area.AttachTo(*this);
  area.setTabChangesFocus(true);
  // It has no label, so a screen reader names it by the window's title.
  area.setAccessibleName(owner.Content().window()->windowTitle());
}

std::string TextArea::Text() const {
  return FromQt(NativeAs<QPlainTextEdit>().toPlainText().replace('\n', '\r'));
}

void TextArea::SetText(std::string_view text) {
  NativeAs<QPlainTextEdit>().setPlainText(ToQt(text).replace('\r', '\n'));
}

void TextArea::SetSelStart(std::int64_t start) { Select(start, 0); }
void TextArea::SetSelLength(std::int64_t length) { Select(SelStart(), length); }

void TextArea::Select(std::int64_t start, std::int64_t length) {
  auto& area = NativeAs<AreaWidget>();
  const QString text = area.toPlainText();
  QTextCursor cursor = area.textCursor();
  cursor.setPosition(UnitsOf(text, start));
  cursor.setPosition(UnitsOf(text, start + length), QTextCursor::KeepAnchor);
  area.PutCursor(cursor);
}

std::int64_t TextArea::SelStart() const {
  const auto& area = NativeAs<QPlainTextEdit>();
  return CharactersOf(area.toPlainText(), area.textCursor().selectionStart());
}

std::int64_t TextArea::SelLength() const {
  const QString selected = NativeAs<QPlainTextEdit>().textCursor().selectedText();
  return CharactersOf(selected, static_cast<int>(selected.size()));
}

void TextArea::FireGotFocus() {
  if (GotFocus) GotFocus(*this);
}

bool TextArea::CanEdit(EditCommand command) const {
  return command == EditCommand::Copy && NativeAs<QPlainTextEdit>().textCursor().hasSelection();
}

void TextArea::Edit(EditCommand /*command*/) { NativeAs<QPlainTextEdit>().copy(); }

PropertyTable TextArea::Properties() const {
  static const auto rows = Joined(
      kDataBindingRows,
      std::to_array<PropertyRow>({
          {"AutomaticallyCheckSpelling", true},
          {"Alignment", 0},
          {"AcceptTabs", false},
          {"LimitText", 0},
          {"ReadOnly", true, kThroughWidget<&AreaWidget::SetReadOnly>},
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
          {"BackColor", kWhite, &SetColour<QPalette::Base>},
          {"TextColor", kBlack, &SetColour<QPalette::Text>},
          {"UseFocusRing", false, kThrough<&Control::SetUseFocusRing>},
          {"Styled", false},
          {"ScrollbarVertical", true, kThroughWidget<&AreaWidget::SetScrollbarVertical>},
          {"ScrollbarHorizontal", false, kThroughWidget<&AreaWidget::SetScrollbarHorizontal>},
          {"Multiline", true},
          {"Border", true, kThroughWidget<&AreaWidget::SetBorder>},
          {"TabStop", true},
      }),
      kCommonRows);
  return rows;
}

}  // namespace fundlet
