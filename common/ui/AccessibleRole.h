// What a plain widget is for those who can't see it.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace logchecker {

// For a widget of which the toolkit can't know what it stands for.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace logchecker
