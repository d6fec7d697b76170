#include "common/ui/AccessibleRole.h"

#include <QAccessibleWidget>

namespace logchecker {

namespace {

constexpr char kRole[] = "accessibleRole";

QAccessibleInterface* MakeInRole(const QString& className, QObject* object) {
  if (!object->isWidgetType() || className != object->metaObject()->className()) return nullptr;
  const QVariant role = object->property(kRole);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object),
                               static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  static const bool used = [] {
    QAccessible::installFactory(MakeInRole);
    return true;
  }();
  Q_UNUSED(used);
  widget.setProperty(kRole, static_cast<int>(role));
  // The toolkit makes one of its own at the widget's first property, whether anybody listens or
  // not.
  QAccessibleInterface* made = QAccessible::queryAccessibleInterface(&widget);
  if (made->role() != role) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
  }
}

}  // namespace logchecker
