// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Tests what the module object registers with a host, when, and how it unregisters it.

#include "sdk/chx/CHxString.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHitTest.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QtTest>

#include <memory>
#include <optional>

namespace {

using tests::FakeDocument;
using tests::FakeHost;
using tests::OpenModule;

const QString kToolsMenu = QStringLiteral("ID_MnTools");

// True if the module has released everything that the host gave it.
void verifyNothingHeld(const FakeHost &host)
{
    QCOMPARE(host.stack.references, 0);
    QCOMPARE(host.editor.references, 0);
    QCOMPARE(host.documents.iteratorsAlive, 0);
    QCOMPARE(host.ui.iteratorsAlive, 0);
    QCOMPARE(host.commands.iteratorsAlive, 0);
}

// A press and a drag that makes the tracker open its ring.
void dragInView(OpenModule &module, FakeDocument &document)
{
    tests::FakeHitTest hit;
    hit.document = &document;
    hit.press = true;
    hit.buttonHeld = true;
    module.tracker.Update(nullptr, &hit);
    hit.press = false;
    hit.motion = true;
    hit.position = QPoint(30, 0);
    module.tracker.Update(nullptr, &hit);
}

} // namespace

class ModuleLifecycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void creationRegistersNothing();
    void initAppRegistersInOrder();
    void initAppHandsOutItsParts();
    void initAppWithoutServices();
    void initAppWithoutDocumentManager();
    void initAppWithoutStackOrEditor();
    void openDocumentGetsTheTrackerOnce();
    void createdDocumentGetsTheTrackerOnce();
    void documentsWithoutInputAreSkipped();
    void detachingTakesTheTracker();
    void otherNotificationsDoNothing();
    void mainFrameCreatedLoadsTheMenu();
    void mainFrameDestroyedUnregistersInOrder();
    void nothingIsLeftAfterMainFrameDestroyed();
    void mainFrameDestroyedWithoutServices();
    void mainFrameDestroyedWithoutDocumentManager();
    void mainFrameDestroyedWithoutStack();
    void uninitAppDoesNothing();
    void releaseNeverFrees();
    void destructionUnregistersNothing();
    void hostThrowsInInitApp_data();
    void hostThrowsInInitApp();
    void hostThrowsInMainFrameCreated_data();
    void hostThrowsInMainFrameCreated();
    void hostThrowsInMainFrameDestroyed_data();
    void hostThrowsInMainFrameDestroyed();
    void hostThrowsInDocumentNotifications();
    void mainWindowGoesBeforeTheModule();
    void moduleGoesBeforeTheMainWindow();
    void hostGoesBeforeTheModule();

private:
    tests::OlderSettings m_settings;
};

void ModuleLifecycleTest::creationRegistersNothing()
{
    FakeHost host;
    host.documents.open();
    {
        OpenModule module;
        QCOMPARE(host.log.calls, QStringList());
        QVERIFY(!module.tracker.IsEager(nullptr));
        QCOMPARE(module.numRefs(), 0L);
    }
    QCOMPARE(host.log.calls, QStringList());
}

void ModuleLifecycleTest::initAppRegistersInOrder()
{
    FakeHost host;
    host.documents.open();
    host.documents.openNull();
    host.documents.open()->hasInputPointManager = false;
    host.documents.open();
    OpenModule module;

    module.initApp();

    const QStringList expected{
        QStringLiteral("stack.add GESTURE"),      QStringLiteral("documents.addReactor"),
        QStringLiteral("documents.iterate"),      QStringLiteral("document0.addTracker 0"),
        QStringLiteral("document2.addTracker 0"), QStringLiteral("editor.add")};
    QCOMPARE(host.log.calls, expected);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::initAppHandsOutItsParts()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;

    module.initApp();

    QCOMPARE(host.stack.commands, std::vector<OdEdCommand *>{&module.command});
    QCOMPARE(host.documents.reactors,
             std::vector<CHxDocumentManagerReactor *>{module.asDocumentReactor()});
    QCOMPARE(host.editor.reactors, std::vector<OdEditorReactor *>{module.asEditorReactor()});
    QCOMPARE(document->input.trackers, std::vector<CHxTracker *>{&module.tracker});
    // The command is part of the module object and ignores reference counts.
    module.command.release();
    module.command.release();
    QCOMPARE(host.stack.commands.front()->localName().toQString(), QStringLiteral("GESTURE"));
}

