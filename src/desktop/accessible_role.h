#pragma once

#include <QAccessible>

class QWidget;

namespace fundlet {

// Tells screen readers what a widget that the toolkit does not know is for.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace fundlet
