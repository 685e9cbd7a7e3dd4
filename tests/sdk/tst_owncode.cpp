// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "sdk/OwnCode.h"

#include <QTest>

#include <stdexcept>

using gesturewidget::CodeMark;
using gesturewidget::OwnCode;
using gesturewidget::ProgramCode;

namespace codemark = gesturewidget::codemark;

// Whose code the mark names, wherever it is kept.
class OwnCodeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_mark = 0;
        codemark::keepAt(&m_mark);
    }
    void cleanup() { codemark::keepAt(nullptr); }

    void marksTheScope()
    {
        {
            const OwnCode ours;
            QCOMPARE(m_mark.load(), 1U);
            {
                const ProgramCode theirs;
                QCOMPARE(m_mark.load(), 0U);
                {
                    const OwnCode again;
                    QCOMPARE(m_mark.load(), 1U);
                }
                QCOMPARE(m_mark.load(), 0U);
            }
            QCOMPARE(m_mark.load(), 1U);
            {
                const OwnCode nested;
            }
            QCOMPARE(m_mark.load(), 1U);
        }
        QCOMPARE(m_mark.load(), 0U);
    }

    void anExceptionEndsTheScopeToo()
    {
        try {
            const OwnCode ours;
            const ProgramCode theirs;
            throw std::runtime_error("from the program");
        } catch (const std::runtime_error &) {
            QCOMPARE(m_mark.load(), 0U);
        }
    }

    void inANestedLoopCodeIsTheProgramsUntilItSaysOtherwise()
    {
        const OwnCode ours;
        {
            const OwnCode opensADialog;
            codemark::eventLoopGoesOn();
            QCOMPARE(m_mark.load(), 0U);
            {
                const OwnCode answersAnEvent;
                QCOMPARE(m_mark.load(), 1U);
            }
            QCOMPARE(m_mark.load(), 0U);
        }
        QCOMPARE(m_mark.load(), 1U);
    }

    void theMarkMayMove()
    {
        CodeMark other{0};
        {
            const OwnCode ours;
            codemark::keepAt(&other);
            QCOMPARE(other.load(), 1U);
            codemark::keepAt(nullptr);
            codemark::keepAt(&m_mark);
            QCOMPARE(m_mark.load(), 1U);
        }
        QCOMPARE(m_mark.load(), 0U);
        QCOMPARE(other.load(), 1U); // nobody writes there any more
    }

private:
    CodeMark m_mark{0};
};

QTEST_GUILESS_MAIN(OwnCodeTest)
#include "tst_owncode.moc"
