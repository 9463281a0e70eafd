#pragma once

#include "common/Twips.h"

#include <QPoint>
#include <QWidget>

// Dialogs open at a fixed offset, in twips, from the main form's corner. The main form is
// the window at the root of a dialog's chain of owners, so a dialog opened from another
// dialog still lines up with the main window.
namespace FormPlacement {

inline QWidget* MainForm(QWidget* owner)
{
    QWidget* window = owner ? owner->window() : nullptr;
    while (window && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

inline QPoint OffsetFromMainForm(QWidget* owner, int offsetTwips)
{
    const int offset = Twips::ToPixels(offsetTwips);
    QWidget* main = MainForm(owner);
    return main ? main->pos() + QPoint(offset, offset) : QPoint(offset, offset);
}

// Moves the form; without an owner it keeps the place the window system gives it.
inline void PlaceAtMainForm(QWidget* form, QWidget* owner, int offsetTwips)
{
    if (MainForm(owner))
        form->move(OffsetFromMainForm(owner, offsetTwips));
}

// The same with offsets of their own across and down.
inline void PlaceAtMainForm(QWidget* form, QWidget* owner, int leftTwips, int topTwips)
{
    if (QWidget* main = MainForm(owner))
        form->move(main->pos() + QPoint(Twips::ToPixels(leftTwips), Twips::ToPixels(topTwips)));
}

} // namespace FormPlacement