void ModuleLifecycleTest::initAppWithoutServices()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    host.setPresent(false);
    OpenModule module;

    module.initApp();

    const QStringList expected{QStringLiteral("stack.add GESTURE"), QStringLiteral("editor.add")};
    QCOMPARE(host.log.calls, expected);
    QVERIFY(host.documents.reactors.empty());
    QVERIFY(document->input.trackers.empty());
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::initAppWithoutDocumentManager()
{
    FakeHost host;
    host.hasDocumentManager = false;
    OpenModule module;

    module.initApp();

    const QStringList expected{QStringLiteral("stack.add GESTURE"), QStringLiteral("editor.add")};
    QCOMPARE(host.log.calls, expected);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::initAppWithoutStackOrEditor()
{
    FakeHost host;
    host.documents.open();
    odedSetCommandStack(nullptr);
    odedSetEditor(nullptr);
    OpenModule module;

    module.initApp();

    const QStringList expected{QStringLiteral("documents.addReactor"),
                               QStringLiteral("documents.iterate"),
                               QStringLiteral("document0.addTracker 0")};
    QCOMPARE(host.log.calls, expected);
}

void ModuleLifecycleTest::openDocumentGetsTheTrackerOnce()
{
    FakeHost host;
    FakeDocument *early = host.documents.open();
    OpenModule module;
    module.initApp();
    FakeDocument *late = host.documents.open();
    module.DocumentCreated(late);

    QCOMPARE(early->input.trackers.size(), std::size_t(1));
}

void ModuleLifecycleTest::createdDocumentGetsTheTrackerOnce()
{
    FakeHost host;
    OpenModule module;
    module.initApp();
    FakeDocument *late = host.documents.open();
    host.log.clear();

    module.DocumentCreated(late);

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("document0.addTracker 0")});
    QCOMPARE(late->input.trackers, std::vector<CHxTracker *>{&module.tracker});
}

void ModuleLifecycleTest::documentsWithoutInputAreSkipped()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    document->hasInputPointManager = false;
    OpenModule module;

    module.DocumentCreated(nullptr);
    module.DocumentCreated(document);
    module.DatabaseDetached(nullptr);
    module.DatabaseDetached(document);

    QCOMPARE(host.log.calls, QStringList());
}

void ModuleLifecycleTest::detachingTakesTheTracker()
{
    FakeHost host;
    FakeDocument *first = host.documents.open();
    FakeDocument *second = host.documents.open();
    OpenModule module;
    module.initApp();
    host.log.clear();

    module.DatabaseDetached(first);

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("document0.removeTracker")});
    QVERIFY(first->input.trackers.empty());
    QCOMPARE(second->input.trackers.size(), std::size_t(1));
}

void ModuleLifecycleTest::otherNotificationsDoNothing()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;
    module.initApp();
    host.log.clear();

    const CHxString path("drawing");
    module.DocumentCreateStarted(document);
    module.DocumentToBeDestroyed(document);
    module.DocumentDestroyed(document, path);
    module.DatabaseAttached(document);
    module.DocumentToBeActivated(document);
    module.DocumentToBeDeactivated(document);
    module.DocumentActivated(document);
    module.DocumentCreateCanceled(document);
    module.DocumentBecameCurrent(document);
    module.DocumentActivationModified(true);
    module.DocumentPreOpen(document, path, 0, 0);
    module.selectionSetCreated(nullptr);
    module.selectionSetDestroyed(nullptr);
    module.beginSaveEx(nullptr, path, CHxFileData::kDrawing, 0);
    module.commandAdded(&module.command);
    module.commandEnded(&module.command);
    module.viewChanged();
    module.lispEnded();

    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(document->input.trackers.size(), std::size_t(1));
}

