// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandStack.h"
#include "host/files/ProgramProfile.h"
#include "host/files/RingSettings.h"
#include "host/services/SystemServices.h"
#include "host/window/MainWindows.h"
#include "sdk/chx/CHxProfileStore.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/ScriptedCommand.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QActionGroup>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using gesturewidget::ProgramProfile;
using gesturewidget::SettingsFile;
using gesturewidget::SystemServices;
using tests::DraftWindow;
namespace ringsettings = gesturewidget::ringsettings;

namespace {

// A program with workbenches, of which one is on.
class WorkbenchWindow : public DraftWindow
{
public:
    WorkbenchWindow()
    {
        statusBar();
        QMenu *menu = addMenu("&View", "viewMenu");
        for (const char *name : {"SketchBench", "PartBench"}) {
            QAction *bench = addAction(menu, name, name);
            bench->setCheckable(true);
            m_benches.addAction(bench);
            all.append(bench);
        }
        all.first()->setText(QStringLiteral("&Sketching"));
        all.last()->setChecked(true);
    }

    QList<QAction *> all;

private:
    QActionGroup m_benches{nullptr};
};

} // namespace

class TaskRingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<WorkbenchWindow>();
        m_profile = {};
        m_profile.taskActions = QStringList{QStringLiteral("NoBench"), QStringLiteral("PartBench")};
    }
    void cleanup()
    {
        m_services.reset();
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void theRingFollowsTheTask();
    void withoutAnOwnRingAllTasksShareOne();
    void aReadingStaysWithItsRing();
    void whatEachRingHasIsKept();
    void theTaskIsThatOfTheCurrentWindow();
    void theTaskMayBeTheClassOfTheView();
    void theDialogStaysWithItsRingAndNamesIt();
    void aProgramWithoutTasksSaysNothing();
    void commandsOfAllRingsAreOffered();
    void aMistypedCommandOfTheTaskIsDropped();

private:
    void start()
    {
        m_services = std::make_unique<SystemServices>(m_window.get(), m_profile, &m_documents, file());
    }
    [[nodiscard]] QString file() const { return m_folder->filePath(QStringLiteral("drafter.ini")); }
    [[nodiscard]] QString get(const char *key) const
    {
        const OdResBufPtr value =
            m_services->GetProfileStore()->Get("GestureWidget", key, CHxProfileStore::kProfile);
        return value ? value->getString().toQString() : QStringLiteral("<none>");
    }
    void set(const char *key, const char *value) const
    {
        const OdResBufPtr buffer = OdResBuf::newString(OdString(QString::fromLatin1(value)));
        QVERIFY(m_services->GetProfileStore()->Set("GestureWidget", key, buffer.get()));
    }
    // Gives a task a ring of its own, as another program does.
    void makeOwn(const QString &task, const QHash<QString, QString> &first = {}) const
    {
        SettingsFile settings(file());
        QVERIFY(settings.change([&](const SettingsFile::Values &now) {
            return ringsettings::ownRing(now, task, first, now);
        }));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WorkbenchWindow> m_window;
    ProgramProfile m_profile;
    tests::StubDocuments m_documents;
    std::unique_ptr<SystemServices> m_services;
};

void TaskRingsTest::theRingFollowsTheTask()
{
    start();
    set("87", "ID_SHARED");
    QTRY_VERIFY(QFileInfo::exists(file()));
    makeOwn(QStringLiteral("SketchBench"), {{QStringLiteral("88"), QStringLiteral("ID_FIRST")}});
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
    QCOMPARE(get("88"), QStringLiteral("<none>"));
    m_window->all.first()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
    QCOMPARE(get("88"), QStringLiteral("ID_FIRST"));
    set("87", "ID_SKETCH");
    set("EnableMouseGesture", "0");
    QCOMPARE(get("87"), QStringLiteral("ID_SKETCH"));
    m_window->all.last()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
    QCOMPARE(get("EnableMouseGesture"), QStringLiteral("0"));
    QVERIFY(!m_services->GetProfileStore()->Exists("GestureWidget", "88"));
    m_window->all.last()->setChecked(false); // no task at all
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
}

void TaskRingsTest::withoutAnOwnRingAllTasksShareOne()
{
    start();
    set("87", "ID_LINE");
    m_window->all.first()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_LINE"));
    set("87", "ID_COPY");
    m_window->all.last()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_COPY"));
}

void TaskRingsTest::aReadingStaysWithItsRing()
{
    start();
    set("87", "ID_SHARED");
    QTRY_VERIFY(QFileInfo::exists(file()));
    makeOwn(QStringLiteral("SketchBench"), {{QStringLiteral("87"), QStringLiteral("ID_SKETCH")}});
    QVERIFY(m_services->GetUICommandManager()); // a gesture begins
    m_window->all.first()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
    QVERIFY(m_services->GetUICommandManager()); // the next one
    QCOMPARE(get("87"), QStringLiteral("ID_SKETCH"));
    m_window->all.last()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_SKETCH"));
    QCoreApplication::processEvents();
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
}

void TaskRingsTest::whatEachRingHasIsKept()
{
    start();
    set("87", "ID_SHARED");
    QTRY_VERIFY(QFileInfo::exists(file()));
    makeOwn(QStringLiteral("SketchBench"));
    m_window->all.first()->setChecked(true);
    set("87", "ID_SKETCH");
    m_services.reset();
    start();
    QCOMPARE(get("87"), QStringLiteral("ID_SKETCH"));
    m_window->all.last()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_SHARED"));
}

void TaskRingsTest::theTaskIsThatOfTheCurrentWindow()
{
    WorkbenchWindow second;
    second.all.first()->setChecked(true);
    makeOwn(QStringLiteral("SketchBench"), {{QStringLiteral("87"), QStringLiteral("ID_SKETCH")}});
    start();
    m_services->windows().add(&second);
    QCOMPARE(get("87"), QStringLiteral("<none>"));
    m_services->windows().makeCurrent(&second);
    QCOMPARE(get("87"), QStringLiteral("ID_SKETCH"));
}

void TaskRingsTest::theTaskMayBeTheClassOfTheView()
{
    m_profile.taskActions.clear();
    m_profile.isTaskOfView = true;
    QMdiArea area;
    QPlainTextEdit text;
    auto *child = new QFrame;
    auto *inChild = new QWidget(child);
    area.addSubWindow(child);
    makeOwn(QStringLiteral("QPlainTextEdit"), {{QStringLiteral("87"), QStringLiteral("ID_TEXT")}});
    makeOwn(QStringLiteral("QFrame"), {{QStringLiteral("87"), QStringLiteral("ID_CHILD")}});
    start();
    QCOMPARE(get("87"), QStringLiteral("<none>"));
    m_documents.view = &text;
    QCOMPARE(get("87"), QStringLiteral("ID_TEXT"));
    m_documents.view = inChild;
    QCOMPARE(get("87"), QStringLiteral("ID_CHILD"));
    m_documents.view = nullptr;
}

void TaskRingsTest::theDialogStaysWithItsRingAndNamesIt()
{
    makeOwn(QStringLiteral("SketchBench"));
    start();
    QString said;
    const auto command = tests::ScriptedCommand::make("GESTURE");
    command->body = [this, &said] {
        said = m_window->statusBar()->currentMessage();
        m_window->all.last()->setChecked(true);
        set("87", "ID_EDITED");
    };
    m_services->commandStack().addCommand(command.get());
    m_window->all.first()->setChecked(true);
    m_services->RunCommand("^C^C_GESTURE", true);
    QCOMPARE(said, QStringLiteral("This is the ring of Sketching."));
    QCOMPARE(m_window->statusBar()->currentMessage(), QString());
    QCOMPARE(get("87"), QStringLiteral("<none>"));
    m_window->all.first()->setChecked(true);
    QCOMPARE(get("87"), QStringLiteral("ID_EDITED"));
    m_window->all.last()->setChecked(true);
    m_services->RunCommand("^C^C_GESTURE", true);
    QCOMPARE(said, QStringLiteral("This is the ring of all tasks."));
}

void TaskRingsTest::aProgramWithoutTasksSaysNothing()
{
    m_profile.taskActions.clear();
    start();
    QString said = QStringLiteral("nothing");
    const auto command = tests::ScriptedCommand::make("GESTURE");
    command->body = [this, &said] { said = m_window->statusBar()->currentMessage(); };
    m_services->commandStack().addCommand(command.get());
    m_window->statusBar()->showMessage(QStringLiteral("Ready"));
    m_services->RunCommand("^C^C_GESTURE", true);
    QCOMPARE(said, QStringLiteral("Ready"));
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Ready"));
}

// A direction loses a command that is not offered, and the task's menus come and go.
void TaskRingsTest::commandsOfAllRingsAreOffered()
{
    makeOwn(QStringLiteral("SketchBench"), {{QStringLiteral("87"), QStringLiteral("Sketch_Arc")}});
    start();
    QVERIFY(m_services->RunCommand("Sketch_Arc", true));
    QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("Sketch_Arc")));
    QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("not available")));
}

