// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandRunner.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandStack.h"
#include "host/commands/FocusReturn.h"
#include "host/window/MainWindows.h"
#include "host/window/TextOutput.h"
#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"
#include "sdk/od/OdEdCommand.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "sdk/OwnCode.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace gesturewidget {
namespace {

const QLatin1String kCancel("^C");

class CommandResult : public CHxCommandResult
{
public:
    explicit CommandResult(bool isFound)
        : m_isFound(isFound)
    {
    }

    [[nodiscard]] bool IsFound() const override { return m_isFound; }

private:
    bool m_isFound;
};

void bringDialogToFront()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return;
    dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
    dialog->raise();
    dialog->activateWindow();
}

void pressEscape(QWidget *view)
{
    const ProgramCode theirs;
    const QPointer<QWidget> guard(view);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
        if (guard)
            QCoreApplication::sendEvent(guard, &event);
    }
}

} // namespace

CommandRunner::CommandRunner(CommandStack &stack, CommandCatalogue &catalogue, TextOutput &output,
                             CHxDocumentManager *documents, MainWindows *windows)
    : m_stack(stack)
    , m_catalogue(catalogue)
    , m_output(output)
    , m_documents(documents)
    , m_windows(windows)
{
}

CommandRunner::~CommandRunner() = default;

CHxCommandResultPtr CommandRunner::run(const QString &command, bool wait)
{
    CHxCommandResultPtr result(new OdRxObjectImpl<CommandResult>(isFound(command)), kOdRxAttach);
    if (wait)
        execute(command);
    else
        queue([this, command, drops = m_drops] {
            if (drops == m_drops)
                execute(command);
        });
    return result;
}

void CommandRunner::runStackCommand(const QString &name)
{
    queue([this, name] { executeStackCommand(name); });
}

template <class Run> void CommandRunner::queue(Run run)
{
    const QPointer<QWidget> window = m_windows ? m_windows->current() : nullptr;
    const bool hadWindow = !window.isNull();
    whenFocusIsBack(*this, [this, window, hadWindow, run] {
        const OwnCode ours;
        if (hadWindow && !m_windows->contains(window))
            return;
        const MainWindows::Turn turn(m_windows, window);
        run();
    });
}

CommandRunner::Macro CommandRunner::parsed(const QString &command)
{
    Macro macro;
    macro.rest = command.trimmed();
    while (macro.rest.startsWith(kCancel, Qt::CaseInsensitive)) {
        macro.rest = macro.rest.mid(kCancel.size()).trimmed();
        ++macro.cancels;
    }
    while (macro.rest.endsWith(QLatin1Char(';')) || macro.rest.endsWith(QLatin1Char(' ')))
        macro.rest.chop(1);
    return macro;
}

bool CommandRunner::isFound(const QString &command) const
{
    const Macro macro = parsed(command);
    if (macro.cancels > 0)
        return macro.rest.isEmpty() || m_stack.lookupCommand(OdString(macro.rest));
    const ActionItem *item = m_catalogue.findUsable(command);
    return item && item->isUsable();
}

void CommandRunner::execute(const QString &command)
{
    const Macro macro = parsed(command);
    if (macro.cancels > 0)
        executeMacro(macro);
    else
        trigger(command);
}

void CommandRunner::executeMacro(const Macro &macro)
{
    const QPointer<CommandRunner> self(this);
    for (int i = 0; i < macro.cancels && self; ++i)
        cancel();
    if (self && !macro.rest.isEmpty())
        executeStackCommand(macro.rest);
}

void CommandRunner::executeStackCommand(const QString &name)
{
    // The pointer keeps the command while it runs, also when it is removed meanwhile.
    const OdSmartPtr<OdEdCommand> command = m_stack.lookupCommand(OdString(name));
    if (!command) {
        m_output.showForAWhile(
            QCoreApplication::translate("host", "There is no command \"%1\".").arg(name));
        return;
    }
    const OdEdCommand *running = command.get();
    if (std::find(m_running.begin(), m_running.end(), running) != m_running.end()) {
        bringDialogToFront();
        return;
    }
    const MainWindows::Hold hold(m_windows); // the command may show a dialog
    const QPointer<CommandRunner> self(this);
    m_running.push_back(running);
    command->execute(nullptr);
    if (self)
        m_running.erase(std::remove(m_running.begin(), m_running.end(), running), m_running.end());
}

void CommandRunner::trigger(const QString &name)
{
    const ActionItem *item = m_catalogue.findUsable(name);
    if (!item) {
        m_output.showForAWhile(
            QCoreApplication::translate("host", "There is no command \"%1\".").arg(name));
    } else if (!item->here.isPresent || !item->action()) {
        m_output.showForAWhile(absence(*item));
    } else if (!item->isUsable()) {
        m_output.showForAWhile(QCoreApplication::translate("host", "%1: cannot be used at the moment.")
                                   .arg(item->GetCaption().toQString()));
    } else {
        const ProgramCode theirs;
        item->action()->trigger();
    }
}

// Says why a command without an action cannot run, and which menu or toolbar it belongs to.
QString CommandRunner::absence(const ActionItem &item) const
{
    QString line = QCoreApplication::translate("host", "%1: not available at the moment.")
                       .arg(item.GetCaption().toQString());
    if (item.here.group.isEmpty())
        return line;
    const bool isShown = m_catalogue.isShown(item.here.group);
    QString place;
    if (item.here.isInToolBar)
        place = isShown ? QCoreApplication::translate("host", "The toolbar \"%1\" does not have it now.")
                        : QCoreApplication::translate(
                            "host", "It belongs to the toolbar \"%1\", which is not there now.");
    else
        place = isShown ? QCoreApplication::translate("host", "The menu \"%1\" does not have it now.")
                        : QCoreApplication::translate(
                            "host", "It belongs to the menu \"%1\", which is not there now.");
    return line + QLatin1Char(' ') + place.arg(item.here.group);
}

// Cancels the command that runs in the drawing, as a person does.
void CommandRunner::cancel() const
{
    CHxDocument *document = m_documents ? m_documents->GetActiveDocument() : nullptr;
    QWidget *view = document ? document->GetViewWidget() : nullptr;
    if (view && view->isVisible()) // a document that is closed has a stand-in
        pressEscape(view);
}

} // namespace gesturewidget