void ModuleLifecycleTest::mainFrameCreatedLoadsTheMenu()
{
    FakeHost host;
    tests::FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.initApp();
    QCOMPARE(tools->subItems->GetCount(), 0);

    module.mainFrameCreated(nullptr);

    QCOMPARE(tools->subItems->GetCount(), 1);
    QCOMPARE(tools->subItems->GetItem(0)->GetText().toQString(), QStringLiteral("Mouse Gestures..."));
}

void ModuleLifecycleTest::mainFrameDestroyedUnregistersInOrder()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.documents.open();
    host.documents.openNull();
    host.documents.open()->hasInputPointManager = false;
    host.documents.open();
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    host.log.clear();

    module.mainFrameDestroyed(nullptr);

    const QStringList expected{QStringLiteral("stack.remove GESTURE"),
                               QStringLiteral("documents.removeReactor"),
                               QStringLiteral("documents.iterate"),
                               QStringLiteral("document0.removeTracker"),
                               QStringLiteral("document2.removeTracker"),
                               QStringLiteral("ui.workspaces"),
                               QStringLiteral("ui.removeCommandItem _PV_MOUSE_GESTURE_CONFIG"),
                               QStringLiteral("ui.destroyMenuItem Mouse Gestures...")};
    QCOMPARE(host.log.calls, expected);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::nothingIsLeftAfterMainFrameDestroyed()
{
    FakeHost host;
    tests::FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    FakeDocument *early = host.documents.open();
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    FakeDocument *late = host.documents.open();
    module.DocumentCreated(late);
    QVERIFY(host.stack.lookupCommand(OdString(QStringLiteral("GESTURE"))));

    module.mainFrameDestroyed(nullptr);

    QVERIFY(!host.stack.lookupCommand(OdString(QStringLiteral("GESTURE"))));
    QVERIFY(!host.stack.lookupCommand(OdString(QStringLiteral("_GESTURE"))));
    QVERIFY(early->input.trackers.empty());
    QVERIFY(late->input.trackers.empty());
    QVERIFY(host.documents.reactors.empty());
    QCOMPARE(tools->subItems->GetCount(), 0);
    QVERIFY(host.ui.commandItems.empty());
    // Only this registration stays.
    QCOMPARE(host.editor.reactors, std::vector<OdEditorReactor *>{module.asEditorReactor()});
    QCOMPARE(host.log.startingWith(QStringLiteral("editor.remove")), QStringList());

    host.log.clear();
    module.uninitApp();
    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(host.editor.reactors.size(), std::size_t(1));
}

void ModuleLifecycleTest::mainFrameDestroyedWithoutServices()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;
    module.initApp();
    host.setPresent(false);
    host.log.clear();

    module.mainFrameDestroyed(nullptr);

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("stack.remove GESTURE")});
    QCOMPARE(document->input.trackers.size(), std::size_t(1));
}

void ModuleLifecycleTest::mainFrameDestroyedWithoutDocumentManager()
{
    FakeHost host;
    tests::FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    host.hasDocumentManager = false;
    host.log.clear();

    module.mainFrameDestroyed(nullptr);

    QCOMPARE(host.log.startingWith(QStringLiteral("documents")), QStringList());
    QCOMPARE(host.log.startingWith(QStringLiteral("stack")),
             QStringList{QStringLiteral("stack.remove GESTURE")});
    QCOMPARE(tools->subItems->GetCount(), 0);
}

void ModuleLifecycleTest::mainFrameDestroyedWithoutStack()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;
    module.initApp();
    odedSetCommandStack(nullptr);

    module.mainFrameDestroyed(nullptr);

    QVERIFY(document->input.trackers.empty());
}

