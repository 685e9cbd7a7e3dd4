// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/TextOutput.h"
#include "sdk/chx/CHxString.h"
#include "tests/support/FatalWarnings.h"

#include <QElapsedTimer>
#include <QStatusBar>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

using gesturewidget::TextOutput;

namespace {

// A program's window, and the host's output to its status bar.
struct Program
{
    QMainWindow window;
    QStatusBar *bar = window.statusBar();
    TextOutput output{&window};

    [[nodiscard]] QString shown() const { return bar->currentMessage(); }
};

} // namespace

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
    void theRestIsNeverLongerThanTheTime();
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
    Program program;
    program.output.SetText("Draws a line", false);
    QCOMPARE(program.shown(), QStringLiteral("Draws a line"));
    program.output.SetText("Two\nlines", true);
    QCOMPARE(program.shown(), QStringLiteral("Two lines"));
    program.output.SetText("", true);
    QCOMPARE(program.shown(), QString());
    program.output.showForAWhile(QStringLiteral("For a while"));
    QCOMPARE(program.shown(), QStringLiteral("For a while"));
}

void TextOutputTest::bringsBackTheProgramsMessage()
{
    Program program;
    program.bar->showMessage(QStringLiteral("Specify first point"));
    program.output.SetText("Line", false);
    program.output.SetText("Circle", false);
    QCOMPARE(program.shown(), QStringLiteral("Circle"));
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QStringLiteral("Specify first point"));
    program.output.SetText("", true); // nothing of ours is shown
    QCOMPARE(program.shown(), QStringLiteral("Specify first point"));
}

void TextOutputTest::messageWithATimeComesBackForTheRest()
{
    constexpr int kTime = 2000; // milliseconds
    Program program;
    program.bar->showMessage(QStringLiteral("Saved"), kTime);
    QElapsedTimer since;
    since.start();
    program.output.SetText("Line", false);
    QTRY_VERIFY(since.elapsed() > 60);
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QStringLiteral("Saved"));
    QVERIFY(program.bar->findChild<QTimer *>()->interval() < kTime);
    QTRY_COMPARE(program.shown(), QString());
}

// Qt lets a timer like the status bar's end up to a twentieth late, at a full second of its clock.
void TextOutputTest::theRestIsNeverLongerThanTheTime()
{
    constexpr int kTime = 2000; // milliseconds
    Program program;
    while (QDeadlineTimer::current().deadline() % 1000 != 910)
        QThread::yieldCurrentThread();
    program.bar->showMessage(QStringLiteral("Saved"), kTime);
    program.output.SetText("Line", false);
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QStringLiteral("Saved"));
    const int rest = program.bar->findChild<QTimer *>()->interval();
    QVERIFY2(rest > kTime / 2 && rest <= kTime, qPrintable(QString::number(rest)));
}

void TextOutputTest::messageThatIsOverStaysAway()
{
    Program program;
    program.bar->showMessage(QStringLiteral("Saved"), 50);
    program.output.SetText("Line", false);
    QElapsedTimer since;
    since.start();
    QTRY_VERIFY(since.elapsed() > 60);
    QCOMPARE(program.shown(), QStringLiteral("Line"));
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QString());
}

void TextOutputTest::newerMessageOfTheProgramStays()
{
    Program program;
    program.bar->showMessage(QStringLiteral("Specify first point"));
    program.output.SetText("Line", false);
    program.bar->showMessage(QStringLiteral("Specify second point"));
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QStringLiteral("Specify second point"));
    program.bar->clearMessage();
    program.output.SetText("Line", false);
    program.output.SetText("", false);
    QCOMPARE(program.shown(), QString());
}

void TextOutputTest::eachBarGetsItsOwnMessageBack()
{
    Program first;
    first.bar->showMessage(QStringLiteral("Of the first"));
    Program second;
    second.bar->showMessage(QStringLiteral("Of the second"));
    first.output.SetText("Line", false);
    first.output.setWindow(&second.window);
    QCOMPARE(first.shown(), QStringLiteral("Of the first"));
    first.output.SetText("Line", false);
    first.output.SetText("", false);
    QCOMPARE(second.shown(), QStringLiteral("Of the second"));
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
