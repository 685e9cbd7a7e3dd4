// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "gesture/MgMouseGestureTracker.h"
#include "host/documents/DocumentManager.h"
#include "host/input/PointerFilter.h"
#include "tests/fakehost/FakeHost.h"

#include <QMouseEvent>
#include <QTest>
#include <QWindow>

#include <cstdlib>

// Replaces the C library's allocation functions in this program and counts calls. They are exported, so
// that Qt calls them, too.
namespace {
bool isCounting = false;
int allocations = 0;
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): names of the C library
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

Q_DECL_EXPORT void *malloc(std::size_t size)
{
    allocations += isCounting;
    return __libc_malloc(size);
}
Q_DECL_EXPORT void *calloc(std::size_t count, std::size_t size)
{
    allocations += isCounting;
    return __libc_calloc(count, size);
}
Q_DECL_EXPORT void *realloc(void *memory, std::size_t size)
{
    allocations += isCounting;
    return __libc_realloc(memory, size);
}
}

// Tests the code that runs on every mouse movement while idle.
class IdleInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsAllocations();
    void movementsAllocateNothing_data();
    void movementsAllocateNothing();
};

void IdleInputTest::countsAllocations()
{
    allocations = 0;
    isCounting = true;
    const QString text = QString::number(allocations) + QStringLiteral(" allocations");
    isCounting = false;
    QVERIFY(!text.isEmpty());
    QVERIFY(allocations > 0);
}

void IdleInputTest::movementsAllocateNothing_data()
{
    QTest::addColumn<bool>("areOn");
    QTest::addColumn<int>("held");
    QTest::newRow("gestures on") << true << int(Qt::NoButton);
    QTest::newRow("gestures on, left button held") << true << int(Qt::LeftButton);
    QTest::newRow("gestures off") << false << int(Qt::NoButton);
}

void IdleInputTest::movementsAllocateNothing()
{
    QFETCH(bool, areOn);
    QFETCH(int, held);
    tests::FakeHost services;
    services.store.values.insert(QStringLiteral("EnableMouseGesture"), QString::number(areOn ? 1 : 0));
    MgDonutDataContainer::instance()->init();

    QWidget window;
    window.resize(400, 400);
    auto *view = new QWidget(&window);
    view->resize(400, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    MgMouseGestureTracker tracker;
    gesturewidget::DocumentManager documents;
    documents.open(view)->inputPoints().AddTracker(&tracker, 0);
    gesturewidget::PointerFilter filter(documents, gesturewidget::Trigger{},
                                        [](const QWidget * /*view*/) { return true; });
    QWindow *handle = window.windowHandle();

    const auto moveOn = [&](int x) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, 50), window.mapToGlobal(QPoint(x, 50)),
                         Qt::NoButton, Qt::MouseButtons(held), Qt::NoModifier);
        isCounting = true;
        const bool isTaken = filter.eventFilter(handle, &move) || filter.eventFilter(view, &move);
        isCounting = false;
        return isTaken;
    };
    QVERIFY(!moveOn(0)); // the first one may allocate what is kept
    allocations = 0;
    for (int x = 1; x < 300; ++x)
        QVERIFY(!moveOn(x));
    QCOMPARE(allocations, 0);
}

QTEST_MAIN(IdleInputTest)

#include "tst_idleinput.moc"