void ModuleLifecycleTest::uninitAppDoesNothing()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;
    module.initApp();
    host.log.clear();

    module.uninitApp();

    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(document->input.trackers.size(), std::size_t(1));
    QVERIFY(host.stack.lookupCommand(OdString(QStringLiteral("GESTURE"))));
}

void ModuleLifecycleTest::releaseNeverFrees()
{
    FakeHost host;
    OpenModule module; // freeing an object on the stack would crash
    QCOMPARE(module.numRefs(), 0L);
    module.addRef();
    QCOMPARE(module.numRefs(), 1L);
    module.release();
    QCOMPARE(module.numRefs(), 0L);
    module.release();
    module.release();
    QCOMPARE(module.numRefs(), -2L);

    module.initApp();
    QCOMPARE(host.stack.commands.size(), std::size_t(1));
}

void ModuleLifecycleTest::destructionUnregistersNothing()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    FakeDocument *document = host.documents.open();
    std::optional<OpenModule> module(std::in_place);
    module->initApp();
    module->mainFrameCreated(nullptr);
    host.log.clear();

    module.reset();

    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(document->input.trackers.size(), std::size_t(1));
}

void ModuleLifecycleTest::hostThrowsInInitApp_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("missing");

    const QString stack = QStringLiteral("stack.add GESTURE");
    const QString reactor = QStringLiteral("documents.addReactor");
    const QString iterate = QStringLiteral("documents.iterate");
    const QString first = QStringLiteral("document0.addTracker 0");
    const QString second = QStringLiteral("document1.addTracker 0");
    const QString editor = QStringLiteral("editor.add");
    // The calls that are skipped because one failed.
    QTest::newRow("command stack") << stack << QStringList();
    QTest::newRow("reactor") << reactor << QStringList();
    QTest::newRow("walk") << iterate << QStringList{first, second};
    QTest::newRow("first document") << first << QStringList();
    QTest::newRow("second document") << second << QStringList();
    QTest::newRow("editor") << editor << QStringList();
}

void ModuleLifecycleTest::hostThrowsInInitApp()
{
    QFETCH(QString, call);
    QFETCH(QStringList, missing);

    FakeHost host;
    host.documents.open();
    host.documents.open();
    host.log.throwOn = call;
    OpenModule module;

    module.initApp();

    QStringList expected{
        QStringLiteral("stack.add GESTURE"),      QStringLiteral("documents.addReactor"),
        QStringLiteral("documents.iterate"),      QStringLiteral("document0.addTracker 0"),
        QStringLiteral("document1.addTracker 0"), QStringLiteral("editor.add")};
    for (const QString &left : missing)
        expected.removeAll(left);
    QCOMPARE(host.log.calls, expected);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::hostThrowsInMainFrameCreated_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call : {"ui.workspaces", "ui.find", "ui.createCommandItem",
                             "workspace.addCommandItem", "ui.createMenuItem", "ui.refresh"})
        QTest::newRow(call) << QString::fromLatin1(call);
}

void ModuleLifecycleTest::hostThrowsInMainFrameCreated()
{
    QFETCH(QString, call);

    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.initApp();
    host.log.throwOn = call;

    module.mainFrameCreated(nullptr);

    QCOMPARE(host.log.startingWith(call).size(), 1);
    verifyNothingHeld(host);
    host.log.throwOn.clear();
    module.mainFrameDestroyed(nullptr);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::hostThrowsInMainFrameDestroyed_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QStringList>("missing");

    const QString item = QStringLiteral("ui.removeCommandItem _PV_MOUSE_GESTURE_CONFIG");
    const QString entry = QStringLiteral("ui.destroyMenuItem Mouse Gestures...");
    QTest::newRow("command stack") << QStringLiteral("stack.remove") << QStringList();
    QTest::newRow("reactor") << QStringLiteral("documents.removeReactor") << QStringList();
    QTest::newRow("walk") << QStringLiteral("documents.iterate")
                          << QStringList{QStringLiteral("document0.removeTracker"),
                                         QStringLiteral("document1.removeTracker")};
    QTest::newRow("first document") << QStringLiteral("document0.removeTracker") << QStringList();
    QTest::newRow("second document") << QStringLiteral("document1.removeTracker") << QStringList();
    QTest::newRow("workspaces") << QStringLiteral("ui.workspaces") << QStringList{item, entry};
    QTest::newRow("command item") << QStringLiteral("ui.removeCommandItem") << QStringList{entry};
    QTest::newRow("entry") << QStringLiteral("ui.destroyMenuItem") << QStringList();
}

