// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The launcher and the program that it starts use the same files, whatever starts the program.

#include "launcher/programs/Subject.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QtTest>

using launcher::Subject;

class ProgramNameTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theLauncherAndTheProgramUseTheSameFiles_data();
    void theLauncherAndTheProgramUseTheSameFiles();
    void aScriptThatStartsOtherProgramsLeavesThemTheirNames();
    void theNameOfAScript_data();
    void theNameOfAScript();

private:
    // Writes a script, and a link to it if `name` is another one.
    void script(const QString &name, const QString &file, const QByteArray &text) const;
    [[nodiscard]] QStringList settings() const;
    void start(const QStringList &arguments) const;
    [[nodiscard]] QString typed(const QString &name) const
    {
        return place(QStringLiteral("bin/") + name);
    }
};

void ProgramNameTest::init()
{
    FolderTest::init();
    for (const char *folder : {"bin", "config", "home", "profiles"})
        QVERIFY(QDir().mkpath(place(folder)));
    const auto set = [this](const char *name, const char *folder) {
        QVERIFY(qputenv(name, QFile::encodeName(place(folder))));
    };
    set("XDG_CONFIG_HOME", "config");
    set("HOME", "home");
    set("XDG_RUNTIME_DIR", "home");
    set("GESTUREWIDGET_PROFILES", "profiles");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void ProgramNameTest::script(const QString &name, const QString &file, const QByteArray &text) const
{
    QFile script(typed(file));
    QVERIFY(script.open(QIODevice::WriteOnly));
    QCOMPARE(script.write(text), text.size());
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    if (name != file)
        QVERIFY(QFile::link(script.fileName(), typed(name)));
}

// The files that programs have written while they ran.
QStringList ProgramNameTest::settings() const
{
    return QDir(place("config/gesturewidget")).entryList({QStringLiteral("*.ini")});
}

void ProgramNameTest::start(const QStringList &arguments) const
{
    QProcess process;
    process.start(QStringLiteral(MOUSE_GESTURES), arguments);
    QVERIFY(process.waitForFinished(60000));
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             errors.constData());
}

void ProgramNameTest::theLauncherAndTheProgramUseTheSameFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("profile"); // that exists
    const QByteArray shell("#!/bin/sh\nexec '" GUEST "' \"$@\"\n");
    const QByteArray python("#!/usr/bin/env python3\nimport os, sys\n"
                            "os.execv('" GUEST "', ['" GUEST "'] + sys.argv[1:])\n");
    const auto row = [](const char *title, const char *name, const char *file, const QByteArray &text,
                        const char *profile) {
        QTest::newRow(title) << QString::fromLatin1(name) << QString::fromLatin1(file) << text
                             << QString::fromLatin1(profile);
    };
    row("a script", "draw", "draw", shell, "");
    row("a script with an ending", "draw.sh", "draw.sh", shell, "");
    row("a link to a script", "draw", "run.sh", shell, "");
    row("a link to a script in Python", "draw", "main.py", python, "");
    row("a script without a first line", "draw", "draw", shell.mid(shell.indexOf('\n') + 1), "");
    row("a profile of the program", "draw", "run.sh", shell, "guest");
    row("a profile of the script", "draw", "run.sh", shell, "run.sh");
}

void ProgramNameTest::theLauncherAndTheProgramUseTheSameFiles()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, profile);
    script(name, file, text);
    if (!profile.isEmpty())
        QVERIFY(QFile::copy(QStringLiteral(TESTS_SOURCE_DIR "/host/inject/guest/profiles/guest.json"),
                            place("profiles/") + profile + QStringLiteral(".json")));
    start({typed(name), QStringLiteral("quit")});
    const Subject subject = Subject::of(QFile::encodeName(typed(name)));
    QCOMPARE(settings(), QStringList(QFileInfo(subject.settingsFile()).fileName()));
}

void ProgramNameTest::aScriptThatStartsOtherProgramsLeavesThemTheirNames()
{
    script(QStringLiteral("with"), QStringLiteral("with"), "#!/bin/sh\nexec \"$@\"\n");
    start({typed(QStringLiteral("with")), QStringLiteral(GUEST), QStringLiteral("quit")});
    QCOMPARE(settings(), QStringList(QStringLiteral("guest.ini")));
}

void ProgramNameTest::theNameOfAScript_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *name, const char *file, const char *firstLine,
                        const char *expected) {
        QTest::newRow(title) << QString::fromLatin1(name) << QString::fromLatin1(file)
                             << QByteArray(firstLine) << QString::fromLatin1(expected);
    };
    row("with an ending", "Draw.sh", "Draw.sh", "#!/bin/sh\n", "draw");
    row("behind a link", "draw-5", "draw", "#!/bin/bash -e\n", "draw");
    row("with an ending, behind a link", "draw", "run.sh", "#! /bin/sh\n", "draw");
    row("in Python", "draw", "start", "#!/usr/bin/python3\n", "draw");
    row("in Python by env", "draw", "start", "#!/usr/bin/env -S A=b python3 -E\n", "draw");
    row("in Python with an ending", "draw.py", "draw.py", "#!/usr/bin/env python3\n", "draw");
    row("without a first line", "draw", "start", "exec true\n", "start");
    row("of an empty first line", "draw", "start", "#!\n", "start");
}

void ProgramNameTest::theNameOfAScript()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    script(name, file, text);
    QCOMPARE(Subject::of(QFile::encodeName(typed(name))).name, expected);
}

QTEST_GUILESS_MAIN(ProgramNameTest)
#include "tst_programname.moc"
