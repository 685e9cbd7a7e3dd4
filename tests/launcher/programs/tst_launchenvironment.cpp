// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "launcher/programs/LaunchEnvironment.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

using launcher::Environment;
using launcher::PluginFolder;

namespace {

const QList<PluginFolder> kFolders = {{"/opt/qt5", 5}, {"/opt/qt6", 6}};

QByteArray valueAfter(const char *name, const Environment &environment, bool isRoot = false)
{
    const Environment result = launcher::withGestures(environment, kFolders, isRoot);
    return result.contains(name) ? result.value(name) : QByteArray("(unset)");
}

} // namespace

class LaunchEnvironmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void genericPlugins_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");

        QTest::newRow("unset") << QByteArray() << QByteArray("mousegestures");
        QTest::newRow("others stay first")
            << QByteArray("evdevkeyboard") << QByteArray("evdevkeyboard,mousegestures");
        QTest::newRow("with arguments")
            << QByteArray("evdevmouse:/dev/input/event1,tslib")
            << QByteArray("evdevmouse:/dev/input/event1,tslib,mousegestures");
        QTest::newRow("ours already")
            << QByteArray("mousegestures,tslib") << QByteArray("mousegestures,tslib");
        QTest::newRow("ours with arguments")
            << QByteArray("tslib,mousegestures:x") << QByteArray("tslib,mousegestures:x");
        QTest::newRow("a longer key is not ours")
            << QByteArray("mousegestures2") << QByteArray("mousegestures2,mousegestures");
    }

    void genericPlugins()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        Environment environment;
        if (!before.isEmpty())
            environment.insert("QT_QPA_GENERIC_PLUGINS", before);
        QCOMPARE(valueAfter("QT_QPA_GENERIC_PLUGINS", environment), after);
    }

    void pluginPath_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");

        QTest::newRow("unset") << QByteArray() << QByteArray("/opt/qt5:/opt/qt6");
        QTest::newRow("others stay behind")
            << QByteArray("/a:/b") << QByteArray("/opt/qt5:/opt/qt6:/a:/b");
        QTest::newRow("ours moves to the front")
            << QByteArray("/a:/opt/qt6") << QByteArray("/opt/qt5:/opt/qt6:/a");
    }

    void pluginPath()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        Environment environment;
        if (!before.isEmpty())
            environment.insert("QT_PLUGIN_PATH", before);
        QCOMPARE(valueAfter("QT_PLUGIN_PATH", environment), after);
    }

    void oneFolderForBothIsNamedOnce()
    {
        const Environment result =
            launcher::withGestures({}, {{"/tree/plugins", 5}, {"/tree/plugins", 6}}, false);
        QCOMPARE(result.value("QT_PLUGIN_PATH"), QByteArray("/tree/plugins"));
    }

    // A dash means that the variable is not set.
    void platform_data()
    {
        QTest::addColumn<QByteArray>("session");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<QByteArray>("display");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<bool>("lacksX11");

        const auto row = [](const char *name, const char *session, const char *wayland,
                            const char *display, const char *before, const char *after, bool lacks) {
            QTest::newRow(name) << QByteArray(session) << QByteArray(wayland) << QByteArray(display)
                                << QByteArray(before) << QByteArray(after) << lacks;
        };
        row("X11", "x11", "-", ":0", "-", "(unset)", false);
        row("bare X server", "-", "-", ":0", "-", "(unset)", false);
        row("no desktop, without any variable", "-", "-", "-", "-", "(unset)", false);
        row("no desktop", "tty", "-", "-", "-", "(unset)", false);
        row("Wayland session", "wayland", "-", ":0", "-", "xcb", false);
        row("Wayland display", "-", "wayland-0", ":0", "-", "xcb", false);
        row("Wayland display inside an X11 session", "x11", "wayland-0", ":0", "-", "xcb", false);
        row("empty Wayland display", "x11", "", ":0", "-", "(unset)", false);
        row("Wayland chosen", "wayland", "wayland-0", ":0", "wayland", "xcb", false);
        row("Wayland preferred", "wayland", "wayland-0", ":0", "wayland;xcb", "xcb", false);
        row("X11 chosen", "wayland", "wayland-0", ":0", "xcb", "xcb", false);
        row("offscreen chosen", "wayland", "wayland-0", ":0", "offscreen", "offscreen", false);
        row("Wayland without X11", "wayland", "wayland-0", "-", "-", "(unset)", true);
        row("Wayland with an empty display", "wayland", "wayland-0", "", "-", "(unset)", true);
        row("Wayland chosen, without X11", "wayland", "wayland-0", "-", "wayland", "wayland", true);
        row("offscreen without X11", "wayland", "wayland-0", "-", "offscreen", "offscreen", false);
        row("Wayland chosen under X11", "x11", "-", ":0", "wayland", "wayland", false);
    }

    void platform()
    {
        QFETCH(QByteArray, session);
        QFETCH(QByteArray, wayland);
        QFETCH(QByteArray, display);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(bool, lacksX11);
        Environment environment;
        const auto set = [&environment](const char *name, const QByteArray &value) {
            if (value != "-")
                environment.insert(name, value);
        };
        set("XDG_SESSION_TYPE", session);
        set("WAYLAND_DISPLAY", wayland);
        set("DISPLAY", display);
        set("QT_QPA_PLATFORM", before);

        QCOMPARE(valueAfter("QT_QPA_PLATFORM", environment), after);
        QCOMPARE(launcher::lacksX11(launcher::withGestures(environment, kFolders, false)), lacksX11);
    }

    void webViewsOfRoot()
    {
        const char *const name = "QTWEBENGINE_DISABLE_SANDBOX";
        QCOMPARE(valueAfter(name, {}, false), QByteArray("(unset)"));
        QCOMPARE(valueAfter(name, {}, true), QByteArray("1"));
        QCOMPARE(valueAfter(name, {{name, "0"}}, true), QByteArray("0"));
        QCOMPARE(valueAfter(name, {{name, ""}}, true), QByteArray());
    }

    void theRestPasses()
    {
        const Environment before = {{"HOME", "/home/a"}, {"ODD", "\xff="}, {"EMPTY", ""}};
        const Environment after = launcher::withGestures(before, kFolders, false);
        QCOMPARE(after.size(), before.size() + 2);
        for (auto it = before.begin(); it != before.end(); ++it)
            QCOMPARE(after.value(it.key(), "(unset)"), it.value());
    }

    void entriesAndBack()
    {
        const char *const entries[] = {"B=2", "A=1=1", "B=3", "noise", "=x", "E=", nullptr};
        const Environment environment = launcher::readEnvironment(entries);
        QCOMPARE(environment, (Environment{{"A", "1=1"}, {"B", "2"}, {"E", ""}}));
        QCOMPARE(launcher::environmentEntries(environment), (QList<QByteArray>{"A=1=1", "B=2", "E="}));
        QVERIFY(launcher::readEnvironment(nullptr).isEmpty());
    }
};

QTEST_GUILESS_MAIN(LaunchEnvironmentTest)
#include "tst_launchenvironment.moc"
