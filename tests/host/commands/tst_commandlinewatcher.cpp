// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandLineWatcher.h"
#include "host/commands/CommandStack.h"
#include "tests/host/support/ScriptedCommand.h"
#include "tests/support/FatalWarnings.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include <memory>

using gesturewidget::CommandLineWatcher;

// The program's command line, and a class derived from it.
class DraftCommandEdit : public QLineEdit
{
    Q_OBJECT
};

class SpecialCommandEdit : public DraftCommandEdit
{
    Q_OBJECT
};

class CommandLineWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_stack = std::make_unique<gesturewidget::CommandStack>();
        const auto command = tests::ScriptedCommand::make("GESTURE");
        m_stack->addCommand(command.get());
        watch(QStringLiteral("DraftCommandEdit"));
    }
    void cleanup()
    {
        m_watcher.reset();
        m_stack.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void aCommandIsTakenOutAndRun_data();
    void aCommandIsTakenOutAndRun();
    void everythingElsePasses_data();
    void everythingElsePasses();
    void otherKeysPass();
    void linesOfClassesBelowAreWatchedToo();
    void otherLinesAreLeftAlone();
    void withoutAClassNothingIsWatched();
    void aCommandRemovedLaterPasses();
    void theLineMayEndWhenItIsCleared();
    void afterTheWatcherEverythingPasses();

private:
    void watch(const QString &className)
    {
        m_run.clear();
        m_watcher = std::make_unique<CommandLineWatcher>(
            className, *m_stack, [this](const QString &name) { m_run.append(name); });
    }

    std::unique_ptr<gesturewidget::CommandStack> m_stack;
    std::unique_ptr<CommandLineWatcher> m_watcher;
    QStringList m_run;
};

void CommandLineWatcherTest::aCommandIsTakenOutAndRun_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("local name") << QStringLiteral("GESTURE") << int(Qt::Key_Return) << 0;
    QTest::newRow("global name") << QStringLiteral("_GESTURE") << int(Qt::Key_Return) << 0;
    QTest::newRow("small letters") << QStringLiteral("gesture") << int(Qt::Key_Return) << 0;
    QTest::newRow("spaces") << QStringLiteral("  gesture ") << int(Qt::Key_Return) << 0;
    QTest::newRow("number pad") << QStringLiteral("GESTURE") << int(Qt::Key_Enter)
                                << int(Qt::KeypadModifier);
}

void CommandLineWatcherTest::aCommandIsTakenOutAndRun()
{
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    DraftCommandEdit line;
    const QSignalSpy returned(&line, &QLineEdit::returnPressed);
    QTest::keyClicks(&line, typed);
    QCOMPARE(line.text(), typed);
    QVERIFY(m_run.isEmpty());
    QTest::keyClick(&line, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_run, QStringList(typed.trimmed()));
    QCOMPARE(line.text(), QString());
    QCOMPARE(returned.count(), 0);
    QTest::keyClick(&line, Qt::Key_Return); // an empty line goes to the program
    QCOMPARE(returned.count(), 1);
    QCOMPARE(m_run.size(), 1);
}

void CommandLineWatcherTest::everythingElsePasses_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("the program's command") << QStringLiteral("line") << 0;
    QTest::newRow("a part of the name") << QStringLiteral("GEST") << 0;
    QTest::newRow("more than the name") << QStringLiteral("GESTURE 1") << 0;
    QTest::newRow("coordinates") << QStringLiteral("10,20") << 0;
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("underscore") << QStringLiteral("_") << 0;
    QTest::newRow("with Control") << QStringLiteral("GESTURE") << int(Qt::ControlModifier);
    QTest::newRow("with Shift") << QStringLiteral("GESTURE") << int(Qt::ShiftModifier);
}

void CommandLineWatcherTest::everythingElsePasses()
{
    QFETCH(QString, typed);
    QFETCH(int, modifiers);
    DraftCommandEdit line;
    const QSignalSpy returned(&line, &QLineEdit::returnPressed);
    QTest::keyClicks(&line, typed);
    QTest::keyClick(&line, Qt::Key_Return, Qt::KeyboardModifiers(modifiers));
    QVERIFY(m_run.isEmpty());
    QCOMPARE(line.text(), typed);
    QCOMPARE(returned.count(), 1);
}

void CommandLineWatcherTest::otherKeysPass()
{
    DraftCommandEdit line;
    QTest::keyClicks(&line, QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Space);
    QTest::keyClick(&line, Qt::Key_Tab);
    QTest::keyClick(&line, Qt::Key_Escape);
    QVERIFY(m_run.isEmpty());
    QCOMPARE(line.text(), QStringLiteral("GESTURE "));
}

void CommandLineWatcherTest::linesOfClassesBelowAreWatchedToo()
{
    SpecialCommandEdit line;
    line.setText(QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Return);
    QCOMPARE(m_run.size(), 1);
}

void CommandLineWatcherTest::otherLinesAreLeftAlone()
{
    QLineEdit line;
    line.setText(QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Return);
    watch(QStringLiteral("QTextEdit")); // not a line edit
    QTextEdit text;
    text.setPlainText(QStringLiteral("GESTURE"));
    QTest::keyClick(&text, Qt::Key_Return);
    QVERIFY(m_run.isEmpty());
    QCOMPARE(line.text(), QStringLiteral("GESTURE"));
}

void CommandLineWatcherTest::withoutAClassNothingIsWatched()
{
    watch(QString());
    DraftCommandEdit line;
    line.setText(QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Return);
    QVERIFY(m_run.isEmpty());
    QCOMPARE(line.text(), QStringLiteral("GESTURE"));
}

void CommandLineWatcherTest::aCommandRemovedLaterPasses()
{
    m_stack->removeCommand(m_stack->lookupCommand(OdString(QStringLiteral("GESTURE"))));
    DraftCommandEdit line;
    const QSignalSpy returned(&line, &QLineEdit::returnPressed);
    line.setText(QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Return);
    QVERIFY(m_run.isEmpty());
    QCOMPARE(returned.count(), 1);
}

void CommandLineWatcherTest::theLineMayEndWhenItIsCleared()
{
    auto *line = new DraftCommandEdit;
    line->setText(QStringLiteral("GESTURE"));
    connect(line, &QLineEdit::textChanged, line, &QObject::deleteLater);
    const QSignalSpy gone(line, &QObject::destroyed);
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(m_run.size(), 1);
    QTRY_COMPARE(gone.count(), 1);
}

void CommandLineWatcherTest::afterTheWatcherEverythingPasses()
{
    m_watcher.reset();
    DraftCommandEdit line;
    const QSignalSpy returned(&line, &QLineEdit::returnPressed);
    line.setText(QStringLiteral("GESTURE"));
    QTest::keyClick(&line, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
}

QTEST_MAIN(CommandLineWatcherTest)
#include "tst_commandlinewatcher.moc"
