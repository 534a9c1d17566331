#pragma once

#include <QAccessible>

class QWidget;

// Tells screen readers what the widget is, where its class does not say. Before anybody has asked for it.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);
