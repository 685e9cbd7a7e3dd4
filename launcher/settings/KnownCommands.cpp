#include "launcher/settings/KnownCommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::RememberedCommand;

constexpr int kVersion = 1;
// Characters. A name that is longer does not push the others' captions away.
constexpr int kWidest = 40;

QString simplifiedCaption(const QString &caption)
{
    QString text = caption.simplified();
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text.trimmed().toCaseFolded();
}

Outcome nothingShown(const QString &program)
{
    return Outcome::failure(QStringLiteral("no command of %1 is known before it was started once with "
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
    const auto firstWith = [this](const auto &isIt) {
        const auto found = std::find_if(m_shown.begin(), m_shown.end(), isIt);
        return found == m_shown.end() ? QString() : found->identifier;
    };
    const QString own = firstWith([&](const RememberedCommand &one) { return one.identifier == text; });
    if (m_shown.isEmpty() || !own.isEmpty() || m_wellKnown.contains(text))
        return {};
    const QString byKey = firstWith([&](const RememberedCommand &one) { return one.command == text; });
    if (!byKey.isEmpty()) {
        identifier = byKey;
        return {};
    }

    QStringList found;
    const QString wanted = simplifiedCaption(text);
    for (const RememberedCommand &command : m_shown) {
        if (!wanted.isEmpty() && simplifiedCaption(command.caption) == wanted)
            found.append(command.identifier);
    }
    if (found.size() == 1) {
        identifier = found.first();
        return {};
    }
    if (found.isEmpty())
        return QStringLiteral("%1 has never shown a command \"%2\"; mouse-gestures --list-commands %1 "
                              "says which it has")
            .arg(program, text);
    return QStringLiteral("several commands are called \"%1\": %2")
        .arg(text, found.join(QStringLiteral(", ")));
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

} // namespace launcher
