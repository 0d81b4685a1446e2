#pragma once

#include "desktop/menu.h"

namespace fundlet {

class Control;

// The editing commands act on the text that has the focus. Whether the command can do something to
// the control, which may be null.
bool CanEdit(EditCommand command, const Control* control);
void Edit(EditCommand command, const Control* control);

}  // namespace fundlet
