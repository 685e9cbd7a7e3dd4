#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

// Guesses if a widget shows a drawing, in a program without a profile. The guess looks at what the
// widget is and how much of the main window's middle it fills:
//
// - A graphics view, an OpenGL widget or a widget that contains a foreign window is a view
// anywhere in the middle of a main window.
// - A widget of the program's own class, which paints itself, is a view if it fills an MDI child
// or most of the central area and holds nothing else that does.
// - Widgets that show text, items, web pages or a start page are no views, nor are widgets that
// only hold others.
//
// Toolbars and other windows are not searched. In a dock, only a graphics view, an OpenGL widget
// or a foreign window counts, if it takes a large part of the main window and no view is in the
// middle. The answer holds for the moment: sizes and contents change until a window is up.
struct ViewGuess
{
    bool isView = false;
    // The reason for the answer, one line for a person. Never empty.
    QString reason;

    // `widget` is not null. For a scroll area, pass the area, not its viewport.
    [[nodiscard]] static ViewGuess of(const QWidget *widget);

    // Pixels. A view has at least this width and height; smaller widgets are previews.
    static constexpr int kSmallest = 100;
    // Per cent of the area that a widget of the program's own class must fill.
    static constexpr int kShare = 60;
    // Per cent of the main window that a view in a dock must fill.
    static constexpr int kDockShare = 20;
};

} // namespace gesturewidget
