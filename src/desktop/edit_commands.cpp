#include "desktop/edit_commands.h"

#include <algorithm>
#include <iterator>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "desktop/text_field.h"

namespace fundlet {

namespace {

bool HasCopyable(const QLineEdit& field) {
  return field.hasSelectedText() && field.echoMode() == QLineEdit::Normal;
}

struct Command {
  EditCommand command;
  bool (*able)(const QLineEdit&);
  void (*act)(QLineEdit&);
};

constexpr Command kCommands[] = {
    {EditCommand::Undo,
     [](const QLineEdit& field) { return !field.isReadOnly() && field.isUndoAvailable(); },
     [](QLineEdit& field) { field.undo(); }},
    {EditCommand::Cut,
     [](const QLineEdit& field) { return !field.isReadOnly() && HasCopyable(field); },
     [](QLineEdit& field) { field.cut(); }},
    {EditCommand::Copy, HasCopyable, [](QLineEdit& field) { field.copy(); }},
    // Whether there is something to paste is not asked: the program that holds it may not answer.
    {EditCommand::Paste, [](const QLineEdit& field) { return !field.isReadOnly(); },
     nullptr},  // the field's own
    {EditCommand::Clear,
     [](const QLineEdit& field) { return !field.isReadOnly() && field.hasSelectedText(); },
     [](QLineEdit& field) { field.del(); }},
};

const Command& RowOf(EditCommand command) {
  return *std::find_if(std::begin(kCommands), std::end(kCommands),
                       [command](const Command& row) { return row.command == command; });
}

QLineEdit* FieldIn(const Control* control) {
  return control != nullptr ? qobject_cast<QLineEdit*>(control->Native()) : nullptr;
}

// A text of many lines is only ever read, so copying is all that can be done with it.
QPlainTextEdit* AreaIn(EditCommand command, const Control* control) {
  const bool copies = control != nullptr && command == EditCommand::Copy;
  return copies ? qobject_cast<QPlainTextEdit*>(control->Native()) : nullptr;
}

}  // namespace

bool CanEdit(EditCommand command, const Control* control) {
  if (const QLineEdit* field = FieldIn(control)) return RowOf(command).able(*field);
  const QPlainTextEdit* area = AreaIn(command, control);
  return area != nullptr && area->textCursor().hasSelection();
}

void Edit(EditCommand command, const Control* control) {
  if (const auto* field = dynamic_cast<const TextField*>(control)) {
    if (command == EditCommand::Paste) {
      field->Paste();
    } else {
      RowOf(command).act(*FieldIn(field));
    }
  }
  if (QPlainTextEdit* area = AreaIn(command, control)) area->copy();
}

}  // namespace fundlet
