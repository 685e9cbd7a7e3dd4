// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Drawing.h"

#include <QCoreApplication>

// The running command and the step that it has reached. It takes points, numbers and words,
// from the pointer or the keyboard, and changes the drawing.
class Tool
{
    Q_DECLARE_TR_FUNCTIONS(Tool)

public:
    enum class Kind { Select, Line, Circle, Text, Offset, Copy, Trim };
    enum class Wants { Nothing, Point, Entity, Words };

    explicit Tool(Drawing &drawing)
        : m_drawing(drawing)
    {
    }

    // Starts a command. `selection` is what COPY copies; if it is empty, COPY asks for it.
    void begin(Kind kind, const std::vector<std::size_t> &selection = {});

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] Wants wants() const;
    // Asks the person for the next step.
    [[nodiscard]] QString prompt() const;
    // The point given last. Relative coordinates start from it.
    [[nodiscard]] QPointF lastPoint() const { return m_points.empty() ? QPointF() : m_points.back(); }

    // Each takes the next step. Returns an empty string, or the reason why it failed. A point
    // within `reach` of an entity is on it.
    QString point(const QPointF &point, double reach);
    QString number(double value);
    QString words(const QString &words);

    // The entities that the next step would draw with the pointer at `cursor` and the text `typed` so
    // far.
    [[nodiscard]] std::vector<Entity> preview(const QPointF &cursor, const QString &typed) const;

private:
    QString pick(const QPointF &point, double reach);

    Drawing &m_drawing;
    Kind m_kind = Kind::Select;
    std::vector<QPointF> m_points;
    std::vector<Entity> m_picked;
    double m_height = 5; // of texts, in drawing units; kept for the next text
    double m_distance = 5; // of OFFSET, in drawing units; kept for the next use
};
