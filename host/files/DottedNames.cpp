// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/DottedNames.h"

#include <QRegularExpression>

namespace gesturewidget {
namespace {

// Returns what is before the last dot of a name like "Git.Subversion.Log"; empty for any other text.
QString beginningOf(const QString &name)
{
    if (!name.contains(QLatin1Char('.')))
        return {};
    static const QRegularExpression dotted(QStringLiteral(
        R"(\A([A-Za-z_][A-Za-z0-9_]*(?:\.[A-Za-z_][A-Za-z0-9_]*)*)\.[A-Za-z_][A-Za-z0-9_]*\z)"));
    return dotted.match(name).captured(1);
}

} // namespace

void DottedNames::add(const RememberedCommand &command)
{
    for (const QString &name : {command.identifier, command.command}) {
        const QString beginning = beginningOf(name);
        // The entry of a document may show its name without the ending.
        if (!beginning.isEmpty() && !command.caption.contains(beginning, Qt::CaseInsensitive))
            m_endings[beginning].insert(name.mid(beginning.size()).toLower());
    }
}

bool DottedNames::contains(const QString &name) const
{
    const QString beginning = beginningOf(name);
    return !beginning.isEmpty() && m_endings.value(beginning).size() >= kFewest;
}

} // namespace gesturewidget
