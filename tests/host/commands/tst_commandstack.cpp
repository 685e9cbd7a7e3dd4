// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandStack.h"
#include "sdk/od/OdEdCommand.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>

using gesturewidget::CommandStack;

namespace {

class Command : public OdEdCommand
{
public:
    Command(const QString &globalName, const QString &localName)
        : m_globalName(globalName)
        , m_localName(localName)
    {
        ++alive;
    }
    ~Command() override { --alive; }

    [[nodiscard]] OdString groupName() const override { return {}; }
    [[nodiscard]] OdString globalName() const override { return OdString(m_globalName); }
    [[nodiscard]] OdString localName() const override { return OdString(m_localName); }
    void execute(OdEdCommandContext *) override { }

    static inline int alive = 0;

private:
    QString m_globalName;
    QString m_localName;
};

using CommandPtr = OdSmartPtr<OdEdCommand>;

CommandPtr makeCommand(const char *globalName, const char *localName)
{
    return CommandPtr(
        new OdRxObjectImpl<Command>(QString::fromUtf8(globalName), QString::fromUtf8(localName)),
        kOdRxAttach);
}

OdEdCommand *lookup(const CommandStack &stack, const QString &name)
{
    return stack.lookupCommand(OdString(name));
}

} // namespace

class CommandStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup()
    {
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
        QCOMPARE(Command::alive, 0);
    }

    void looksUpByEitherName_data();
    void looksUpByEitherName();
    void nothingIsFoundByAnEmptyName();
    void holdsOneReference();
    void letsGoAtTheEnd();
    void ignoresNullAndStrangers();
    void theLastOfTwoWithOneNameIsFound();
    void theStackItselfIsNeverFreed();
};

void CommandStackTest::looksUpByEitherName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("global") << QStringLiteral("_GESTURE") << true;
    QTest::newRow("local") << QStringLiteral("GESTE") << true;
    QTest::newRow("global without underscore") << QStringLiteral("GESTURE") << true;
    QTest::newRow("local with underscore") << QStringLiteral("_GESTE") << true;
    QTest::newRow("small letters") << QStringLiteral("gesture") << true;
    QTest::newRow("mixed letters") << QStringLiteral("_GesTe") << true;
    QTest::newRow("two underscores") << QStringLiteral("__GESTURE") << false;
    QTest::newRow("beginning") << QStringLiteral("GEST") << false;
    QTest::newRow("longer") << QStringLiteral("GESTURES") << false;
    QTest::newRow("something else") << QStringLiteral("LINE") << false;
}

void CommandStackTest::looksUpByEitherName()
{
    QFETCH(QString, name);
    QFETCH(bool, isFound);
    CommandStack stack;
    const CommandPtr command = makeCommand("_GESTURE", "GESTE");
    stack.addCommand(command.get());
    QCOMPARE(lookup(stack, name), isFound ? command.get() : nullptr);
}

void CommandStackTest::nothingIsFoundByAnEmptyName()
{
    CommandStack stack;
    const CommandPtr command = makeCommand("", "_");
    stack.addCommand(command.get());
    QCOMPARE(lookup(stack, QString()), nullptr);
    QCOMPARE(lookup(stack, QStringLiteral("_")), nullptr);
}

void CommandStackTest::holdsOneReference()
{
    CommandStack stack;
    const CommandPtr command = makeCommand("_A", "A");
    stack.addCommand(command.get());
    QCOMPARE(command->numRefs(), 2L);
    stack.addCommand(command.get());
    QCOMPARE(command->numRefs(), 2L);
    stack.removeCommand(command.get());
    QCOMPARE(command->numRefs(), 1L);
    QCOMPARE(lookup(stack, QStringLiteral("A")), nullptr);
    stack.removeCommand(command.get());
    QCOMPARE(command->numRefs(), 1L);
}

void CommandStackTest::letsGoAtTheEnd()
{
    CommandPtr command = makeCommand("_A", "A");
    {
        CommandStack stack;
        stack.addCommand(command.get());
        command = {};
        QCOMPARE(Command::alive, 1);
    }
    QCOMPARE(Command::alive, 0);
}

void CommandStackTest::ignoresNullAndStrangers()
{
    CommandStack stack;
    stack.addCommand(nullptr);
    stack.removeCommand(nullptr);
    const CommandPtr command = makeCommand("_A", "A");
    stack.removeCommand(command.get());
    QCOMPARE(command->numRefs(), 1L);
    QCOMPARE(lookup(stack, QStringLiteral("A")), nullptr);
}

void CommandStackTest::theLastOfTwoWithOneNameIsFound()
{
    CommandStack stack;
    const CommandPtr first = makeCommand("_A", "A");
    const CommandPtr second = makeCommand("_a", "a");
    stack.addCommand(first.get());
    stack.addCommand(second.get());
    QCOMPARE(lookup(stack, QStringLiteral("A")), second.get());
    stack.removeCommand(second.get());
    QCOMPARE(lookup(stack, QStringLiteral("A")), first.get());
}

void CommandStackTest::theStackItselfIsNeverFreed()
{
    CommandStack stack;
    odedSetCommandStack(&stack);
    {
        const OdEdCommandStackPtr pointer = odedRegCmds();
        QCOMPARE(pointer.get(), &stack);
    }
    stack.release();
    stack.release();
    odedSetCommandStack(nullptr);
    const CommandPtr command = makeCommand("_A", "A");
    stack.addCommand(command.get());
    QCOMPARE(lookup(stack, QStringLiteral("A")), command.get());
}

QTEST_GUILESS_MAIN(CommandStackTest)
#include "tst_commandstack.moc"
