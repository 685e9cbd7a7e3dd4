// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ElfFile.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <elf.h>

using launcher::ElfFile;
using launcher::QtWidgetsUse;

Q_DECLARE_METATYPE(launcher::QtWidgetsUse)

namespace {

constexpr auto kLinked = QT_MAJOR == 5 ? QtWidgetsUse::Qt5 : QtWidgetsUse::Qt6;

QByteArray fixture(const char *name)
{
    return QByteArray(FIXTURES "/launcher_fixture_") + name;
}

QByteArray contents(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class QtWidgetsUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        tests::failOnWarnings();
        QVERIFY(m_folder.isValid());
    }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void programs_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QtWidgetsUse>("use");

        QTest::newRow("linked to Qt Widgets") << fixture("direct") << kLinked;
        QTest::newRow("through its own library") << fixture("indirect") << kLinked;
        QTest::newRow("through a library beside it") << fixture("origin") << kLinked;
        QTest::newRow("no Qt at all") << fixture("plain") << QtWidgetsUse::None;
        QTest::newRow("Qt Core only") << fixture("core") << QtWidgetsUse::None;
        QTest::newRow("script") << write("script", "#!/bin/sh\nexit 0\n") << QtWidgetsUse::Unknown;
        QTest::newRow("empty file") << write("empty", "") << QtWidgetsUse::Unknown;
        QTest::newRow("missing") << QByteArray("/nowhere/at/all") << QtWidgetsUse::Unknown;
        QTest::newRow("folder") << QByteArray("/") << QtWidgetsUse::Unknown;
    }

    void programs()
    {
        QFETCH(QByteArray, path);
        QFETCH(QtWidgetsUse, use);
        QCOMPARE(launcher::qtWidgetsUse(path, {}, systemFolders()), use);
    }

    // The program's library is in another folder. It is found only where the loader is told to
    // look.
    void libraryPath()
    {
        const QByteArray moved = write("moved", contents(fixture("origin")));
        QVERIFY(moved.size() > 0);
        QCOMPARE(launcher::qtWidgetsUse(moved, {}, systemFolders()), QtWidgetsUse::None);
        QCOMPARE(launcher::qtWidgetsUse(moved, "/nowhere:" FIXTURES, systemFolders()), kLinked);
        QCOMPARE(launcher::qtWidgetsUse(moved, {}, {FIXTURES}), kLinked);
    }

    void symbolicLinksLeadToTheOrigin()
    {
        const QString link = m_folder.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(QFile::decodeName(fixture("origin")), link));
        QCOMPARE(launcher::qtWidgetsUse(QFile::encodeName(link), {}, systemFolders()), kLinked);
    }

    void libraryOfAnotherMachineIsPassedOver()
    {
        const QString folder = m_folder.filePath(QStringLiteral("foreign"));
        QVERIFY(QDir().mkpath(folder));
        QByteArray library = contents(FIXTURES "/liblauncher_fixture_library.so");
        QVERIFY(library.size() > 64);
        library[18] = static_cast<char>(library.at(18) ^ 1); // e_machine
        const QByteArray moved = write("moved2", contents(fixture("origin")));
        write("foreign/liblauncher_fixture_library.so", library);
        const QByteArray path = QFile::encodeName(folder);
        QCOMPARE(launcher::qtWidgetsUse(moved, path, systemFolders()), QtWidgetsUse::None);
        QCOMPARE(launcher::qtWidgetsUse(moved, path + ":" FIXTURES, systemFolders()), kLinked);
    }

    void headOfAProgram()
    {
        const ElfFile elf = ElfFile::read(fixture("direct"));
        QVERIFY(elf.isValid);
        QCOMPARE(elf.bits, sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32);
        QVERIFY(elf.machine != EM_NONE);
        QVERIFY(elf.needed.contains("libc.so.6"));
        QVERIFY(ElfFile::read(fixture("origin")).runpath.contains("$ORIGIN"));
    }

    // Every damaged file gets an answer.
    void damagedFiles()
    {
        const QByteArray whole = contents(fixture("direct"));
        QVERIFY(whole.size() > 4096);
        for (int size = 0; size < 1024; size += 7) {
            const ElfFile elf = ElfFile::read(write("cut", whole.left(size)));
            QVERIFY2(elf.needed.isEmpty(), qPrintable(QString::number(size)));
        }
        for (int at = 0; at < 1024; ++at) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(~damaged.at(at));
            const QByteArray path = write("damaged", damaged);
            const ElfFile elf = ElfFile::read(path);
            QVERIFY(elf.needed.size() < 1000);
            const QtWidgetsUse use = launcher::qtWidgetsUse(path, {}, {});
            QVERIFY(use == kLinked || use == QtWidgetsUse::None || use == QtWidgetsUse::Unknown);
        }
    }

    void loaderConfiguration()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("conf.d"))));
        write("conf.d/a.conf", "# words\n/opt/a # more\n\n");
        write("conf.d/b.conf", "/opt/b\ninclude loop.conf\nrelative\n");
        write("conf.d/loop.conf", "/opt/loop\n");
        const QByteArray main =
            write("ld.so.conf", "include conf.d/[ab].conf\ninclude\t/nowhere/*\n/opt/c\n");
        QCOMPARE(launcher::systemLibraryFolders(main),
                 (QList<QByteArray>{"/opt/a", "/opt/b", "/opt/loop", "/opt/c", "/lib64", "/usr/lib64",
                                    "/lib", "/usr/lib"}));
    }

    void loaderConfigurationThatIncludesItself()
    {
        const QByteArray path = write("self.conf", "include self.conf\n/opt/a\n");
        QVERIFY(launcher::systemLibraryFolders(path).contains("/opt/a"));
    }

    // If a file were read again for each include line, these would take minutes.
    void loaderConfigurationsThatIncludeEachOther()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("circle"))));
        for (char name = 'a'; name <= 'f'; ++name)
            write(qPrintable(QStringLiteral("circle/%1.conf").arg(QLatin1Char(name))),
                  QByteArray("include *.conf\n/opt/") + name + '\n');
        const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("circle/a.conf")));
        const QList<QByteArray> folders = launcher::systemLibraryFolders(path);
        QCOMPARE(folders.size(), 6 + 4);
        for (char name = 'a'; name <= 'f'; ++name)
            QCOMPARE(folders.count(QByteArray("/opt/") + name), 1);
    }

    void noLoaderConfiguration()
    {
        QCOMPARE(launcher::systemLibraryFolders("/nowhere"),
                 (QList<QByteArray>{"/lib64", "/usr/lib64", "/lib", "/usr/lib"}));
    }

private:
    QByteArray write(const char *name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return QFile::encodeName(file.fileName());
    }

    static QList<QByteArray> systemFolders()
    {
        return launcher::systemLibraryFolders("/etc/ld.so.conf");
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(QtWidgetsUseTest)
#include "tst_qtwidgetsuse.moc"
