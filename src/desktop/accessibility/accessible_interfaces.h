#pragma once

#include <QAccessible>

class QWidget;

namespace fundlet {

// Makes Qt use the program's own interfaces for fields and menus, and the roles set below. To be
// called once a run.
void InstallAccessibleInterfaces();

// Sets the role in which screen readers present a widget that has none in Qt.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace fundlet
