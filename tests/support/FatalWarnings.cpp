// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/FatalWarnings.h"

#include <QStringList>
#include <QtGlobal>

namespace tests {
namespace {

QStringList &collected()
{
    static QStringList list;
    return list;
}

QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // The offscreen platform says this of every grab and of every window with a transient parent.
    if (text.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        collected().append(text);
    if (previousHandler)
        previousHandler(type, context, text);
}

} // namespace

void failOnWarnings()
{
    const QtMessageHandler previous = qInstallMessageHandler(collect);
    if (previous != collect)
        previousHandler = previous;
}

void resetWarnings()
{
    collected().clear();
}

QString warnings()
{
    return collected().join(QLatin1Char('\n'));
}

} // namespace tests
