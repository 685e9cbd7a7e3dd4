// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CommandNames.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace gesturewidget {
namespace {

// The names are read by people and by nobody else.
const QLatin1String kArrow(" > ");

// Returns a caption without the dots by which menus announce a dialog: "Open..." becomes "Open". A
// caption of dots alone stays.
QString withoutDots(const QString &caption)
{
    const QString text = caption.simplified();
    const auto isDot = [](QChar character) {
        return character == QLatin1Char('.') || character == QChar(0x2026);
    };
    auto length = text.size();
    while (length > 0 && isDot(text.at(length - 1)))
        --length;
    const bool hasDots = text.size() - length > 1 || text.endsWith(QChar(0x2026));
    return hasDots && length > 0 ? text.left(length).trimmed() : text;
}

QString captionOf(const RememberedCommand &command)
{
    return withoutDots(command.caption);
}

// "exports" and "export" are one word here.
bool holds(const QString &text, const QString &words)
{
    QString wanted = foldedCaption(words);
    if (wanted.size() > 2 && wanted.endsWith(QLatin1Char('s')))
        wanted.chop(1);
    return foldedCaption(text).contains(wanted);
}

bool holdsAll(const QString &text, const QStringList &captions)
{
    return std::all_of(captions.begin(), captions.end(),
                       [&text](const QString &caption) { return holds(text, caption); });
}

QString joined(const QStringList &captions)
{
    QStringList parts;
    for (const QString &caption : captions) {
        if (const QString part = withoutDots(caption); !part.isEmpty())
            parts.append(part);
    }
    return parts.join(kArrow);
}

// Returns for each text whether it is there more than once.
QSet<QString> repeatedAmong(const QStringList &texts)
{
    QSet<QString> seen;
    QSet<QString> repeated;
    for (const QString &text : texts) {
        const QString folded = foldedCaption(text);
        if (seen.contains(folded))
            repeated.insert(folded);
        seen.insert(folded);
    }
    return repeated;
}

// Returns the usual name of a command of the first bindings; empty for any other.
QString wellKnownCaption(const QString &identifier)
{
    static const QHash<QString, const char *> captions{
        {QStringLiteral("ID_COPY"), QT_TRANSLATE_NOOP("host", "Copy")},
        {QStringLiteral("ID_DTEXT"), QT_TRANSLATE_NOOP("host", "Text")},
        {QStringLiteral("ID_LINE"), QT_TRANSLATE_NOOP("host", "Line")},
        {QStringLiteral("ID_OFFSET"), QT_TRANSLATE_NOOP("host", "Offset")},
        {QStringLiteral("ID_OPEN"), QT_TRANSLATE_NOOP("host", "Open")},
        {QStringLiteral("ID_SAVE"), QT_TRANSLATE_NOOP("host", "Save")},
        {QStringLiteral("ID_TRIM"), QT_TRANSLATE_NOOP("host", "Trim")},
        {QStringLiteral("ID_ZOOM_BOUNDS"), QT_TRANSLATE_NOOP("host", "Zoom to Fit")}};
    const char *caption = captions.value(identifier);
    return caption ? QCoreApplication::translate("host", caption) : QString();
}

} // namespace

QString foldedCaption(const QString &caption)
{
    QString text = caption.simplified();
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text.trimmed().toCaseFolded();
}

QString fullWayOf(const RememberedCommand &command)
{
    // An entry of the menu bar itself is its own group.
    const bool isItsGroup = command.way.isEmpty() && command.group == command.caption;
    return joined((isItsGroup ? QStringList() : QStringList(command.group)) + command.way
                  + QStringList(command.caption));
}

QStringList commandNames(const QVector<RememberedCommand> &commands)
{
    QStringList names;
    for (const RememberedCommand &command : commands)
        names.append(captionOf(command));
    const QSet<QString> sharedCaptions = repeatedAmong(names);
    for (int i = 0; i < commands.size(); ++i) {
        const RememberedCommand &command = commands.at(i);
        const bool isUnique = !sharedCaptions.contains(foldedCaption(names.at(i)));
        if (!command.way.isEmpty() && !(isUnique && holdsAll(command.caption, command.way)))
            names[i] = joined(command.way + QStringList(command.caption));
    }
    const QSet<QString> sharedNames = repeatedAmong(names);
    QHash<QString, int> counts;
    for (int i = 0; i < commands.size(); ++i) {
        if (sharedNames.contains(foldedCaption(names.at(i))))
            names[i] = fullWayOf(commands.at(i));
        if (names.at(i).isEmpty())
            continue;
        const int count = ++counts[foldedCaption(names.at(i))];
        if (count > 1)
            names[i] += QStringLiteral(" (%1)").arg(count);
    }
    return names;
}

QString capitalized(const QString &text)
{
    return text.isEmpty() ? text : text.at(0).toUpper() + text.mid(1);
}

QString captionFrom(const QString &identifier)
{
    if (QString caption = wellKnownCaption(identifier); !caption.isEmpty())
        return caption;
    const QLatin1String prefix("ID_");
    if (!identifier.startsWith(prefix))
        return withoutDots(identifier.section(QLatin1Char('/'), -1));
    return capitalized(
        identifier.mid(prefix.size()).toLower().replace(QLatin1Char('_'), QLatin1Char(' ')));
}

bool repeatsCaption(const QString &tip, const QString &caption)
{
    static const QRegularExpression shortcut(QStringLiteral(R"(\s*[(\[][^()\[\]]*[)\]]\s*$)"));
    QString plain = tip;
    plain.remove(shortcut);
    const QString folded = foldedCaption(caption);
    return foldedCaption(tip) == folded || foldedCaption(plain) == folded || tip.isEmpty();
}

QString namedTip(const RememberedCommand &command, const QString &name)
{
    if (repeatsCaption(command.tip, command.caption))
        return name == captionOf(command) && !command.tip.isEmpty() ? withoutDots(command.tip) : name;
    const bool isNamed = holdsAll(command.tip, command.way + QStringList(command.caption));
    return isNamed ? command.tip : QStringLiteral("%1: %2").arg(name, command.tip);
}

} // namespace gesturewidget
