// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

class CHxUIMenuItem;

namespace gesturewidget {

// A menu entry that a module has added. It has a class of its own so that the catalogue never
// takes it for one of the program's commands.
class EntryAction : public QAction
{
    Q_OBJECT

public:
    // Belongs to `item`. It has no parent, because a menu that is cleared deletes the actions that
    // are its children.
    explicit EntryAction(CHxUIMenuItem *item);
    ~EntryAction() override;

    [[nodiscard]] CHxUIMenuItem *item() const { return m_item; }

private:
    CHxUIMenuItem *m_item;
};

} // namespace gesturewidget
