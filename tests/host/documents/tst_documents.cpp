// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/DocumentManager.h"
#include "host/documents/ViewFinder.h"
#include "host/input/HitTest.h"
#include "sdk/chx/CHxDocumentManagerReactor.h"
#include "sdk/chx/CHxString.h"
#include "tests/host/support/FakeTracker.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using gesturewidget::Document;
using gesturewidget::DocumentManager;

namespace {

class Reactor : public CHxDocumentManagerReactor
{
public:
    void DocumentCreateStarted(CHxDocument *d) override { note("create started", d); }
    void DocumentCreated(CHxDocument *d) override
    {
        note("created", d);
        if (onCreated)
            onCreated(d);
    }
    void DocumentToBeDestroyed(CHxDocument *d) override { note("to be destroyed", d); }
    void DocumentDestroyed(CHxDocument *d, const CHxString &) override { note("destroyed", d); }
    void DatabaseAttached(CHxDocument *d) override { note("attached", d); }
    void DatabaseDetached(CHxDocument *d) override
    {
        note("detached", d);
        d->GetInputPointManager()->RemoveTracker(tracker);
    }
    void DocumentToBeActivated(CHxDocument *d) override { note("to be activated", d); }
    void DocumentToBeDeactivated(CHxDocument *d) override { note("to be deactivated", d); }
    void DocumentActivated(CHxDocument *d) override { note("activated", d); }
    void DocumentBecameCurrent(CHxDocument *d) override { note("became current", d); }

    [[nodiscard]] QStringList takeLog() { return std::exchange(m_log, {}); }

    QHash<CHxDocument *, QString> names;
    CHxTracker *tracker = nullptr;
    std::function<void(CHxDocument *)> onCreated;

private:
    void note(const char *what, CHxDocument *d)
    {
        if (!names.contains(d))
            names.insert(d, QStringLiteral("d%1").arg(names.size() + 1));
        m_log << QLatin1String(what) + QLatin1Char(' ') + names.value(d);
    }
    QStringList m_log;
};

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(QStringLiteral(", "));
}

QVector<CHxDocument *> walk(CHxDocumentManager &manager)
{
    QVector<CHxDocument *> documents;
    for (CHxDocumentIteratorPtr it = manager.NewIterator(); !it->done(); it->next())
        documents << it->object();
    return documents;
}

class SpecialView : public QWidget
{
    Q_OBJECT
};
class MoreSpecialView : public SpecialView
{
    Q_OBJECT
};
class ScrolledView : public QPlainTextEdit
{
    Q_OBJECT
};

} // namespace

class DocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void openingTellsInOrder();
    void openingTwiceGivesOneDocument();
    void activationTellsInOrder();
    void closingTellsInOrder();
    void activeDocumentIsNeverLost();
    void documentOutlivesItsView();
    void standInIsHarmless();
    void standInSurvivesItsDestruction();
    void walkPassesOverClosedDocuments();
    void closingWhileWalking();
    void reactorsComeAndGo();
    void reactorThatGoesDuringANotification();
    void trackersAreAskedInOrder();
    void trackerThatGoesDuringAnUpdate();

    void viewsThatAreThereAreFound();
    void viewsThatComeLaterAreFound();
    void viewportOfAScrollAreaIsTheView();
    void newViewportIsFound();
    void withoutClassesNothingIsFound();
};

void DocumentsTest::openingTellsInOrder()
{
    Reactor reactor;
    DocumentManager manager;
    manager.AddReactor(&reactor);
    QCOMPARE(manager.GetActiveDocument(), nullptr);
    QWidget view;
    Document *document = manager.open(&view);
    QCOMPARE(reactor.takeLog(),
             lines("create started d1, attached d1, created d1, to be activated d1, activated d1, "
                   "became current d1"));
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(document));
    QCOMPARE(document->GetViewWidget(), &view);
    QVERIFY(document->GetInputPointManager());
    QCOMPARE(manager.documentOf(&view), document);
    QCOMPARE(manager.documentOf(&manager), nullptr);

    // A second document does not become active by itself.
    QWidget other;
    manager.open(&other);
    QCOMPARE(reactor.takeLog(), lines("create started d2, attached d2, created d2"));
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(document));
}

