#pragma once

#include "examples/sketchpad/Drawing.h"

#include <QCoreApplication>

// What the pointer does in the drawing at the moment: the step that a command has reached.
// It takes points, numbers and words, wherever they come from, and changes the drawing.
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

    // Starts a command over. `selection` is what COPY copies; empty asks for it.
    void begin(Kind kind, const std::vector<std::size_t> &selection = {});

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] Wants wants() const;
    // What the person is asked for.
    [[nodiscard]] QString prompt() const;
    // The point given last: relative coordinates count from it.
    [[nodiscard]] QPointF lastPoint() const { return m_points.empty() ? QPointF() : m_points.back(); }

    // Each takes the next step and returns why it could not, or nothing. `reach` is how far
    // from an entity counts as on it.
    QString point(const QPointF &point, double reach);
    QString number(double value);
    QString words(const QString &words);

    // What the next step would draw with the pointer at `cursor` and `typed` so far.
    [[nodiscard]] std::vector<Entity> preview(const QPointF &cursor, const QString &typed) const;

private:
    QString pick(const QPointF &point, double reach);

    Drawing &m_drawing;
    Kind m_kind = Kind::Select;
    std::vector<QPointF> m_points;
    std::vector<Entity> m_picked;
    double m_height = 5; // of texts, in drawing units; kept for the next one
    double m_distance = 5; // of OFFSET, in drawing units; kept for the next one
};
