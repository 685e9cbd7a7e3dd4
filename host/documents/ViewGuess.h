#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

// Whether a widget shows a drawing, in a program that nobody has described. Judged by what
// the widget is and how much of the main window's middle it fills:
//
// - a graphics view, an OpenGL widget or a widget that contains a foreign window is a view
//   wherever in the middle of a main window it stands;
// - a widget of the program's own, so one that paints itself, is a view when it fills an
//   MDI child or most of the central area, and holds nothing else that does;
// - what shows text, items, web pages or a start page is none, nor what only holds others.
//
// Toolbars and other windows are not looked into. Of a dock only a graphics view, an OpenGL
// widget or a foreign window counts that takes a large part of the main window, and only
// while no view is in the middle. The answer holds for the moment:
// sizes and contents change until a window is up.
struct ViewGuess
{
    bool isView = false;
    // One line for a person: why it is one, or why not. Never empty.
    QString reason;

    // `widget` is not null; of a scroll area give the area, not its viewport.
    [[nodiscard]] static ViewGuess of(const QWidget *widget);

    // Pixels in both directions that a view has at least; smaller ones are previews.
    static constexpr int kSmallest = 100;
    // Per cent of the area that a widget of the program's own must fill.
    static constexpr int kShare = 60;
    // Per cent of the main window that a view in a dock must fill.
    static constexpr int kDockShare = 20;
};

} // namespace gesturewidget
