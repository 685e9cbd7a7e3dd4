// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/Phrase.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

// Tells whether a widget shows a drawing, in a program that nobody has described, from what the
// widget is and where in the main window it stands:
//
// - a graphics view, an OpenGL widget or a widget that contains a foreign window is a view
//   anywhere in the middle of a main window;
// - a widget of the program's own class, so one that paints itself, is a view if it fills most
//   of an MDI child or of the central area, or a good part of it and nothing else there could
//   show a drawing; in a scroll area, the size of the scroll area counts, not of the content;
// - the widgets of a form that is being designed are views;
// - what shows text, tables, items, web pages or a start page is not, nor what only holds
//   others.
//
// Toolbars and other windows are not looked into. In a dock only a graphics view, an OpenGL
// widget or a foreign window counts that takes a large part of the main window, and only
// while no view is in the middle. The answer holds for the moment: sizes and contents change
// until a window is up.
struct ViewGuess
{
    bool isView = false;
    // One line for a person: why it is one, or why not. Never empty.
    Phrase reason;

    // `widget` is not null; of a scroll area give the area, not its viewport.
    [[nodiscard]] static ViewGuess of(const QWidget *widget);

    // Pixels in both directions that a view has at least; smaller ones are previews.
    static constexpr int kSmallest = 100;
    // Per cent of the area that a widget of the program's own class must fill.
    static constexpr int kShare = 60;
    // The same where nothing else could show a drawing; a smaller one is an ornament.
    static constexpr int kLeastShare = 20;
    // Per cent of the main window that a view in a dock must fill.
    static constexpr int kDockShare = 20;
};

} // namespace gesturewidget
