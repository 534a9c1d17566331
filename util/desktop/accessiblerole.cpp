#include "util/desktop/accessiblerole.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace
{

const char *const roleProperty = "accessibleRole";

QAccessibleInterface *interfaceWithRole(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    const QVariant role = widget->property(roleProperty);
    return role.isValid() ? new QAccessibleWidget(widget, QAccessible::Role(role.toInt())) : nullptr;
}

} // namespace

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(interfaceWithRole);
        return true;
    }();
    Q_UNUSED(isInstalled)
    widget->setProperty(roleProperty, int(role));
}
