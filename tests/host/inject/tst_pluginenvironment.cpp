// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/InstallPaths.h"
#include "host/inject/BorrowedVariables.h"
#include "host/inject/PluginEnvironment.h"
#include "tests/host/support/Files.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class PluginEnvironmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void ownKeyIsRemoved_data();
    void ownKeyIsRemoved();
    void ownFoldersAreRemoved_data();
    void ownFoldersAreRemoved();
    void variablesAreRemovedWhenEmpty();
    void variablesThatAreNotSetStayUnset();
    void otherEntriesStay();
    void whatIsBorrowedComesBack();
    void whatIsKeptStaysAway();
    void theNameIsBorrowed_data();
    void theNameIsBorrowed();
    void whatTheProgramSetsMeanwhileStays();

private:
    std::unique_ptr<QTemporaryDir> m_root;
};

void PluginEnvironmentTest::init()
{
    tests::resetWarnings();
    m_root = std::make_unique<QTemporaryDir>();
    tests::writeFile(m_root->filePath(QStringLiteral("qt5/generic/libmousegestures-qt5.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("qt6/generic/libmousegestures-qt6.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("both/generic/libmousegestures-qt5.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("both/generic/libmousegestures-qt6.so")));
    // These folders also hold other plug-ins.
    tests::writeFile(m_root->filePath(QStringLiteral("shared/generic/libmousegestures-qt5.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("shared/generic/libother.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("styles/generic/libmousegestures-qt5.so")));
    tests::writeFile(m_root->filePath(QStringLiteral("styles/styles/libpretty.so")));
    QVERIFY(QDir().mkpath(m_root->filePath(QStringLiteral("empty/generic"))));
}

void PluginEnvironmentTest::cleanup()
{
    qunsetenv("QT_QPA_GENERIC_PLUGINS");
    qunsetenv("QT_PLUGIN_PATH");
    qunsetenv(gesturewidget::kNameVariable);
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void PluginEnvironmentTest::ownKeyIsRemoved_data()
{
    QTest::addColumn<QByteArray>("plugins");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *plugins, const char *expected) {
        QTest::newRow(plugins) << QByteArray(plugins) << QByteArray(expected);
    };
    row("mousegestures", "");
    row("mousegestures,tuiotouch", "tuiotouch");
    row("tuiotouch,mousegestures", "tuiotouch");
    row("a,mousegestures,b:x=1", "a,b:x=1");
    row("mousegestures:argument", "");
    row("MouseGestures,a", "a");
    row("mousegestures,mousegestures", "");
    row("mousegestures2,xmousegestures", "mousegestures2,xmousegestures");
    row("evdevmouse:/dev/mousegestures", "evdevmouse:/dev/mousegestures");
    row("a,,b", "a,,b");
    row("", "");
}

void PluginEnvironmentTest::ownKeyIsRemoved()
{
    QFETCH(QByteArray, plugins);
    QFETCH(QByteArray, expected);
    QCOMPARE(inject::withoutPlugin(plugins, inject::kPluginKey), expected);
}

void PluginEnvironmentTest::ownFoldersAreRemoved_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("expected");
    // %1 stands for the folder of the fixtures.
    const auto row = [](const char *path, const char *expected) {
        QTest::newRow(path) << QByteArray(path) << QByteArray(expected);
    };
    row("%1/qt5", "");
    row("%1/qt5:%1/qt6", "");
    row("%1/both", "");
    row("/usr/lib/plugins:%1/qt5", "/usr/lib/plugins");
    row("%1/qt6:/usr/lib/plugins:%1/qt5", "/usr/lib/plugins");
    row("%1/qt5/", "");
    row("%1/shared", "%1/shared");
    row("%1/styles", "%1/styles");
    row("%1/empty", "%1/empty");
    row("%1/nothing", "%1/nothing");
    row("relative:/x", "relative:/x");
    row("", "");
}

void PluginEnvironmentTest::ownFoldersAreRemoved()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, expected);
    const QByteArray root = m_root->path().toLocal8Bit();
    QCOMPARE(inject::withoutOwnFolders(path.replace("%1", root)), expected.replace("%1", root));
}

void PluginEnvironmentTest::variablesAreRemovedWhenEmpty()
{
    qputenv("QT_QPA_GENERIC_PLUGINS", "mousegestures");
    qputenv("QT_PLUGIN_PATH", m_root->filePath(QStringLiteral("qt5")).toLocal8Bit());
    inject::cleanEnvironment();
    QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_GENERIC_PLUGINS"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_PLUGIN_PATH"));
}

