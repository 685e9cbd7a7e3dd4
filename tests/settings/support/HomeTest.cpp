// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/settings/support/HomeTest.h"

#include "host/files/CatalogueFile.h"
#include "host/files/PluginNames.h"
#include "host/files/SettingsFile.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QtTest>

namespace tests {
namespace {

QByteArray entry(const QString &name, const QString &title, const QByteArray &more)
{
    return "[Desktop Entry]\nType=Application\nName=" + title.toUtf8() + "\nExec=" + name.toUtf8()
         + " %F\n" + more;
}

} // namespace

void HomeTest::init()
{
    FolderTest::init();
    for (const char *folder :
         {"home", "config", "data", "cache", "runtime", "bin", "share/applications"})
        QVERIFY(QDir().mkpath(place(folder)));
    QVERIFY(
        QFile::setPermissions(place("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const auto set = [this](const char *name, const char *folder) {
        QVERIFY(qputenv(name, QFile::encodeName(place(folder))));
    };
    set("HOME", "home");
    set("XDG_CONFIG_HOME", "config");
    set("XDG_DATA_HOME", "data");
    set("XDG_CACHE_HOME", "cache");
    set("XDG_RUNTIME_DIR", "runtime");
    set("XDG_DATA_DIRS", "share");
    set("PATH", "bin");
    qunsetenv("GESTUREWIDGET_PROFILES");
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("XDG_SESSION_TYPE");
    qputenv("DISPLAY", ":990"); // no server has that number
}

void HomeTest::install(const QString &name, const QString &title, const QByteArray &more) const
{
    QVERIFY(QFile::copy(QStringLiteral(PROGRAM), programFile(name)));
    write(entryFile(name), entry(name, title, more));
}

void HomeTest::installPlain(const QString &name, const QString &title) const
{
    QVERIFY(QFile::copy(QStringLiteral(PLAIN_PROGRAM), programFile(name)));
    write(entryFile(name), entry(name, title, {}));
}

void HomeTest::uninstall(const QString &name) const
{
    QVERIFY(QFile::remove(programFile(name)));
    QVERIFY(QFile::remove(entryFile(name)));
}

void HomeTest::installSelfRunning(const QString &name, const QString &title)
{
    QVERIFY(QFile::link(QCoreApplication::applicationFilePath(), programFile(name)));
    write(entryFile(name), entry(name, title, {}));
    const QString plugin = place(gesturewidget::pluginFile(QT_MAJOR));
    QVERIFY(QDir().mkpath(place("generic")));
    QVERIFY(QFile::copy(QStringLiteral(LIBRARY), plugin));
    QVERIFY(QLibrary(plugin).load());
}

void HomeTest::writeProfile(const QString &name) const
{
    QVERIFY(QDir().mkpath(place("profiles")));
    qputenv("GESTUREWIDGET_PROFILES", QFile::encodeName(place("profiles")));
    write(place("profiles/%1.json").arg(name), QStringLiteral(R"({
        "version": 1,
        "program": "%1",
        "usedTriggers": ["middle"],
        "tasks": {
            "checkedActionBeside": ["Modelling"],
            "firstBindings": {"Sketching": {"87": "Sketch_Line"}}
        }
    })")
                                                   .arg(name)
                                                   .toUtf8());
}

QString HomeTest::programFile(const QString &name) const
{
    return place(QStringLiteral("bin/") + name);
}

QString HomeTest::entryFile(const QString &name) const
{
    return place(QStringLiteral("share/applications/%1.desktop").arg(name));
}

QString HomeTest::ownEntryFile(const QString &name) const
{
    return place(QStringLiteral("data/applications/%1.desktop").arg(name));
}

QString HomeTest::settingsFile(const QString &name) const
{
    return place(QStringLiteral("config/gesturewidget/%1.ini").arg(name));
}

QString HomeTest::stored(const QString &name, const QString &key) const
{
    const auto values = gesturewidget::SettingsFile(settingsFile(name)).read();
    return values.value(gesturewidget::SettingsFile::nameOf(QStringLiteral("GestureWidget"), key),
                        QStringLiteral("<none>"));
}

launcher::Subject HomeTest::subject(const char *name)
{
    return launcher::Subject::of(name);
}

void HomeTest::remember(const QString &name, const QStringList &identifiers, const QString &menu) const
{
    QVector<gesturewidget::RememberedCommand> commands;
    for (const QString &identifier : identifiers) {
        gesturewidget::RememberedCommand command;
        command.identifier = command.command = identifier;
        command.caption = QStringLiteral("The %1").arg(identifier);
        command.group = menu;
        commands.append(command);
    }
    QVERIFY(QDir().mkpath(place("config/gesturewidget")));
    gesturewidget::CatalogueFile file(
        place(QStringLiteral("config/gesturewidget/%1.commands.json").arg(name)));
    QVERIFY(file.merge(commands));
}

} // namespace tests
