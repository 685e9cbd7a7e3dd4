// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/KnownCommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace launcher {
namespace {

using gesturewidget::RememberedCommand;

constexpr int kVersion = 1;
// Characters. A longer name does not move the captions of the others.
constexpr int kWidest = 40;

QString simplifiedCaption(const QString &caption)
{
    QString text = caption.simplified();
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text.trimmed().toCaseFolded();
}

// Where a person finds the command.
QString placeOf(const RememberedCommand &command)
{
    return command.group + QLatin1Char('/') + command.caption;
}

Outcome nothingShown(const QString &program)
{
    return Outcome::failure(QStringLiteral("no command of %1 is known yet; start it once with "
                                           "\"mouse-gestures %1\"")
                                .arg(program));
}

} // namespace

KnownCommands::KnownCommands(const QVector<RememberedCommand> &shown, const QStringList &wellKnown)
    : m_shown(shown)
    , m_wellKnown(wellKnown)
{
}

const RememberedCommand *KnownCommands::find(const QString &identifier) const
{
    const auto found =
        std::find_if(m_shown.begin(), m_shown.end(), [&identifier](const RememberedCommand &one) {
            return one.identifier == identifier;
        });
    return found == m_shown.end() ? nullptr : &*found;
}

QString KnownCommands::captionOf(const QString &identifier) const
{
    const RememberedCommand *command = find(identifier);
    return command ? command->caption.simplified() : QString();
}

QString KnownCommands::resolve(const QString &text, const QString &program, QString &identifier) const
{
    identifier = text;
    if (m_shown.isEmpty())
        return {};
    const auto all = [this](const auto &isIt) {
        QVector<RememberedCommand> found;
        std::copy_if(m_shown.begin(), m_shown.end(), std::back_inserter(found), isIt);
        return found;
    };
    const QString wanted = simplifiedCaption(text);
    const auto isNamedSo = [&](const RememberedCommand &one) { return one.identifier == text; };
    const auto hasThatKey = [&](const RememberedCommand &one) { return one.command == text; };
    const auto isCalledSo = [&](const RememberedCommand &one) {
        return !wanted.isEmpty() && simplifiedCaption(one.caption) == wanted;
    };
    const auto standsThere = [&](const RememberedCommand &one) {
        return !one.group.isEmpty() && simplifiedCaption(placeOf(one)) == wanted;
    };

    QVector<RememberedCommand> found = all(isNamedSo);
    if (found.isEmpty() && m_wellKnown.contains(text))
        return {};
    if (found.isEmpty())
        found = all(hasThatKey).mid(0, 1);
    // One command's identifier may be another one's caption. A person may mean either.
    const QVector<RememberedCommand> called = all(isCalledSo);
    for (const RememberedCommand &command : called) {
        if (found.isEmpty() || command.identifier != found.first().identifier)
            found.append(command);
    }
    if (found.isEmpty())
        found = all(standsThere);
    if (found.size() == 1) {
        identifier = found.first().identifier;
        return {};
    }
    if (found.isEmpty())
        return QStringLiteral("%1 has never shown a command \"%2\"; mouse-gestures --list-commands %1 "
                              "says which it has")
            .arg(program, text);
    // First those that a person sees in the menus.
    std::stable_partition(found.begin(), found.end(),
                          [](const RememberedCommand &one) { return !one.isInToolBar; });
    QStringList names;
    for (const RememberedCommand &command : std::as_const(found))
        names.append(command.group.isEmpty()
                         ? command.identifier
                         : QStringLiteral("%1 (%2)").arg(command.identifier, placeOf(command)));
    return QStringLiteral("several commands are called \"%1\": %2")
        .arg(text, names.join(QStringLiteral(", ")))
        .simplified();
}

Outcome KnownCommands::list(const QString &program) const
{
    if (m_shown.isEmpty())
        return nothingShown(program);
    QStringList groups;
    qsizetype width = 0;
    for (const RememberedCommand &command : m_shown) {
        if (!groups.contains(command.group))
            groups.append(command.group);
        if (command.identifier.size() <= kWidest)
            width = std::max<qsizetype>(width, command.identifier.size());
    }
    Outcome outcome;
    for (const QString &group : std::as_const(groups)) {
        const QString head = group.simplified();
        outcome.output += (head.isEmpty() ? QStringLiteral("-") : head).toLocal8Bit() + '\n';
        for (const RememberedCommand &command : m_shown) {
            if (command.group != group)
                continue;
            const QString name = command.identifier.simplified().leftJustified(static_cast<int>(width));
            QString line = QStringLiteral("  %1  %2").arg(name, command.caption.simplified());
            while (line.endsWith(QLatin1Char(' ')))
                line.chop(1);
            outcome.output += line.toLocal8Bit() + '\n';
        }
    }
    return outcome;
}

Outcome KnownCommands::listAsJson(const QString &program) const
{
    if (m_shown.isEmpty())
        return nothingShown(program);
    QJsonArray commands;
    for (const RememberedCommand &command : m_shown)
        commands.append(QJsonObject{{QStringLiteral("identifier"), command.identifier},
                                    {QStringLiteral("caption"), command.caption},
                                    {QStringLiteral("tip"), command.tip},
                                    {QStringLiteral("category"), command.group},
                                    {QStringLiteral("toolbar"), command.isInToolBar}});
    const QJsonObject list{{QStringLiteral("version"), kVersion},
                           {QStringLiteral("program"), program},
                           {QStringLiteral("commands"), commands}};
    return {QJsonDocument(list).toJson(), {}};
}

QString captionFrom(const QString &identifier)
{
    const QLatin1String prefix("ID_");
    if (!identifier.startsWith(prefix))
        return identifier.section(QLatin1Char('/'), -1);
    const QString words =
        identifier.mid(prefix.size()).toLower().replace(QLatin1Char('_'), QLatin1Char(' '));
    return words.left(1).toUpper() + words.mid(1);
}

} // namespace launcher
