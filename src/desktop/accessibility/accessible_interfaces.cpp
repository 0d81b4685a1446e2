#include "desktop/accessibility/accessible_interfaces.h"

#include <QAccessibleWidget>
#include <QLineEdit>
#include <QMenu>
#include <QVariant>
#include <QWidget>

#include "desktop/accessibility/accessible_field.h"
#include "desktop/accessibility/accessible_menu.h"

namespace fundlet {

namespace {

constexpr const char* kRoleProperty = "fundletAccessibleRole";

QAccessibleInterface* InterfaceOf(const QString& /*class_name*/, QObject* object) {
  if (auto* field = qobject_cast<QLineEdit*>(object)) return new AccessibleField(*field);
  if (auto* menu = qobject_cast<QMenu*>(object)) return new AccessibleMenu(*menu);
  const QVariant role = object->property(kRoleProperty);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void InstallAccessibleInterfaces() { QAccessible::installFactory(&InterfaceOf); }

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  widget.setProperty(kRoleProperty, static_cast<int>(role));
}

}  // namespace fundlet
