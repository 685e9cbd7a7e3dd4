// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/TextOutput.h"
#include "sdk/chx/CHxString.h"
#include "tests/support/FatalWarnings.h"

#include <QStatusBar>
#include <QTest>

#include <memory>

using gesturewidget::TextOutput;

class TextOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void showsAndClears();
    void bringsBackTheProgramsMessage();
    void messageWithATimeComesBackForTheRest();
    void messageThatIsOverStaysAway();
    void newerMessageOfTheProgramStays();
    void eachBarGetsItsOwnMessageBack();
    void paintsAtOnceWhenAsked();
    void aStatusBarIsNeverMade();
    void onlyTheWindowsOwnBarIsUsed();
    void theWindowMayGoFirst();
};

void TextOutputTest::showsAndClears()
{
    QMainWindow window;
    const QStatusBar *bar = window.statusBar();
    TextOutput output(&window);
    output.SetText("Draws a line", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Draws a line"));
    output.SetText("Two\nlines", true);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Two lines"));
    output.SetText("", true);
    QCOMPARE(bar->currentMessage(), QString());
    output.showForAWhile(QStringLiteral("For a while"));
    QCOMPARE(bar->currentMessage(), QStringLiteral("For a while"));
}

void TextOutputTest::bringsBackTheProgramsMessage()
{
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    bar->showMessage(QStringLiteral("Specify first point"));
    TextOutput output(&window);
    output.SetText("Line", false);
    output.SetText("Circle", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Circle"));
    output.SetText("", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Specify first point"));
    output.SetText("", true); // nothing of ours is shown
    QCOMPARE(bar->currentMessage(), QStringLiteral("Specify first point"));
}

void TextOutputTest::messageWithATimeComesBackForTheRest()
{
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    bar->showMessage(QStringLiteral("Saved"), 2000);
    TextOutput output(&window);
    output.SetText("Line", false);
    output.SetText("", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Saved"));
    QTRY_COMPARE(bar->currentMessage(), QString());
}

void TextOutputTest::messageThatIsOverStaysAway()
{
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    bar->showMessage(QStringLiteral("Saved"), 50);
    TextOutput output(&window);
    output.SetText("Line", false);
    QElapsedTimer since;
    since.start();
    QTRY_VERIFY(since.elapsed() > 60);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Line"));
    output.SetText("", false);
    QCOMPARE(bar->currentMessage(), QString());
}

void TextOutputTest::newerMessageOfTheProgramStays()
{
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    bar->showMessage(QStringLiteral("Specify first point"));
    TextOutput output(&window);
    output.SetText("Line", false);
    bar->showMessage(QStringLiteral("Specify second point"));
    output.SetText("", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("Specify second point"));
    bar->clearMessage();
    output.SetText("Line", false);
    output.SetText("", false);
    QCOMPARE(bar->currentMessage(), QString());
}

void TextOutputTest::eachBarGetsItsOwnMessageBack()
{
    QMainWindow first;
    first.statusBar()->showMessage(QStringLiteral("Of the first"));
    QMainWindow second;
    second.statusBar()->showMessage(QStringLiteral("Of the second"));
    TextOutput output(&first);
    output.SetText("Line", false);
    output.setWindow(&second);
    QCOMPARE(first.statusBar()->currentMessage(), QStringLiteral("Of the first"));
    output.SetText("Line", false);
    output.SetText("", false);
    QCOMPARE(second.statusBar()->currentMessage(), QStringLiteral("Of the second"));
}

void TextOutputTest::paintsAtOnceWhenAsked()
{
    class Bar : public QStatusBar
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            QStatusBar::paintEvent(event);
        }
    };
    QMainWindow window;
    auto *bar = new Bar;
    window.setStatusBar(bar);
    window.show();
    QTRY_VERIFY(bar->paints > 0);
    TextOutput output(&window);
    const int before = bar->paints;
    output.SetText("Later", false);
    QCOMPARE(bar->paints, before);
    output.SetText("Now", true);
    QCOMPARE(bar->paints, before + 1);
}

void TextOutputTest::aStatusBarIsNeverMade()
{
    QMainWindow window;
    TextOutput output(&window);
    output.SetText("To nobody", true);
    output.showForAWhile(QStringLiteral("To nobody"));
    QVERIFY(window.findChildren<QStatusBar *>().isEmpty());
    const QStatusBar *bar = window.statusBar(); // made later by the program
    output.SetText("To somebody", false);
    QCOMPARE(bar->currentMessage(), QStringLiteral("To somebody"));
}

void TextOutputTest::onlyTheWindowsOwnBarIsUsed()
{
    QMainWindow window;
    auto *inner = new QMainWindow;
    const QStatusBar *innerBar = inner->statusBar();
    window.setCentralWidget(inner);
    TextOutput output(&window);
    output.SetText("Outside", false);
    QCOMPARE(innerBar->currentMessage(), QString());
}

void TextOutputTest::theWindowMayGoFirst()
{
    auto window = std::make_unique<QMainWindow>();
    window->statusBar();
    TextOutput output(window.get());
    window.reset();
    output.SetText("To nobody", true);
    TextOutput none(nullptr);
    none.SetText("To nobody", true);
    QVERIFY(!window);
}

QTEST_MAIN(TextOutputTest)
#include "tst_textoutput.moc"
