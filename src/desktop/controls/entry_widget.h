#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <QClipboard>
#include <QLineEdit>

#include "desktop/controls/control_widget.h"

namespace fundlet {

class TextField;

// The QLineEdit of a TextField, which checks what the user enters. The limit never applies to text
// that the program writes. Input that does not fit is refused with a beep and changes nothing.
// Pasted or dropped text is accepted whole or not at all: a paste goes to the caret or over the
// selection; a drop or a middle click replaces the whole text, because nobody can aim between two
// digits. A double click selects all.
class EntryWidget : public FocusReporting<QLineEdit> {
 public:
  EntryWidget();

  // The greatest length, in characters, that the user's input may give the text; 0 for no limit.
  void SetLimit(std::int64_t characters) { limit_ = characters; }
  std::int64_t Limit() const { return limit_; }
  void SetCueText(std::string_view text);
  void SetPassword(bool password) { setEchoMode(password ? Password : Normal); }
  void Write(const QString& text);  // the program's text, of any length
  void PasteFrom(QClipboard::Mode mode);
  // Enters the text that an input method is composing, and text() does not contain yet.
  void CommitComposition();

  // The width, in pixels, in which a text and the caret after it are visible as a whole.
  int WidthForText() const;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  TextField& Field() const;
  bool IsUsedByProgram(const QKeyEvent& event) const;
  void Enter(QKeyEvent* event);
  bool HasRoomFor(const QString& typed) const;
  std::optional<QString> Accepted(const QString& outcome) const;
  void Insert(const QString& text);
  void Replace(const QString& text);
  void Changed(const QString& text);
  void RefuseComposition();

  std::int64_t limit_ = 0;
  // The current mouse press has selected the whole text; its moves and its release must keep that.
  bool press_selected_all_ = false;
  QString composed_;  // the text that an input method is composing
  QString text_before_composition_;
  QString accepted_text_;         // the last text that the user or the program set
  bool change_accepted_ = false;  // while the user or the program changes the text
};

}  // namespace fundlet
