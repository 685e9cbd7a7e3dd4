// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/ring/RingView.h"

#include <QTreeView>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QMenu;
class QSortFilterProxyModel;
class QToolButton;
QT_END_NAMESPACE

namespace settings {

class BindingsEditor;
class CommandModel;

// The tree of commands. Its commands are dragged onto the ring, not by Qt's drag and drop; see
// CommandDrag.
class CommandView : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

Q_SIGNALS:
    void dragBegun(const QModelIndex &index);
    // Ctrl and a key were pressed that has a place around the others: the arrows, Home, Page Up,
    // End and Page Down, as on a number pad. `direction` is one of the eight.
    void directionTyped(int direction);

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void keyPressEvent(QKeyEvent *event) override;
};

// The list of a program's commands, with a search field and a button that puts the chosen command
// into a direction.
class CommandPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CommandPanel(QWidget *parent = nullptr);

    void showCommands(const BindingsEditor &editor);
    void showDirections(const BindingsEditor &editor);
    // The command that is chosen in the list; its identifier is empty if there is none.
    [[nodiscard]] ShownCommand chosenCommand() const;
    void focusSearch();
    // Shows all commands, and chooses none.
    void clearSearch();

Q_SIGNALS:
    void dragBegun(const settings::ShownCommand &command, QWidget *source);
    // A person wants the command in a direction of the scheme in use.
    void wanted(const QString &identifier, int direction);
    // The chosen command is to leave its direction.
    void unwanted(int direction);

private:
    void fillMenu(QMenu &menu);
    void showMenu(const QPoint &position);
    void filter(const QString &text);
    // The first command that begins with the text, or else the first that contains it.
    [[nodiscard]] QModelIndex bestHit(const QString &text) const;
    void updateButton();

    CommandModel *m_model;
    QSortFilterProxyModel *m_filter;
    QLineEdit *m_search;
    CommandView *m_view;
    QToolButton *m_put;
    QLabel *m_nothing;
    QString m_lastSearch;
    QVector<ShownCommand> m_ring; // by direction
};

} // namespace settings