void ModuleLifecycleTest::hostThrowsInMainFrameDestroyed()
{
    QFETCH(QString, call);
    QFETCH(QStringList, missing);

    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.documents.open();
    host.documents.open();
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    host.log.clear();
    host.log.throwOn = call;

    module.mainFrameDestroyed(nullptr);

    QStringList expected{QStringLiteral("stack.remove GESTURE"),
                         QStringLiteral("documents.removeReactor"),
                         QStringLiteral("documents.iterate"),
                         QStringLiteral("document0.removeTracker"),
                         QStringLiteral("document1.removeTracker"),
                         QStringLiteral("ui.workspaces"),
                         QStringLiteral("ui.removeCommandItem _PV_MOUSE_GESTURE_CONFIG"),
                         QStringLiteral("ui.destroyMenuItem Mouse Gestures...")};
    for (const QString &left : missing)
        expected.removeAll(left);
    QCOMPARE(host.log.calls, expected);
    verifyNothingHeld(host);
}

void ModuleLifecycleTest::hostThrowsInDocumentNotifications()
{
    FakeHost host;
    FakeDocument *document = host.documents.open();
    OpenModule module;
    host.log.throwOn = QStringLiteral("document0");

    module.DocumentCreated(document);
    module.DatabaseDetached(document);

    QCOMPARE(host.log.calls.size(), 2);
}

void ModuleLifecycleTest::mainWindowGoesBeforeTheModule()
{
    FakeHost host;
    auto window = std::make_unique<QWidget>();
    host.mainWindow = window.get();
    FakeDocument *document = host.documents.open();
    {
        OpenModule module;
        module.initApp();
        module.mainFrameCreated(window.get());
        dragInView(module, *document);
        QCOMPARE(window->findChildren<QDialog *>().size(), 1);

        window.reset(); // and the ring with it
        module.mainFrameDestroyed(nullptr);
        module.uninitApp();
        // A late event finds no ring and opens another one, without a window below it.
        dragInView(module, *document);
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *left : windows) {
        if (qobject_cast<QDialog *>(left))
            delete left;
    }
    QVERIFY(document->input.trackers.empty());
}

void ModuleLifecycleTest::moduleGoesBeforeTheMainWindow()
{
    FakeHost host;
    auto window = std::make_unique<QWidget>();
    host.mainWindow = window.get();
    FakeDocument *document = host.documents.open();
    {
        OpenModule module;
        module.initApp();
        dragInView(module, *document);
        module.mainFrameDestroyed(window.get());
        module.uninitApp();
    }
    // The ring belongs to the window and is destroyed with it.
    const QList<QDialog *> rings = window->findChildren<QDialog *>();
    QCOMPARE(rings.size(), 1);
    const QPointer<QDialog> ring = rings.front();
    window.reset();
    QVERIFY(ring.isNull());
}

void ModuleLifecycleTest::hostGoesBeforeTheModule()
{
    std::optional<FakeHost> host(std::in_place);
    OpenModule module;
    module.initApp();
    module.mainFrameDestroyed(nullptr);
    host.reset();

    module.mainFrameCreated(nullptr);
    module.mainFrameDestroyed(nullptr);
    module.uninitApp();
    module.initApp();
    QVERIFY(!module.tracker.IsEager(nullptr));
}

QTEST_MAIN(ModuleLifecycleTest)
#include "tst_modulelifecycle.moc"
