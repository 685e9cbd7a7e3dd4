// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/HeldInput.h"
#include "tests/host/support/LoggingView.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>

using gesturewidget::HeldInput;

class HeldInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    // A hand may tremble for hours before it drags.
    void keepsTheNewestOfTooManyMovements();
};

void HeldInputTest::keepsTheNewestOfTooManyMovements()
{
    tests::LoggingView view;
    view.resize(300, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.log.clear();
    HeldInput held;
    constexpr int kMovements = 5000;
    for (int i = 1; i <= kMovements; ++i) {
        const QPointF place(i % 250, i == kMovements ? 150 : 50);
        held.hold(view.windowHandle(), QMouseEvent(QEvent::MouseMove, place, place, place, Qt::NoButton,
                                                   Qt::NoButton, Qt::NoModifier));
    }
    held.replay();
    const QStringList moves = view.log.filter(QStringLiteral("MouseMove"));
    QCOMPARE(moves.size(), int(HeldInput::kMostMovements) + 1);
    QVERIFY2(moves.first().contains(QStringLiteral(" at 1,50 ")), qPrintable(moves.first()));
    QVERIFY2(moves.last().contains(QStringLiteral(" at 0,150 ")), qPrintable(moves.last()));
}

QTEST_MAIN(HeldInputTest)
#include "tst_heldinput.moc"