// Once the menus of the task are complete. Those of other tasks are not here to compare with.
void TaskRingsTest::aMistypedCommandOfTheTaskIsDropped()
{
    m_profile.changesMenus = true;
    m_profile.taskPrefixes.insert(QStringLiteral("PartBench"), QStringLiteral("Part_"));
    makeOwn(QStringLiteral("PartBench"), {{QStringLiteral("87"), QStringLiteral("Part_Boxx")}});
    makeOwn(QStringLiteral("SketchBench"), {{QStringLiteral("87"), QStringLiteral("Sketch_Arcc")}});
    start();
    const auto isOffered = [this](const char *identifier) {
        const auto *item = m_services->catalogue().find(QString::fromLatin1(identifier));
        return item && !item->isLacking;
    };
    m_services->catalogue().endGuessing();
    QVERIFY(isOffered("Part_Boxx")); // this program changes its menus
    m_services->startRemembering();
    QTRY_COMPARE(m_window->statusBar()->currentMessage(),
                 QStringLiteral("The program has no command \"Part_Boxx\"; its direction is empty."));
    QVERIFY(!isOffered("Part_Boxx"));
    QVERIFY(isOffered("Sketch_Arcc"));
}

QTEST_MAIN(TaskRingsTest)
#include "tst_taskrings.moc"
