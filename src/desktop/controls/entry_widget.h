#pragma once

#include <functional>
#include <optional>

#include <QClipboard>
#include <QLineEdit>

namespace fundlet {

// Qt's one-line text, with this program's care for what a hand puts into it. A limit holds
// for what the user enters and never for what the program writes; what does not fit is refused with
// a beep, and the text stays as it was. A text from elsewhere goes in whole or not at all: a paste
// at the caret or over the selection, a drop and the middle button in the place of the whole text,
// because nobody aims between two digits. A double click selects the whole text.
class EntryWidget : public QLineEdit {
 public:
  EntryWidget();

  // The largest number of characters that what the user enters can bring the text to; 0 for none.
  void SetLimit(int characters) { limit_ = characters; }
  int Limit() const { return limit_; }
  void Write(const QString& text);  // by the program, whatever its length
  void PasteFrom(QClipboard::Mode mode);
  // Enters the text that an input method still composes, which text() does not contain.
  void CommitComposition();

  // Given the text with what comes from elsewhere in it, the text to stand there instead; nothing
  // refuses it. Without it, whatever fits goes in.
  std::function<std::optional<QString>(const QString& outcome)> FilterInsertion;

 protected:
  // Before and after a text from elsewhere takes the place of the whole text, by an action that
  // needs no focus.
  virtual void AboutToReplace() {}
  virtual void Replaced() {}

  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  // The press under way has selected the whole text; its moves and its release must not undo that.
  bool press_selected_all_ = false;

 private:
  bool HasRoomFor(const QString& typed) const;
  void Insert(const QString& text);
  void Replace(const QString& text);
  void Changed(const QString& text);
  void RefuseComposition();

  int limit_ = 0;
  QString composed_;  // by an input method, and not entered yet
  QString text_before_composition_;
  QString accepted_text_;         // the last that the user entered or the program wrote
  bool change_accepted_ = false;  // the change under way is made by one of them
};

}  // namespace fundlet
