// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/RingSettings.h"

#include "host/files/SettingsNames.h"

namespace gesturewidget::ringsettings {
namespace {

// Before the task's name.
const QLatin1String kPrefix("Ring ");
// In the section of a ring: the task's name while the task uses it.
const QLatin1String kOwn("Own");

QString ownName(const QString &task)
{
    return SettingsFile::nameOf(sectionOf(task), kOwn);
}

// Calls `visit(name in `section`, key)` for each of the ring's keys there.
template <class Visit>
void forEachKey(const SettingsFile::Values &values, const QString &section, Visit visit)
{
    const QString prefix = SettingsFile::nameOf(section, QStringLiteral("8")).chopped(1);
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString key = it.key().startsWith(prefix) ? it.key().mid(prefix.size()) : QString();
        if (isRingKey(key))
            visit(it.key(), key);
    }
}

} // namespace

QString sectionOf(const QString &task)
{
    return kPrefix + task;
}

bool isRingKey(const QString &key)
{
    bool isDirection = false;
    static_cast<void>(key.toUInt(&isDirection));
    return isDirection || key == settingsnames::schemeKey();
}

bool hasOwnRing(const SettingsFile::Values &values, const QString &task)
{
    return !task.isEmpty() && values.value(ownName(task)) == task;
}

QStringList ownRings(const SettingsFile::Values &values)
{
    QStringList tasks;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!it.value().isEmpty() && it.key() == ownName(it.value()))
            tasks.append(it.value());
    }
    tasks.sort();
    return tasks;
}

QStringList boundCommands(const SettingsFile::Values &values)
{
    QStringList bound;
    QStringList sections{settingsnames::moduleSection()};
    const QStringList tasks = ownRings(values);
    for (const QString &task : tasks)
        sections.append(sectionOf(task));
    for (const QString &section : std::as_const(sections)) {
        forEachKey(values, section, [&](const QString &name, const QString &key) {
            const QString command = values.value(name);
            if (key != settingsnames::schemeKey() && !command.isEmpty() && !bound.contains(command))
                bound.append(command);
        });
    }
    return bound;
}

SettingsFile::Values seenIn(const SettingsFile::Values &values, const QString &task)
{
    SettingsFile::Values seen = values;
    if (!hasOwnRing(values, task))
        return seen;
    const QString shared = settingsnames::moduleSection();
    forEachKey(values, shared, [&seen](const QString &name, const QString &) { seen.remove(name); });
    forEachKey(values, sectionOf(task), [&](const QString &name, const QString &key) {
        seen.insert(SettingsFile::nameOf(shared, key), values.value(name));
    });
    return seen;
}

SettingsFile::Values movedTo(const SettingsFile::Values &changes, const QString &task)
{
    SettingsFile::Values moved = changes;
    forEachKey(changes, settingsnames::moduleSection(), [&](const QString &name, const QString &key) {
        moved.remove(name);
        moved.insert(SettingsFile::nameOf(sectionOf(task), key), changes.value(name));
    });
    return moved;
}

SettingsFile::Values ownRing(const SettingsFile::Values &now, const QString &task,
                             const QHash<QString, QString> &first, const SettingsFile::Values &shared,
                             const SettingsFile::Values &site)
{
    SettingsFile::Values ring;
    if (hasOwnRing(site, task)) { // it counts unless the person's file says otherwise
        ring.insert(ownName(task), QString());
        return ring;
    }
    const auto nameOf = [&task](const QString &key) {
        return SettingsFile::nameOf(sectionOf(task), key);
    };
    ring.insert(ownName(task), task);
    forEachKey(now, sectionOf(task),
               [&](const QString &name, const QString &) { ring.insert(name, now.value(name)); });
    for (auto it = first.cbegin(); it != first.cend(); ++it) {
        if (isRingKey(it.key()) && !ring.contains(nameOf(it.key())))
            ring.insert(nameOf(it.key()), it.value());
    }
    const SettingsFile::Values chosen = ring;
    forEachKey(shared, settingsnames::moduleSection(), [&](const QString &name, const QString &key) {
        if (chosen.contains(nameOf(key)))
            return;
        // The first digit of a direction's key is its scheme.
        const QString scheme = nameOf(QString(key.at(0)));
        QString command = shared.value(name);
        for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
            if (key != settingsnames::schemeKey() && it.key().startsWith(scheme)
                && it.value() == command)
                command.clear();
        }
        ring.insert(nameOf(key), command);
    });
    for (auto it = site.cbegin(); it != site.cend(); ++it) {
        if (ring.contains(it.key()) && ring.value(it.key()) == it.value())
            ring.remove(it.key()); // counts anyway
    }
    return ring;
}

SettingsFile::Values sharedRing(const QString &task, const SettingsFile::Values &site)
{
    SettingsFile::Values values;
    // A removed key would let the administrator's count.
    values.insert(ownName(task), site.contains(ownName(task)) ? QString(QLatin1String("")) : QString());
    return values;
}

} // namespace gesturewidget::ringsettings
