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
  std::string_view name;
  bool (*able)(const QLineEdit&);
  void (*act)(QLineEdit&);
};

constexpr Command kCommands[] = {
    {"EditUndo",
     [](const QLineEdit& field) { return !field.isReadOnly() && field.isUndoAvailable(); },
     [](QLineEdit& field) { field.undo(); }},
    {"EditCut", [](const QLineEdit& field) { return !field.isReadOnly() && HasCopyable(field); },
     [](QLineEdit& field) { field.cut(); }},
    {"EditCopy", HasCopyable, [](QLineEdit& field) { field.copy(); }},
    // Whether there is something to paste is not asked: the program that holds it may not answer.
    {"EditPaste", [](const QLineEdit& field) { return !field.isReadOnly(); },
     nullptr},  // the field's own
    {"EditClear",
     [](const QLineEdit& field) { return !field.isReadOnly() && field.hasSelectedText(); },
     [](QLineEdit& field) { field.del(); }},
};

const Command* FindCommand(std::string_view name) {
  const auto* const found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                         [name](const Command& c) { return c.name == name; });
  return found != std::end(kCommands) ? found : nullptr;
}

QLineEdit* FieldIn(const Control* control) {
  return control != nullptr ? qobject_cast<QLineEdit*>(control->Native()) : nullptr;
}

// A text of many lines is only ever read, so copying is all that can be done with it.
QPlainTextEdit* AreaIn(std::string_view name, const Control* control) {
  const bool copies = control != nullptr && name == "EditCopy";
  return copies ? qobject_cast<QPlainTextEdit*>(control->Native()) : nullptr;
}

}  // namespace

bool IsEditCommand(std::string_view name) { return FindCommand(name) != nullptr; }

bool CanEdit(std::string_view name, const Control* control) {
  if (const QLineEdit* field = FieldIn(control)) return FindCommand(name)->able(*field);
  const QPlainTextEdit* area = AreaIn(name, control);
  return area != nullptr && area->textCursor().hasSelection();
}

void Edit(std::string_view name, const Control* control) {
  if (const auto* field = dynamic_cast<const TextField*>(control)) {
    if (name == "EditPaste") {
      field->Paste();
    } else {
      FindCommand(name)->act(*FieldIn(field));
    }
  }
  if (QPlainTextEdit* area = AreaIn(name, control)) area->copy();
}

}  // namespace fundlet
