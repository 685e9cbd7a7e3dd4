// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Sheet.h"

#include <QObject>

#include <optional>

// The open drawing: a sheet with undo and redo.
class Drawing : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] const Sheet &sheet() const { return m_sheet; }
    [[nodiscard]] const std::vector<Entity> &entities() const { return m_sheet.entities; }
    // Replaces the sheet and clears undo and redo.
    void setSheet(Sheet sheet);
    // Call this after saving. The file now holds exactly this drawing, so nothing is unread.
    void setSaved();
    [[nodiscard]] bool isModified() const { return m_modified; }

    // Replaces the entities at `indices` (in ascending order) by `added`, as one step.
    void change(const std::vector<std::size_t> &indices, const std::vector<Entity> &added);
    void add(const Entity &entity) { change({}, {entity}); }
    [[nodiscard]] bool canUndo() const { return !m_undone.past.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_undone.future.empty(); }
    void undo() { step(m_undone.past, m_undone.future); }
    void redo() { step(m_undone.future, m_undone.past); }

    // Layers that are off or frozen hide what is on them.
    [[nodiscard]] bool isVisible(const Entity &entity) const;
    // The visible entity nearest to `point` within `reach`; the later one if two are equally
    // near.
    [[nodiscard]] std::optional<std::size_t> nearest(const QPointF &point, double reach) const;
    // The bounds of everything that is visible; none if nothing is.
    [[nodiscard]] std::optional<QRectF> bounds() const;

Q_SIGNALS:
    void changed();

private:
    using States = std::vector<std::vector<Entity>>;
    void step(States &from, States &to);

    Sheet m_sheet;
    struct
    {
        States past;
        States future;
    } m_undone;
    bool m_modified = false;
};
