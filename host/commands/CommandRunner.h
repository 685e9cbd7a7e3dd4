// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxSystemServices.h"

#include <QObject>
#include <QString>

#include <vector>

class OdEdCommand;

namespace gesturewidget {

class ActionItem;
class CommandCatalogue;
class CommandStack;
class MainWindows;
class TextOutput;

// Runs commands by name: macros, which run commands that modules have registered, and the
// program's own actions.
//
// A chosen command runs later, but in the window that was current when it was chosen. If that window
// is gone by then, nothing runs.
//
// A command may do anything, such as close the window or destroy this object.
class CommandRunner : public QObject
{
    Q_OBJECT

public:
    // `documents` and `windows` may be null.
    CommandRunner(CommandStack &stack, CommandCatalogue &catalogue, TextOutput &output,
                  CHxDocumentManager *documents, MainWindows *windows = nullptr);
    ~CommandRunner() override;

    // See CHxSystemServices::RunCommand(). Each "^C" of a macro sends Escape to the active drawing
    // view. If a command cannot be run, the status bar says so and the result says that nothing
    // was found.
    CHxCommandResultPtr run(const QString &command, bool wait);

    // Forgets the commands of run() that wait for the event loop.
    void dropWaiting() { ++m_drops; }

    // Runs a command of the command stack from the event loop.
    void runStackCommand(const QString &name);

private:
    struct Macro
    {
        int cancels = 0; // Escapes before the rest
        QString rest;
    };

    [[nodiscard]] static Macro parsed(const QString &command);
    [[nodiscard]] bool isFound(const QString &command) const;
    // Calls `run` from the event loop, with the window current that is current now.
    template <class Run> void queue(Run run);
    void execute(const QString &command);
    void executeMacro(const Macro &macro);
    // Runs it, unless it runs already: then its dialog comes to the front.
    void executeStackCommand(const QString &name);
    void trigger(const QString &name);
    [[nodiscard]] QString absence(const ActionItem &item) const;
    void cancel() const;

    CommandStack &m_stack;
    CommandCatalogue &m_catalogue;
    TextOutput &m_output;
    CHxDocumentManager *m_documents;
    MainWindows *m_windows;
    unsigned m_drops = 0; // of waiting commands
    std::vector<const OdEdCommand *> m_running; // commands of the stack that have not returned
};

} // namespace gesturewidget
