#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

/// Has screen readers say a text, at once. Nothing of it is seen. Without a screen reader it does
/// nothing.
void announce(QWidget &window, const QString &text);

/// What a widget is to screen readers, where Qt cannot know. To be called before it gets a name.
void setRole(QWidget &widget, QAccessible::Role role);
