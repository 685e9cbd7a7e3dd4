// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/Captions.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>

class CaptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void caption_data();
    void caption();
    void tip_data();
    void tip();
    void role_data();
    void role();
};

void CaptionsTest::caption_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    const auto row = [](const char *text, const char *plain) {
        QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text) << QString::fromUtf8(plain);
    };
    row("", "");
    row("Line", "Line");
    row("&Open...", "Open...");
    row("Save &as...", "Save as...");
    row("&Open...\tCtrl+O", "Open...");
    row("Save && Close", "Save & Close");
    row("&&", "&");
    row("&&&Go", "&Go");
    row("Odd&", "Odd");
    row("文件(&F)", "文件");
    row("開く (&O)...", "開く...");
    row("Tangent (P,C)", "Tangent (P,C)");
    row("Black (&&) white", "Black (&) white");
    row("  Line  ", "Line");
}

void CaptionsTest::caption()
{
    QFETCH(QString, text);
    QFETCH(QString, plain);
    QCOMPARE(gesturewidget::plainCaption(text), plain);
}

void CaptionsTest::tip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain") << QStringLiteral("Draws a line") << QStringLiteral("Draws a line");
    QTest::newRow("two lines") << QStringLiteral("Draws\na line ") << QStringLiteral("Draws a line");
    QTest::newRow("markup") << QStringLiteral(
        "<h3>New</h3>Create a <b>new</b> document<br><i>(Std_New)</i>")
                            << QStringLiteral("New Create a new document (Std_New)");
    QTest::newRow("entity in markup")
        << QStringLiteral("<p>A &amp; B &lt; C</p>") << QStringLiteral("A & B < C");
    QTest::newRow("less than") << QStringLiteral("angle < 90 degrees")
                               << QStringLiteral("angle < 90 degrees");
    QTest::newRow("ampersand") << QStringLiteral("Trim & extend") << QStringLiteral("Trim & extend");
}

void CaptionsTest::tip()
{
    QFETCH(QString, text);
    QFETCH(QString, plain);
    QCOMPARE(gesturewidget::plainTip(text), plain);
}

void CaptionsTest::role_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("role");
    const auto row = [](const char *name, const char *role) {
        QTest::newRow(*name ? name : "empty") << QString::fromLatin1(name) << QString::fromLatin1(role);
    };
    row("", "");
    row("Tools", "tools");
    row("&Tools", "tools");
    row("tools_menu", "tools");
    row("toolsMenu", "tools");
    row("menuTools", "tools");
    row("menu_Tools", "tools");
    row("mnTools", "tools");
    row("ToolsMenu2", "toolsmenu2");
    row("Power tools", "powertools");
    row("Help", "help");
}

void CaptionsTest::role()
{
    QFETCH(QString, name);
    QFETCH(QString, role);
    QCOMPARE(gesturewidget::menuRole(name), role);
}

QTEST_MAIN(CaptionsTest)
#include "tst_captions.moc"
