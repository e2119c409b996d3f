#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

/// Has screen readers say a text, at once. Nothing of it is seen. Without a screen reader it does
/// nothing.
void announce(QWidget &window, const QString &text);

/// A press with the mouse on a pixel of a widget. It goes by way of the window, so that it waits
/// while a turn is under way, and does nothing where a dialog blocks the window.
void pressAt(QWidget &widget, const QPoint &place);

/// What a widget is to screen readers, where Qt cannot know. To be called before it gets a name. A
/// button is pressed as `pressAt` does it.
void setRole(QWidget &widget, QAccessible::Role role);
