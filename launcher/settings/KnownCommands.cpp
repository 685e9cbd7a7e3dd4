// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/KnownCommands.h"

#include "host/files/CommandNames.h"
#include "launcher/Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::foldedCaption;
using gesturewidget::RememberedCommand;

constexpr int kListVersion = 1;
// Characters. A longer name does not move the captions of the others.
constexpr int kWidest = 40;

// The captions on a way for comparing, however a person separates them.
QString simplifiedWay(const QString &way)
{
    static const QRegularExpression separator(QStringLiteral(R"(\s*[>/]\s*)"));
    QString text = foldedCaption(way);
    return text.replace(separator, QStringLiteral("/"));
}

Outcome nothingShown(const QString &program)
{
    return Outcome::failure(Text::tr("no command of %1 is known yet; start it once with "
                                     "\"mouse-gestures %1\"")
                                .arg(program));
}

} // namespace

KnownCommands::KnownCommands(const QVector<RememberedCommand> &shown, const QStringList &wellKnown)
    : m_shown(shown)
    , m_names(gesturewidget::commandNames(shown))
    , m_wellKnown(wellKnown)
{
    for (int place = static_cast<int>(shown.size()) - 1; place >= 0; --place)
        m_places.insert(shown.at(place).identifier, place);
}

const RememberedCommand *KnownCommands::find(const QString &identifier) const
{
    const int place = m_places.value(identifier, -1);
    return place < 0 ? nullptr : &m_shown.at(place);
}

QString KnownCommands::captionOf(const QString &identifier) const
{
    const RememberedCommand *command = find(identifier);
    return command ? nameOf(*command) : QString();
}

QString KnownCommands::nameOf(const RememberedCommand &command) const
{
    return m_names.at(static_cast<int>(&command - m_shown.constData()));
}

QString KnownCommands::resolve(const QString &text, const QString &program, QString &identifier) const
{
    identifier = text;
    if (m_shown.isEmpty())
        return {};
    const auto all = [this](const auto &isIt) {
        QVector<const RememberedCommand *> found;
        for (const RememberedCommand &one : m_shown) {
            if (isIt(one))
                found.append(&one);
        }
        return found;
    };
    const QString wanted = foldedCaption(text);
    const QString way = simplifiedWay(text);
    const auto isNamedSo = [&](const RememberedCommand &one) { return one.identifier == text; };
    const auto hasThatKey = [&](const RememberedCommand &one) { return one.command == text; };
    const auto isCalledSo = [&](const RememberedCommand &one) {
        return !wanted.isEmpty() && foldedCaption(one.caption) == wanted;
    };
    const auto hasThatName = [&](const RememberedCommand &one) {
        return !way.isEmpty() && simplifiedWay(nameOf(one)) == way;
    };
    const auto standsThere = [&](const RememberedCommand &one) {
        return !one.group.isEmpty()
            && (simplifiedWay(gesturewidget::fullWayOf(one)) == way
                || simplifiedWay(one.group + QLatin1Char('/') + one.caption) == way);
    };

    QVector<const RememberedCommand *> found = all(isNamedSo);
    if (found.isEmpty() && m_wellKnown.contains(text))
        return {};
    if (found.isEmpty())
        found = all(hasThatKey).mid(0, 1);
    // One command's identifier may be another one's caption. A person may mean either.
    const QVector<const RememberedCommand *> called = all(isCalledSo);
    for (const RememberedCommand *command : called) {
        if (found.isEmpty() || command->identifier != found.first()->identifier)
            found.append(command);
    }
    if (found.isEmpty())
        found = all(hasThatName);
    if (found.isEmpty())
        found = all(standsThere);
    if (found.size() == 1) {
        identifier = found.first()->identifier;
        return {};
    }
    if (found.isEmpty())
        return Text::tr("%1 has never shown a command \"%2\"; mouse-gestures --list-commands %1 "
                        "says which it has")
            .arg(program, text);
    // First those that a person sees in the menus.
    std::stable_partition(found.begin(), found.end(),
                          [](const RememberedCommand *one) { return !one->isInToolBar; });
    QStringList names;
    for (const RememberedCommand *command : std::as_const(found))
        names.append(command->group.isEmpty()
                         ? command->identifier
                         : QStringLiteral("%1 (%2)").arg(command->identifier,
                                                         gesturewidget::fullWayOf(*command)));
    return Text::tr("several commands are called \"%1\": %2")
        .arg(text, names.join(QStringLiteral(", ")))
        .simplified();
}

QVector<KnownCommands::Menu> KnownCommands::menus() const
{
    // A heading for one command says little.
    QHash<QString, int> sizes;
    for (const RememberedCommand &command : m_shown)
        ++sizes[command.group.simplified()];
    QVector<Menu> menus;
    QHash<QString, int> places;
    Menu others{Text::tr("Others"), {}};
    for (const RememberedCommand &command : m_shown) {
        const QString caption = command.group.simplified();
        if (caption.isEmpty() || sizes.value(caption) == 1) {
            others.commands.append(&command);
            continue;
        }
        if (!places.contains(caption)) {
            places.insert(caption, static_cast<int>(menus.size()));
            menus.append({caption, {}});
        }
        menus[places.value(caption)].commands.append(&command);
    }
    if (!others.commands.isEmpty())
        menus.append(others);
    return menus;
}

Outcome KnownCommands::list(const QString &program) const
{
    if (m_shown.isEmpty())
        return nothingShown(program);
    qsizetype width = 0;
    for (const RememberedCommand &command : m_shown) {
        if (command.identifier.size() <= kWidest)
            width = std::max<qsizetype>(width, command.identifier.size());
    }
    Outcome outcome;
    const QVector<Menu> all = menus();
    for (const Menu &menu : all) {
        outcome.output += menu.caption.toLocal8Bit() + '\n';
        for (const RememberedCommand *command : menu.commands) {
            const QString name = command->identifier.simplified().leftJustified(static_cast<int>(width));
            QString line = QStringLiteral("  %1  %2").arg(name, nameOf(*command));
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
                                    {QStringLiteral("name"), nameOf(command)},
                                    {QStringLiteral("caption"), command.caption},
                                    {QStringLiteral("tip"), command.tip},
                                    {QStringLiteral("category"), command.group},
                                    {QStringLiteral("toolbar"), command.isInToolBar}});
    const QJsonObject list{{QStringLiteral("version"), kListVersion},
                           {QStringLiteral("program"), program},
                           {QStringLiteral("commands"), commands}};
    return {QJsonDocument(list).toJson(), {}};
}

} // namespace launcher
