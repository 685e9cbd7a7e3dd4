// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/desktop/DesktopMenu.h"
#include "settings/programs/ProgramFinder.h"
#include "settings/programs/ProgramModel.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QMainWindow>
#include <QTimer>
#include <QUndoGroup>

QT_BEGIN_NAMESPACE
class QAction;
class QLabel;
class QStackedWidget;
QT_END_NAMESPACE

namespace settings {

class BindingsEditor;
class Exchange;
class MessageBar;
class ProgramPage;
class ProgramPanel;

// The window "Mouse Gestures": the programs on one side, the chosen one on the other.
class SettingsWindow : public QMainWindow
{
    Q_OBJECT

public:
    SettingsWindow();
    ~SettingsWindow() override;

    // Looks for programs, in the background.
    void search();
    // Shows the window above all others and gives it the keyboard, as far as the desktop allows that;
    // otherwise the desktop marks the window in its task bar.
    void bringToFront();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createActions();
    void choose(int row);
    void offerFirst();
    void endSearch();
    [[nodiscard]] BindingsEditor *editorOf(const launcher::MenuProgram &program);
    void startProgram();

    launcher::DesktopMenu::Places m_places;
    ProgramModel m_model;
    ProgramFinder m_finder;
    QUndoGroup m_undo;
    QFileSystemWatcher m_watcher;
    QTimer m_searchAgain;
    QHash<QByteArray, BindingsEditor *> m_editors; // by the program as typed
    BindingsEditor *m_editor = nullptr; // of the chosen program
    launcher::MenuProgram m_chosen;

    ProgramPanel *m_programs = nullptr;
    QStackedWidget *m_pages = nullptr;
    QLabel *m_empty = nullptr;
    ProgramPage *m_page = nullptr;
    MessageBar *m_message = nullptr;
    Exchange *m_exchange = nullptr;
    QList<QAction *> m_ofProgram; // need a chosen program
    bool m_wasPainted = false;
};

} // namespace settings
