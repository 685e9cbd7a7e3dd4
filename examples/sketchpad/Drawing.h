#pragma once

#include "examples/sketchpad/Sheet.h"

#include <QObject>

#include <optional>

// The drawing that is being worked on: a sheet whose changes can be undone.
class Drawing : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] const Sheet &sheet() const { return m_sheet; }
    [[nodiscard]] const std::vector<Entity> &entities() const { return m_sheet.entities; }
    // Puts another sheet in place; nothing can be undone then.
    void setSheet(Sheet sheet);
    // Nothing that the file held is missing any more: it has been written anew.
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
    // The visible entity nearest to `point`, the later drawn of equals, within `reach`.
    [[nodiscard]] std::optional<std::size_t> nearest(const QPointF &point, double reach) const;
    // Around everything that is visible; none of an empty drawing.
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
