// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/PluginFolders.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using launcher::PluginFolder;

class PluginFoldersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void layouts_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("found"); // "<Qt major> <folder below the prefix>"

        const auto rows = [](std::initializer_list<const char *> texts) {
            QStringList list;
            for (const char *text : texts)
                list.append(QLatin1String(text));
            return list;
        };
        QTest::newRow("nothing") << rows({}) << rows({});
        QTest::newRow("build tree, Qt 5")
            << rows({"plugins/generic/libmousegestures-qt5.so"}) << rows({"5 plugins"});
        QTest::newRow("build tree, Qt 6")
            << rows({"plugins/generic/libmousegestures-qt6.so"}) << rows({"6 plugins"});
        QTest::newRow("one folder with both") << rows(
            {"plugins/generic/libmousegestures-qt6.so", "plugins/generic/libmousegestures-qt5.so"})
                                              << rows({"5 plugins", "6 plugins"});
        QTest::newRow("installed below lib")
            << rows({"lib/gesturewidget/qt5/plugins/generic/libmousegestures-qt5.so"})
            << rows({"5 lib/gesturewidget/qt5/plugins"});
        QTest::newRow("installed below lib64")
            << rows({"lib64/gesturewidget/qt6/plugins/generic/libmousegestures-qt6.so"})
            << rows({"6 lib64/gesturewidget/qt6/plugins"});
        QTest::newRow("installed for an architecture, both")
            << rows({"lib/x86_64-linux-gnu/gesturewidget/qt6/plugins/generic/libmousegestures-qt6.so",
                     "lib/x86_64-linux-gnu/gesturewidget/qt5/plugins/generic/libmousegestures-qt5.so"})
            << rows({"5 lib/x86_64-linux-gnu/gesturewidget/qt5/plugins",
                     "6 lib/x86_64-linux-gnu/gesturewidget/qt6/plugins"});
        QTest::newRow("folder without the file")
            << rows({"lib/gesturewidget/qt5/plugins/generic/other.so"}) << rows({});
        QTest::newRow("file of the other Qt")
            << rows({"lib/gesturewidget/qt5/plugins/generic/libmousegestures-qt6.so"}) << rows({});
    }

    void layouts()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, found);
        QTemporaryDir prefix;
        QVERIFY(prefix.isValid());
        for (const QString &name : files) {
            const QString path = prefix.filePath(name);
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        }

        QStringList result;
        const auto folders =
            launcher::pluginFolders(QFile::encodeName(prefix.filePath(QStringLiteral("bin"))));
        for (const PluginFolder &folder : folders) {
            const QString path = QDir(prefix.path()).relativeFilePath(QFile::decodeName(folder.path));
            result.append(QString::number(folder.qtMajor) + QLatin1Char(' ') + path);
        }

        QCOMPARE(result, found);
    }
};

QTEST_GUILESS_MAIN(PluginFoldersTest)
#include "tst_pluginfolders.moc"