void DocumentsTest::openingTwiceGivesOneDocument()
{
    Reactor reactor;
    DocumentManager manager;
    QWidget view;
    Document *document = manager.open(&view);
    manager.AddReactor(&reactor);
    QCOMPARE(manager.open(&view), document);
    QCOMPARE(reactor.takeLog(), QStringList());
    QCOMPARE(walk(manager).size(), 1);
}

void DocumentsTest::activationTellsInOrder()
{
    Reactor reactor;
    DocumentManager manager;
    QWidget first;
    QWidget second;
    Document *one = manager.open(&first);
    Document *two = manager.open(&second);
    manager.AddReactor(&reactor);
    reactor.names = {{one, QStringLiteral("d1")}, {two, QStringLiteral("d2")}};
    manager.activate(two);
    QCOMPARE(reactor.takeLog(),
             lines("to be deactivated d1, to be activated d2, activated d2, became current d2"));
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(two));
    manager.activate(two);
    manager.activate(nullptr);
    QCOMPARE(reactor.takeLog(), QStringList());
}

void DocumentsTest::closingTellsInOrder()
{
    Reactor reactor;
    DocumentManager manager;
    auto view = std::make_unique<QWidget>();
    Document *document = manager.open(view.get());
    manager.AddReactor(&reactor);
    tests::FakeTracker tracker;
    reactor.tracker = &tracker;
    document->GetInputPointManager()->AddTracker(&tracker, 0);
    int timesAboutToClose = 0;
    bool hadTracker = false;
    connect(&manager, &DocumentManager::documentAboutToClose, this, [&] {
        ++timesAboutToClose;
        hadTracker = document->inputPoints().hasTrackers();
    });
    view.reset();
    QCOMPARE(reactor.takeLog(), lines("to be destroyed d1, detached d1, destroyed d1"));
    QCOMPARE(timesAboutToClose, 1);
    QVERIFY(hadTracker);
    QVERIFY(!document->inputPoints().hasTrackers());
    QVERIFY(!document->isOpen());
}

void DocumentsTest::activeDocumentIsNeverLost()
{
    DocumentManager manager;
    auto first = std::make_unique<QWidget>();
    auto second = std::make_unique<QWidget>();
    auto third = std::make_unique<QWidget>();
    Document *one = manager.open(first.get());
    Document *two = manager.open(second.get());
    Document *three = manager.open(third.get());
    manager.activate(two);
    manager.activate(three);
    third.reset(); // back to the one before
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(two));
    first.reset();
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(two));
    second.reset();
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(two));
    Q_UNUSED(one)
    // A closed document does not come back; the next one that opens takes over.
    manager.activate(three);
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(two));
    QWidget fourth;
    Document *four = manager.open(&fourth);
    QCOMPARE(manager.GetActiveDocument(), static_cast<CHxDocument *>(four));
}

void DocumentsTest::documentOutlivesItsView()
{
    DocumentManager manager;
    auto view = std::make_unique<QWidget>();
    Document *document = manager.open(view.get());
    view.reset();
    QWidget *standIn = document->GetViewWidget();
    QVERIFY(standIn);
    QVERIFY(!document->view());
    QCOMPARE(document->GetViewWidget(), standIn);
    QCOMPARE(manager.documentOf(standIn), nullptr);
    QVERIFY(manager.isEmpty());
    QVERIFY(document->GetInputPointManager());
}

