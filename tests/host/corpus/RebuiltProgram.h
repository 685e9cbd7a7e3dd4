// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QMainWindow>
#include <QVector>

#include <memory>
#include <vector>

namespace tests {

// The actions and menus of a program as record-corpus wrote them down.
class RebuiltActions
{
public:
    // `record` is the file; an action that only one state of the program has is left out in
    // the other.
    RebuiltActions(const QJsonObject &record, bool hasDocument);

    // In the recorded order.
    [[nodiscard]] QVector<QAction *> actions() const;
    // The window with the menus.
    [[nodiscard]] QMainWindow &window() { return m_window; }
    // The name of an action in the labels: its object name, or menus and caption, "Edit > Copy".
    [[nodiscard]] QStringList keysOf(const QAction &action) const { return m_keys.value(&action); }

private:
    void place(QAction &action, const QJsonArray &path);

    QMainWindow m_window;
    QMainWindow *m_part = nullptr; // a main window in the main window
    std::vector<std::unique_ptr<QAction>> m_actions;
    QHash<const QAction *, QStringList> m_keys;
};

// The widgets of a program at one size of its window. Classes of libraries that are not linked
// here become stand-ins that say they inherit them.
class RebuiltWidgets
{
public:
    explicit RebuiltWidgets(const QJsonArray &widgets);
    ~RebuiltWidgets();
    Q_DISABLE_COPY_MOVE(RebuiltWidgets)

    // In the recorded order; the first is the main window. Shown, at their recorded places,
    // until the event loop runs.
    [[nodiscard]] const std::vector<QWidget *> &widgets() const { return m_widgets; }

private:
    std::unique_ptr<QWidget> m_window;
    std::vector<QWidget *> m_widgets;
};

} // namespace tests