void PluginEnvironmentTest::variablesThatAreNotSetStayUnset()
{
    inject::cleanEnvironment();
    QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_GENERIC_PLUGINS"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_PLUGIN_PATH"));
}

void PluginEnvironmentTest::otherEntriesStay()
{
    const QByteArray own = m_root->filePath(QStringLiteral("qt5")).toLocal8Bit();
    qputenv("QT_QPA_GENERIC_PLUGINS", "mousegestures,tuiotouch");
    qputenv("QT_PLUGIN_PATH", own + ":/somewhere/else");
    inject::cleanEnvironment();
    QCOMPARE(qgetenv("QT_QPA_GENERIC_PLUGINS"), QByteArray("tuiotouch"));
    QCOMPARE(qgetenv("QT_PLUGIN_PATH"), QByteArray("/somewhere/else"));
}

void PluginEnvironmentTest::whatIsBorrowedComesBack()
{
    qputenv("QT_QPA_GENERIC_PLUGINS", "mousegestures,a");
    {
        const inject::BorrowedVariables variables;
        QCOMPARE(qgetenv("QT_QPA_GENERIC_PLUGINS"), QByteArray("a"));
        QCOMPARE(variables.explanation(), -1);
    }
    QCOMPARE(qgetenv("QT_QPA_GENERIC_PLUGINS"), QByteArray("mousegestures,a"));
    QVERIFY(!qEnvironmentVariableIsSet("QT_PLUGIN_PATH"));
}

void PluginEnvironmentTest::whatIsKeptStaysAway()
{
    qputenv("QT_QPA_GENERIC_PLUGINS", "mousegestures");
    {
        inject::BorrowedVariables variables;
        variables.keep();
    }
    QVERIFY(!qEnvironmentVariableIsSet("QT_QPA_GENERIC_PLUGINS"));
}

void PluginEnvironmentTest::theNameIsBorrowed_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("a name") << QByteArray("draw") << QStringLiteral("draw");
    QTest::newRow("capital letters") << QByteArray("Draw") << QStringLiteral("draw");
    QTest::newRow("a path") << QByteArray("../../draw") << QStringLiteral("draw");
    QTest::newRow("a folder") << QByteArray("draw/") << QString();
    QTest::newRow("nothing") << QByteArray() << QString();
}

void PluginEnvironmentTest::theNameIsBorrowed()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, name);
    qputenv(gesturewidget::kNameVariable, value);
    {
        const inject::BorrowedVariables variables;
        QVERIFY(!qEnvironmentVariableIsSet(gesturewidget::kNameVariable));
        QCOMPARE(variables.name(), name);
    }
    QCOMPARE(qgetenv(gesturewidget::kNameVariable), value);
    {
        inject::BorrowedVariables variables;
        variables.keep();
    }
    QVERIFY(!qEnvironmentVariableIsSet(gesturewidget::kNameVariable));
}

void PluginEnvironmentTest::whatTheProgramSetsMeanwhileStays()
{
    qputenv("QT_QPA_GENERIC_PLUGINS", "mousegestures");
    {
        const inject::BorrowedVariables variables;
        qputenv("QT_QPA_GENERIC_PLUGINS", "b");
    }
    QCOMPARE(qgetenv("QT_QPA_GENERIC_PLUGINS"), QByteArray("b"));
}

QTEST_GUILESS_MAIN(PluginEnvironmentTest)
#include "tst_pluginenvironment.moc"