void DocumentsTest::standInIsHarmless()
{
    DocumentManager manager;
    auto view = std::make_unique<QWidget>();
    Document *document = manager.open(view.get());
    view.reset();
    QWidget *standIn = document->GetViewWidget();
    standIn->setCursor(Qt::CrossCursor);
    QCOMPARE(standIn->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(standIn->mapFromGlobal(standIn->mapToGlobal(QPoint(7, 9))), QPoint(7, 9));
    QCoreApplication::postEvent(standIn, new QMouseEvent(QEvent::MouseMove, QPoint(1, 1), QPoint(1, 1),
                                                         Qt::NoButton, Qt::NoButton, Qt::NoModifier));
    QCoreApplication::sendPostedEvents();
    standIn->show();
    standIn->setVisible(true);
    QVERIFY(!standIn->isVisible());
    QVERIFY(!standIn->windowHandle());
    QVERIFY(!standIn->testAttribute(Qt::WA_QuitOnClose));
}

void DocumentsTest::standInSurvivesItsDestruction()
{
    DocumentManager manager;
    auto view = std::make_unique<QWidget>();
    Document *document = manager.open(view.get());
    view.reset();
    delete document->GetViewWidget(); // as a program does that destroys every window it finds
    QVERIFY(document->GetViewWidget());
    QVERIFY(!document->GetViewWidget()->isVisible());
}

void DocumentsTest::walkPassesOverClosedDocuments()
{
    DocumentManager manager;
    QCOMPARE(walk(manager), QVector<CHxDocument *>());
    QWidget first;
    auto second = std::make_unique<QWidget>();
    QWidget third;
    Document *one = manager.open(&first);
    manager.open(second.get());
    Document *three = manager.open(&third);
    second.reset();
    const QVector<CHxDocument *> expected{one, three};
    QCOMPARE(walk(manager), expected);
}

void DocumentsTest::closingWhileWalking()
{
    DocumentManager manager;
    QWidget first;
    auto second = std::make_unique<QWidget>();
    auto third = std::make_unique<QWidget>();
    manager.open(&first);
    manager.open(second.get());
    manager.open(third.get());
    CHxDocumentIteratorPtr it = manager.NewIterator();
    second.reset();
    it->next();
    QCOMPARE(it->object(), static_cast<CHxDocument *>(manager.documentOf(third.get())));
    third.reset();
    QVERIFY(!it->done());
    QCOMPARE(it->object(), nullptr);
    it->next();
    QVERIFY(it->done());
    it->next();
    QCOMPARE(it->object(), nullptr);
    QCOMPARE(it->numRefs(), 1L);
}

void DocumentsTest::reactorsComeAndGo()
{
    Reactor reactor;
    DocumentManager manager;
    manager.AddReactor(nullptr);
    manager.AddReactor(&reactor);
    manager.AddReactor(&reactor);
    QWidget first;
    manager.open(&first);
    QCOMPARE(reactor.takeLog().filter(QStringLiteral("create started")).size(), 1);
    manager.RemoveReactor(&reactor);
    manager.RemoveReactor(&reactor);
    QWidget second;
    manager.open(&second);
    QCOMPARE(reactor.takeLog(), QStringList());
}

void DocumentsTest::reactorThatGoesDuringANotification()
{
    Reactor first;
    Reactor second;
    DocumentManager manager;
    manager.AddReactor(&first);
    manager.AddReactor(&second);
    first.onCreated = [&](CHxDocument *) {
        manager.RemoveReactor(&first);
        manager.RemoveReactor(&second);
    };
    QWidget view;
    manager.open(&view);
    QCOMPARE(second.takeLog(), lines("create started d1, attached d1"));
}

namespace {

class OrderTracker : public CHxTracker
{
public:
    OrderTracker(QStringList &log, const QString &name)
        : m_log(log)
        , m_name(name)
    {
    }
    void Update(CHxTrackerContext *, CHxHitTestInfo *) override
    {
        m_log << m_name + QStringLiteral(" update");
        if (onUpdate)
            onUpdate();
    }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return isEager; }
    bool DoAction(const CHxHitTestInfo *) override
    {
        m_log << m_name + QStringLiteral(" action");
        return true;
    }
    std::function<void()> onUpdate;
    bool isEager = false;

private:
    QStringList &m_log;
    QString m_name;
};

} // namespace

void DocumentsTest::trackersAreAskedInOrder()
{
    QStringList log;
    OrderTracker first(log, QStringLiteral("first"));
    OrderTracker second(log, QStringLiteral("second"));
    QWidget view;
    DocumentManager manager;
    Document *document = manager.open(&view);
    gesturewidget::InputPointManager &inputs = document->inputPoints();
    inputs.AddTracker(nullptr, 0);
    QVERIFY(!inputs.hasTrackers());
    inputs.AddTracker(&first, 0);
    inputs.AddTracker(&second, 0);
    inputs.AddTracker(&first, 0);
    first.isEager = true;
    const gesturewidget::Trigger trigger;
    const gesturewidget::HitTest::Event event;
    gesturewidget::HitTest hit(document, trigger, event);
    inputs.dispatch(hit);
    QCOMPARE(log, lines("first update, first action, second update"));
    inputs.RemoveTracker(&first);
    inputs.RemoveTracker(&first);
    log.clear();
    inputs.dispatch(hit);
    QCOMPARE(log, lines("second update"));
}

