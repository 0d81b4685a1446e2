#include "desktop/accessible_role.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace fundlet {

namespace {

constexpr const char* kRoleProperty = "fundletAccessibleRole";

QAccessibleInterface* InterfaceOf(const QString& /*class_name*/, QObject* object) {
  const QVariant role = object->property(kRoleProperty);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  QAccessible::installFactory(&InterfaceOf);
  widget.setProperty(kRoleProperty, static_cast<int>(role));
}

}  // namespace fundlet
