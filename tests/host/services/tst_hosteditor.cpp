// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/HostEditor.h"
#include "sdk/chx/CHxEditorReactor.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>

#include <functional>

using gesturewidget::HostEditor;

namespace {

class Reactor : public CHxEditorReactor
{
public:
    void mainFrameCreated(QWidget *frame) override
    {
        ++created;
        lastFrame = frame;
        if (onCreated)
            onCreated();
    }
    void mainFrameDestroyed(QWidget *frame) override
    {
        ++destroyed;
        lastFrame = frame;
        if (onDestroyed)
            onDestroyed();
    }

    int created = 0;
    int destroyed = 0;
    QWidget *lastFrame = nullptr;
    std::function<void()> onCreated;
    std::function<void()> onDestroyed;
};

// A reactor that does not know about main windows.
class PlainReactor : public OdEditorReactor
{
};

} // namespace

class HostEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void tellsOnceOfTheMainWindow();
    void tellsTwiceAddedReactorsOnce();
    void lateReactorsAreToldFromTheEventLoop();
    void aLateReactorThatIsRemovedAtOnceIsNotTold();
    void aLateReactorIsNotToldOfAWindowThatIsGone();
    void onlyWhoWasToldHearsOfTheEnd();
    void reactorsMayComeAndGoInTheMiddle();
    void plainReactorsAreLeftAlone();
    void theEditorMayGoBeforeItTells();
    void aSecondMainWindowIsToldOf();
};

void HostEditorTest::tellsOnceOfTheMainWindow()
{
    HostEditor editor;
    Reactor reactor;
    editor.addReactor(&reactor);
    QWidget frame;
    editor.notifyMainFrameCreated(&frame);
    QCOMPARE(reactor.created, 1);
    QCOMPARE(reactor.lastFrame, &frame);
    editor.notifyMainFrameCreated(&frame);
    QCOMPARE(reactor.created, 1);
    editor.notifyMainFrameDestroyed(&frame);
    QCOMPARE(reactor.destroyed, 1);
    QCOMPARE(reactor.lastFrame, &frame);
    editor.notifyMainFrameDestroyed(&frame);
    QCOMPARE(reactor.destroyed, 1);
}

void HostEditorTest::tellsTwiceAddedReactorsOnce()
{
    HostEditor editor;
    Reactor reactor;
    editor.addReactor(&reactor);
    editor.addReactor(&reactor);
    editor.addReactor(nullptr);
    QWidget frame;
    editor.notifyMainFrameCreated(&frame);
    QCOMPARE(reactor.created, 1);
    editor.removeReactor(&reactor);
    editor.removeReactor(nullptr);
    editor.notifyMainFrameDestroyed(&frame);
    QCOMPARE(reactor.destroyed, 0);
}

void HostEditorTest::lateReactorsAreToldFromTheEventLoop()
{
    HostEditor editor;
    QWidget frame;
    editor.notifyMainFrameCreated(&frame);
    Reactor reactor;
    editor.addReactor(&reactor);
    QCOMPARE(reactor.created, 0);
    QCoreApplication::processEvents();
    QCOMPARE(reactor.created, 1);
    QCOMPARE(reactor.lastFrame, &frame);
    QCoreApplication::processEvents();
    QCOMPARE(reactor.created, 1);
}

void HostEditorTest::aLateReactorThatIsRemovedAtOnceIsNotTold()
{
    HostEditor editor;
    QWidget frame;
    editor.notifyMainFrameCreated(&frame);
    {
        Reactor reactor;
        editor.addReactor(&reactor);
        editor.removeReactor(&reactor);
    }
    QCoreApplication::processEvents(); // the sanitizer would report a call to the dead reactor
    Reactor again;
    editor.addReactor(&again);
    editor.removeReactor(&again);
    editor.addReactor(&again);
    QCoreApplication::processEvents();
    QCOMPARE(again.created, 1);
}

void HostEditorTest::aLateReactorIsNotToldOfAWindowThatIsGone()
{
    HostEditor editor;
    Reactor reactor;
    {
        QWidget frame;
        editor.notifyMainFrameCreated(&frame);
        editor.addReactor(&reactor);
    }
    QCoreApplication::processEvents();
    QCOMPARE(reactor.created, 0);
    editor.notifyMainFrameDestroyed(nullptr);
    QCOMPARE(reactor.destroyed, 0);
}

void HostEditorTest::onlyWhoWasToldHearsOfTheEnd()
{
    HostEditor editor;
    QWidget frame;
    Reactor early;
    editor.addReactor(&early);
    editor.notifyMainFrameCreated(&frame);
    Reactor late;
    editor.addReactor(&late);
    editor.notifyMainFrameDestroyed(&frame);
    QCoreApplication::processEvents();
    QCOMPARE(early.destroyed, 1);
    QCOMPARE(late.created, 0);
    QCOMPARE(late.destroyed, 0);
}

void HostEditorTest::reactorsMayComeAndGoInTheMiddle()
{
    HostEditor editor;
    QWidget frame;
    Reactor first;
    Reactor second;
    Reactor third;
    first.onCreated = [&] {
        editor.removeReactor(&second);
        editor.addReactor(&third);
    };
    first.onDestroyed = [&] { editor.removeReactor(&third); };
    editor.addReactor(&first);
    editor.addReactor(&second);
    editor.notifyMainFrameCreated(&frame);
    QCOMPARE(second.created, 0);
    QTRY_COMPARE(third.created, 1);
    editor.notifyMainFrameDestroyed(&frame);
    QCOMPARE(first.destroyed, 1);
    QCOMPARE(second.destroyed, 0);
    QCOMPARE(third.destroyed, 0);
}

void HostEditorTest::plainReactorsAreLeftAlone()
{
    HostEditor editor;
    PlainReactor plain;
    Reactor reactor;
    editor.addReactor(&plain);
    editor.addReactor(&reactor);
    QWidget frame;
    editor.notifyMainFrameCreated(&frame);
    editor.notifyMainFrameDestroyed(&frame);
    QCOMPARE(reactor.created, 1);
    QCOMPARE(reactor.destroyed, 1);
}

void HostEditorTest::theEditorMayGoBeforeItTells()
{
    Reactor reactor;
    QWidget frame;
    {
        HostEditor editor;
        editor.notifyMainFrameCreated(&frame);
        editor.addReactor(&reactor);
    }
    QCoreApplication::processEvents();
    QCOMPARE(reactor.created, 0);
}

void HostEditorTest::aSecondMainWindowIsToldOf()
{
    HostEditor editor;
    Reactor reactor;
    editor.addReactor(&reactor);
    QWidget first;
    QWidget second;
    editor.notifyMainFrameCreated(&first);
    editor.notifyMainFrameDestroyed(&first);
    editor.notifyMainFrameCreated(&second);
    QCOMPARE(reactor.created, 2);
    QCOMPARE(reactor.lastFrame, &second);
}

QTEST_MAIN(HostEditorTest)
#include "tst_hosteditor.moc"
