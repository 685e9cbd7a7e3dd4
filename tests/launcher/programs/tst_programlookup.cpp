// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ProgramLookup.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using launcher::ProgramLookup;
using Result = ProgramLookup::Result;

Q_DECLARE_METATYPE(launcher::ProgramLookup::Result)

class ProgramLookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        tests::failOnWarnings();
        QVERIFY(m_folder.isValid());
        for (const char *folder : {"first", "second", "first/both"})
            QVERIFY(QDir(m_folder.path()).mkpath(QLatin1String(folder)));
        makeFile("first/data", false);
        makeFile("second/data", true);
        makeFile("first/onlydata", false);
        makeFile("second/draw", true);
        makeFile("first/twice", true);
        makeFile("second/twice", true);
        makeFile("second/both", true);
        m_previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder.filePath(QStringLiteral("second"))));
    }
    void cleanupTestCase() { QDir::setCurrent(m_previous); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    // "%" stands for the temporary folder.
    void find_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("searchPath");
        QTest::addColumn<Result>("result");
        QTest::addColumn<QByteArray>("path");

        const QByteArray both = "%/first:%/second";
        QTest::newRow("on the path")
            << QByteArray("draw") << both << Result::Found << QByteArray("%/second/draw");
        QTest::newRow("first folder wins")
            << QByteArray("twice") << both << Result::Found << QByteArray("%/first/twice");
        QTest::newRow("a file that may not run is passed over")
            << QByteArray("data") << both << Result::Found << QByteArray("%/second/data");
        QTest::newRow("a folder is passed over")
            << QByteArray("both") << both << Result::Found << QByteArray("%/second/both");
        QTest::newRow("only one that may not run")
            << QByteArray("onlydata") << both << Result::NotExecutable << QByteArray("%/first/onlydata");
        QTest::newRow("only a folder")
            << QByteArray("both") << QByteArray("%/first") << Result::Missing << QByteArray();
        QTest::newRow("nowhere") << QByteArray("none") << both << Result::Missing << QByteArray();
        QTest::newRow("missing folders on the path")
            << QByteArray("draw") << QByteArray("%/third:%/second") << Result::Found
            << QByteArray("%/second/draw");
        QTest::newRow("empty entry is the current folder")
            << QByteArray("draw") << QByteArray("%/first:") << Result::Found << QByteArray("./draw");
        QTest::newRow("path") << QByteArray("%/second/draw") << QByteArray() << Result::Found
                              << QByteArray("%/second/draw");
        QTest::newRow("relative path")
            << QByteArray("./draw") << both << Result::Found << QByteArray("./draw");
        QTest::newRow("path of a file that may not run")
            << QByteArray("%/first/data") << both << Result::NotExecutable << QByteArray("%/first/data");
        QTest::newRow("path of a folder")
            << QByteArray("%/first") << both << Result::IsFolder << QByteArray("%/first");
        QTest::newRow("path of nothing")
            << QByteArray("%/none") << both << Result::Missing << QByteArray("%/none");
        QTest::newRow("below a file")
            << QByteArray("%/second/draw/x") << both << Result::Missing << QByteArray("%/second/draw/x");
        QTest::newRow("empty name") << QByteArray() << both << Result::Missing << QByteArray();
    }

    void find()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, searchPath);
        QFETCH(Result, result);
        QFETCH(QByteArray, path);
        const QByteArray folder = QFile::encodeName(m_folder.path());
        const auto placed = [&folder](QByteArray text) { return text.replace("%", folder); };

        const ProgramLookup lookup = ProgramLookup::find(placed(name), placed(searchPath));

        QCOMPARE(lookup.result, result);
        QCOMPARE(lookup.path, placed(path));
    }

private:
    void makeFile(const char *name, bool executable)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner;
        if (executable)
            permissions |= QFile::ExeOwner;
        QVERIFY(file.setPermissions(permissions));
    }

    QTemporaryDir m_folder;
    QString m_previous;
};

QTEST_GUILESS_MAIN(ProgramLookupTest)
#include "tst_programlookup.moc"
