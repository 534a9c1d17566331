#include "util/desktop/spokenlabel.h"

#include "util/desktop/accessiblerole.h"

SpokenLabel::SpokenLabel(QWidget *parent, Qt::WindowFlags flags) : QLabel(parent, flags)
{
    setAccessibleRole(this, QAccessible::Notification);
}

// A notification is read when it comes up; what it reads then is its name.
void SpokenLabel::announce(const QString &words)
{
    setAccessibleName(words);
    QAccessibleEvent cameUp(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&cameUp);
}
