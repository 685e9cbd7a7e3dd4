// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The processes that run a program with gestures. The program is this test.

#include "launcher/programs/RunningPrograms.h"

#include "host/files/PluginNames.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QtTest>

using launcher::runningWithGestures;
using launcher::Subject;
using tests::text;

class RunningProgramsTest : public tests::FolderTest
{
    Q_OBJECT

    static Subject subjectOf(const QString &path)
    {
        Subject subject;
        subject.path = QFile::encodeName(path);
        return subject;
    }

private Q_SLOTS:
    void onlyWithThePlugin()
    {
        const Subject subject = subjectOf(QCoreApplication::applicationFilePath());
        const QList<qint64> self{QCoreApplication::applicationPid()};
        QCOMPARE(runningWithGestures(subject), QList<qint64>());
        const QString plugin = place(gesturewidget::pluginFile(QT_MAJOR));
        QVERIFY(QDir().mkpath(place("generic")));
        QVERIFY(QFile::copy(text(FIXTURES "/liblauncher_fixture_library.so"), plugin));
        QLibrary library(plugin);
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QCOMPARE(runningWithGestures(subject), self);
        // A person may know the program by a link.
        QVERIFY(QFile::link(QCoreApplication::applicationFilePath(), place("link")));
        QCOMPARE(runningWithGestures(subjectOf(place("link"))), self);
        QCOMPARE(runningWithGestures(subjectOf(text("/bin/sh"))), QList<qint64>());
        QCOMPARE(runningWithGestures(Subject()), QList<qint64>());
        QVERIFY(library.unload());
        QCOMPARE(runningWithGestures(subject), QList<qint64>());
    }

    // As the kernel shows them.
    void aScriptIsKnownByItsPath()
    {
        write("script", "#!/usr/bin/python3\n");
        QVERIFY(QDir().mkpath(place("proc/12")));
        QVERIFY(QFile::link(text("/usr/bin/python3"), place("proc/12/exe")));
        write("proc/12/cmdline",
              QByteArray("python3\0-E\0", 11) + QFile::encodeName(place("script")) + '\0');
        write("proc/12/maps", "7f0 r-xp /x/" + gesturewidget::pluginFile(6).toLatin1() + "\n");
        QVERIFY(QDir().mkpath(place("proc/self")));
        const Subject script = subjectOf(place("script"));
        QCOMPARE(runningWithGestures(script, place("proc")), QList<qint64>{12});
        write("proc/12/maps", "7f0 r-xp /x/libother.so\n");
        QCOMPARE(runningWithGestures(script, place("proc")), QList<qint64>());
    }
};

QTEST_GUILESS_MAIN(RunningProgramsTest)
#include "tst_runningprograms.moc"
