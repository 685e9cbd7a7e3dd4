// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandLineWatcher.h"

#include "host/commands/CommandStack.h"
#include "sdk/OwnCode.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace gesturewidget {
namespace {

bool isPlainReturn(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        && !(event.modifiers() & ~Qt::KeypadModifier);
}

} // namespace

CommandLineWatcher::CommandLineWatcher(const QString &className, const CommandStack &stack,
                                       std::function<void(const QString &)> run)
    : m_className(className.toLatin1())
    , m_stack(stack)
    , m_run(std::move(run))
{
    // The application is watched because the line may be created, and created again, at any time.
    if (!m_className.isEmpty() && QCoreApplication::instance())
        QCoreApplication::instance()->installEventFilter(this);
}

CommandLineWatcher::~CommandLineWatcher() = default;

bool CommandLineWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !isPlainReturn(*static_cast<QKeyEvent *>(event))
        || !watched->inherits(m_className.constData()))
        return false;
    const OwnCode ours;
    auto *line = qobject_cast<QLineEdit *>(watched);
    const QString name = line ? line->text().trimmed() : QString();
    if (!m_stack.lookupCommand(OdString(name)))
        return false;
    line->clear();
    m_run(name);
    return true;
}

} // namespace gesturewidget
