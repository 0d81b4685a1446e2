#pragma once

#include <QAccessible>

class QWidget;

namespace fundlet {

// From here on Qt asks the program what screen readers see of a widget.
void InstallAccessibleInterfaces();

// Tells screen readers what a widget that Qt does not know is for.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace fundlet