void DocumentsTest::trackerThatGoesDuringAnUpdate()
{
    QStringList log;
    OrderTracker first(log, QStringLiteral("first"));
    OrderTracker second(log, QStringLiteral("second"));
    QWidget view;
    DocumentManager manager;
    Document *document = manager.open(&view);
    gesturewidget::InputPointManager &inputs = document->inputPoints();
    inputs.AddTracker(&first, 0);
    inputs.AddTracker(&second, 0);
    first.isEager = true;
    first.onUpdate = [&] {
        inputs.RemoveTracker(&first);
        inputs.RemoveTracker(&second);
    };
    const gesturewidget::Trigger trigger;
    const gesturewidget::HitTest::Event event;
    gesturewidget::HitTest hit(document, trigger, event);
    inputs.dispatch(hit);
    QCOMPARE(log, lines("first update"));
}

void DocumentsTest::viewsThatAreThereAreFound()
{
    QWidget window;
    auto *view = new SpecialView;
    view->setParent(&window);
    auto *derived = new MoreSpecialView;
    derived->setParent(&window);
    gesturewidget::ViewFinder finder({QStringLiteral("Nothing"), QStringLiteral("SpecialView")});
    QSet<QWidget *> found;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, this,
            [&found](QWidget *w) { found.insert(w); });
    finder.start();
    const QSet<QWidget *> expected{view, derived};
    QCOMPARE(found, expected);
    finder.stop();
}

void DocumentsTest::viewsThatComeLaterAreFound()
{
    gesturewidget::ViewFinder finder({QStringLiteral("SpecialView")});
    DocumentManager manager;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, &manager, &DocumentManager::open);
    finder.start();
    QWidget window;
    auto *view = new MoreSpecialView;
    view->setParent(&window);
    QVERIFY(!manager.documentOf(view));
    window.show();
    QVERIFY(manager.documentOf(view));
    auto *late = new SpecialView;
    late->setParent(&window);
    late->show();
    QVERIFY(manager.documentOf(late));
    finder.stop();
    auto *tooLate = new SpecialView;
    tooLate->setParent(&window);
    tooLate->show();
    QVERIFY(!manager.documentOf(tooLate));
}

void DocumentsTest::viewportOfAScrollAreaIsTheView()
{
    gesturewidget::ViewFinder finder({QStringLiteral("ScrolledView")});
    DocumentManager manager;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, &manager, &DocumentManager::open);
    finder.start();
    ScrolledView area;
    area.show();
    QVERIFY(manager.documentOf(area.viewport()));
    QVERIFY(!manager.documentOf(&area));
    finder.stop();
    QCOMPARE(gesturewidget::ViewFinder::pointerWidget(&area), area.viewport());
    QWidget plain;
    QCOMPARE(gesturewidget::ViewFinder::pointerWidget(&plain), &plain);
}

void DocumentsTest::newViewportIsFound()
{
    gesturewidget::ViewFinder finder({QStringLiteral("ScrolledView")});
    DocumentManager manager;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, &manager, &DocumentManager::open);
    finder.start();
    ScrolledView area;
    area.show();
    Document *first = manager.documentOf(area.viewport());
    QVERIFY(first);
    auto *viewport = new QWidget;
    area.setViewport(viewport);
    viewport->show();
    QVERIFY(manager.documentOf(viewport));
    QVERIFY(manager.documentOf(viewport) != first);
    QVERIFY(!first->isOpen());
    finder.stop();
}

void DocumentsTest::withoutClassesNothingIsFound()
{
    gesturewidget::ViewFinder finder({});
    QSignalSpy found(&finder, &gesturewidget::ViewFinder::viewFound);
    finder.start();
    QWidget window;
    window.show();
    QCOMPARE(found.count(), 0);
    finder.stop();
}

QTEST_MAIN(DocumentsTest)
#include "tst_documents.moc"
