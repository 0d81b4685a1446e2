#pragma once

#include <string_view>

namespace fundlet {

class Control;

// The commands of the Edit menu that act on the text that has the focus, known by the names of
// their items: EditUndo, EditCut, EditCopy, EditPaste, EditClear.
bool IsEditCommand(std::string_view name);

// Whether the command can do something to the control, which may be null.
bool CanEdit(std::string_view name, const Control* control);
void Edit(std::string_view name, const Control* control);

}  // namespace fundlet
