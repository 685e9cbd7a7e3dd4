// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <Qt>

#include <ostream>

namespace tests {

// One thing that a hand, the program or the host does at a desk.
struct Step
{
    enum Kind {
        // The hand.
        Move,
        Press,
        Release,
        DoubleClick,
        KeyPress,
        KeyRepeat,
        KeyRelease,
        Wheel,
        // The person, before or between gestures.
        SwitchGestures,
        SwitchScheme,
        // The program.
        ShowDialog,
        ShowPopup,
        ReplaceView,
        // Somebody who has no business there.
        HideRing,
        DestroyRing,
        Cancel,
        // What the ring sends to the view when the button was released over it.
        PostedMove,
    };

    Kind kind = Move;
    QPoint position; // of the pointer, in pixels of the view
    Qt::MouseButton button = Qt::NoButton;
    Qt::MouseButtons buttons; // those down afterwards
    int key = 0; // of Qt::Key
    Qt::KeyboardModifiers modifiers; // those down afterwards
};

std::ostream &operator<<(std::ostream &out, const Step &step);

} // namespace tests
