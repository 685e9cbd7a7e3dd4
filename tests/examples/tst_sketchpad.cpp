// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Canvas.h"
#include "examples/sketchpad/DxfFile.h"
#include "examples/sketchpad/MainWindow.h"
#include "sdk/chx/CHxCommand.h"
#include "sdk/od/OdStaticRxObject.h"
#include "tests/fakehost/FakePlatform.h"
#include "tests/support/FatalWarnings.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QtTest>

#include <memory>

namespace {

// Clicks a button of every message box, and records its text.
class Answer : public QObject
{
public:
    explicit Answer(QMessageBox::StandardButton button)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            said = box->text();
            ++count;
            box->button(button)->click();
        });
        m_timer.start(0);
    }
    QString said;
    int count = 0;

private:
    QTimer m_timer;
};

// A command of a module.
class ModuleCommand : public CHxCommand
{
public:
    [[nodiscard]] OdString globalName() const override { return {"_GESTURE", kOdAnsiCodePage}; }
    [[nodiscard]] OdString localName() const override { return {"GESTURE", kOdAnsiCodePage}; }
    int Execute(CHxCommandContext *) override
    {
        ++runs;
        return kNormal;
    }
    int runs = 0;
};

} // namespace

class SketchpadTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QAction *action(const char *name) const
    {
        return m_window->findChild<QAction *>(QLatin1String(name));
    }
    [[nodiscard]] QLineEdit *line() const
    {
        return m_window->findChild<QLineEdit *>(QStringLiteral("commandLine"));
    }
    void type(const char *text) const
    {
        QTest::keyClicks(line(), QString::fromLatin1(text));
        QTest::keyClick(line(), Qt::Key_Return);
    }
    [[nodiscard]] const std::vector<Entity> &entities() const { return m_window->drawing().entities(); }
    [[nodiscard]] QPoint pixels(double x, double y) const
    {
        return m_window->canvas()->toPixels({x, y}).toPoint();
    }
    // These use the window, at pixels of the canvas: QTest cannot move the pointer for a widget.
    void press(Qt::MouseButton button, const QPoint &at, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mousePress(m_window->windowHandle(), button, keys,
                          m_window->canvas()->mapTo(m_window.get(), at));
    }
    void move(const QPoint &to) const
    {
        QTest::mouseMove(m_window->windowHandle(), m_window->canvas()->mapTo(m_window.get(), to));
    }
    void release(Qt::MouseButton button, const QPoint &at, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseRelease(m_window->windowHandle(), button, keys,
                            m_window->canvas()->mapTo(m_window.get(), at));
    }
    void click(double x, double y, Qt::KeyboardModifiers keys = {}) const
    {
        move(pixels(x, y));
        press(Qt::LeftButton, pixels(x, y), keys);
        release(Qt::LeftButton, pixels(x, y), keys);
    }
    // A drawing with entities that cannot be read.
    [[nodiscard]] QString foreignFile() const
    {
        QByteArray text = "0|SECTION|2|ENTITIES|0|LINE|8|0|10|0|20|0|11|10|21|0|"
                          "0|ELLIPSE|8|0|10|1|20|2|0|ELLIPSE|8|0|10|1|20|2|0|ENDSEC|0|EOF|";
        QFile file(m_folder->filePath(QStringLiteral("foreign.dxf")));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(text.replace('|', '\n')) > 0;
        return written ? file.fileName() : QString();
    }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_window->canvas()->zoomToBounds();
    }
    void cleanup()
    {
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void everyCommandIsInAMenuUnderItsName()
    {
        QStringList menus;
        int commands = 0;
        const auto entries = m_window->menuBar()->actions();
        for (const QAction *entry : entries) {
            menus += entry->text().remove(QLatin1Char('&'));
            QCOMPARE(entry->menu()->objectName(), menus.last().toLower() + QStringLiteral("Menu"));
            const auto allCommands = entry->menu()->actions();
            for (const QAction *command : allCommands) {
                ++commands;
                QVERIFY(command->objectName().startsWith(menus.last().toLower()));
                QVERIFY(!command->toolTip().isEmpty());
                QVERIFY(command->objectName() == QLatin1String("fileQuit") || !command->icon().isNull());
            }
        }
        QCOMPARE(menus,
                 (QStringList{QStringLiteral("File"), QStringLiteral("Edit"), QStringLiteral("View"),
                              QStringLiteral("Draw"), QStringLiteral("Modify"), QStringLiteral("Tools"),
                              QStringLiteral("Help")}));
        QCOMPARE(commands, dxf::isSupported() ? 25 : 22);
    }

    void whatIsTypedTriggersTheAction_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *typed, const char *name) {
            QTest::newRow(typed) << QString::fromLatin1(typed) << QString::fromLatin1(name);
        };
        row("LINE", "drawLine");
        row("line", "drawLine");
        row(" l ", "drawLine");
        row("_LINE", "drawLine");
        row("CIRCLE", "drawCircle");
        row("TEXT", "drawText");
        row("DTEXT", "drawText");
        row("OFFSET", "modifyOffset");
        row("COPY", "modifyCopy");
        row("TRIM", "modifyTrim");
        row("ZOOM", "viewZoomBounds");
        row("NEW", "fileNew");
        row("GRID", "viewGrid");
        row("SNAP", "toolsSnap");
    }
    void whatIsTypedTriggersTheAction()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        QSignalSpy triggered(action(qPrintable(name)), &QAction::triggered);
        QTest::keyClicks(line(), typed);
        QTest::keyClick(line(), Qt::Key_Return);
        QCOMPARE(triggered.count(), 1);
    }

    void windowsOpenAndClose()
    {
        const QSignalSpy wanted(m_window.get(), &MainWindow::newWindowWanted);
        type("newwindow");
        QCOMPARE(wanted.count(), 1);
        MainWindow other;
        other.show();
        type("close");
        QVERIFY(!m_window->isVisible());
        QVERIFY(other.isVisible());
        m_window->show();
        action("fileQuit")->trigger();
        QVERIFY(!m_window->isVisible());
        QVERIFY(!other.isVisible());
    }

    void enterRepeatsTheLastCommand()
    {
        QSignalSpy triggered(action("drawCircle"), &QAction::triggered);
        type("");
        QCOMPARE(triggered.count(), 0);
        type("CIRCLE");
        type("0,0");
        type("5");
        type("");
        QCOMPARE(triggered.count(), 2);
        QCOMPARE(m_window->canvas()->tool().kind(), Tool::Kind::Circle);
    }

    void unknownWordsAreNamed()
    {
        type("HOUSE");
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("HOUSE")));
        // The same while a command is running, which goes on.
        type("LINE");
        type("HOUSE");
        QCOMPARE(m_window->canvas()->tool().kind(), Tool::Kind::Line);
    }

    void commandsOfModulesAreFoundInTheStack()
    {
        tests::CallLog log;
        tests::FakeCommandStack stack(&log);
        OdStaticRxObject<ModuleCommand> command;
        type("GESTURE");
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("GESTURE")));
        stack.addCommand(&command);
        odedSetCommandStack(&stack);
        type("gesture");
        const int once = command.runs;
        type("_GESTURE");
        const int twice = command.runs;
        type("");
        odedSetCommandStack(nullptr);
        QCOMPARE(once, 1);
        QCOMPARE(twice, 2);
        QCOMPARE(stack.references, 0L);
    }

    void aDrawingIsTyped()
    {
        type("LINE");
        type("0,0");
        type("@10,0");
        type("@5<90");
        type("");
        QCOMPARE(entities().size(), std::size_t(2));
        QCOMPARE(entities()[1].origin, QPointF(10, 0));
        QVERIFY(QLineF(entities()[1].end, {10, 5}).length() < 1e-9);
        QCOMPARE(m_window->canvas()->tool().kind(), Tool::Kind::Select);
        type("TEXT");
        type("3");
        type("1,1");
        type("12 Oak Lane");
        QCOMPARE(entities()[2].words, QStringLiteral("12 Oak Lane"));
        type("UNDO");
        type("UNDO");
        QCOMPARE(entities().size(), std::size_t(1));
        type("REDO");
        QCOMPARE(entities().size(), std::size_t(2));
        // A command may start before the last one has ended.
        type("LINE");
        type("0,0");
        type("CIRCLE");
        type("7,7");
        type("2");
        QCOMPARE(entities()[2].radius, 2.0);
    }

    void aDrawingIsClicked()
    {
        action("drawLine")->trigger();
        click(0, 0);
        click(50, 25);
        QTest::keyClick(m_window->canvas(), Qt::Key_Return);
        QCOMPARE(entities().size(), std::size_t(1));
        const QPointF end = entities()[0].end;
        QVERIFY(QLineF(end, {50, 25}).length() < 1);
        // The next line starts exactly at the end of this one, although the click was beside it.
        action("drawLine")->trigger();
        QTest::mouseClick(m_window->canvas(), Qt::LeftButton, {},
                          pixels(end.x(), end.y()) + QPoint(4, 3));
        QCOMPARE(m_window->canvas()->tool().lastPoint(), end);
        action("toolsStop")->trigger();
        action("toolsSnap")->trigger();
        action("drawLine")->trigger();
        QTest::mouseClick(m_window->canvas(), Qt::LeftButton, {},
                          pixels(end.x(), end.y()) + QPoint(4, 3));
        QVERIFY(m_window->canvas()->tool().lastPoint() != end);
    }

    void keysOverTheCanvasGoToTheCommandLine()
    {
        m_window->canvas()->setFocus();
        QTest::keyClicks(m_window->canvas(), QStringLiteral("L"));
        QCOMPARE(line()->text(), QStringLiteral("L"));
    }

    void keysInAnEmptyCommandLineAreAboutTheDrawing()
    {
        m_window->drawing().add(Entity::line({0, 0}, {10, 0}));
        line()->setFocus();
        QSignalSpy undo(action("editUndo"), &QAction::triggered);
        QSignalSpy all(action("editSelectAll"), &QAction::triggered);
        QTest::keyClicks(line(), QStringLiteral("li"));
        QTest::keyClick(line(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(all.count(), 0);
        QTest::keyClick(line(), Qt::Key_Backspace);
        QTest::keyClick(line(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(line(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(all.count(), 1);
        QCOMPARE(undo.count(), 1);
        QVERIFY(entities().empty());
        QVERIFY(line()->text().isEmpty());
    }

    void clicksAndFramesSelect()
    {
        m_window->drawing().add(Entity::line({-40, 0}, {40, 0}));
        m_window->drawing().add(Entity::circle({0, 30}, 10));
        Canvas *canvas = m_window->canvas();
        using Indices = std::vector<std::size_t>;
        click(20, 0);
        QCOMPARE(canvas->selection(), (Indices{0}));
        click(10, 30);
        QCOMPARE(canvas->selection(), (Indices{1}));
        click(20, 0, Qt::ShiftModifier);
        QCOMPARE(canvas->selection(), (Indices{0, 1}));
        click(20, 0, Qt::ShiftModifier);
        QCOMPARE(canvas->selection(), (Indices{1}));
        click(0, -30);
        QVERIFY(canvas->selection().empty());
        const auto frame = [&](const QPoint &from, const QPoint &to) {
            press(Qt::LeftButton, from);
            move(to);
            release(Qt::LeftButton, to);
        };
        // To the right selects only what is inside, to the left also what is touched.
        frame(pixels(-20, 45), pixels(20, -5));
        QCOMPARE(canvas->selection(), (Indices{1}));
        frame(pixels(20, -5), pixels(-20, 45));
        QCOMPARE(canvas->selection(), (Indices{0, 1}));
        action("editErase")->trigger();
        QVERIFY(entities().empty());
        QVERIFY(canvas->selection().empty());
        action("editUndo")->trigger();
        action("editSelectAll")->trigger();
        QCOMPARE(canvas->selection(), (Indices{0, 1}));
        action("modifyCopy")->trigger();
        QCOMPARE(canvas->tool().wants(), Tool::Wants::Point);
    }

    void theViewMovesAndGrows()
    {
        Canvas *canvas = m_window->canvas();
        const QPoint here(150, 120);
        const QPointF before = canvas->toDrawing(here);
        const double wide = canvas->toDrawing({100, 0}).x() - canvas->toDrawing({0, 0}).x();
        QWheelEvent turn(here, canvas->mapToGlobal(here), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas, &turn);
        QVERIFY(QLineF(canvas->toDrawing(here), before).length() < 1e-9);
        const double narrow = canvas->toDrawing({100, 0}).x() - canvas->toDrawing({0, 0}).x();
        QVERIFY(std::abs(wide / narrow - 1.2) < 1e-9);
        press(Qt::MiddleButton, here);
        move(here + QPoint(40, 10));
        release(Qt::MiddleButton, here + QPoint(40, 10));
        QVERIFY(QLineF(canvas->toDrawing(here + QPoint(40, 10)), before).length() < 1e-9);
    }

    void zoomToBoundsShowsEverything()
    {
        m_window->drawing().add(Entity::line({1000, 5000}, {3000, 5100}));
        action("viewZoomBounds")->trigger();
        const QRectF canvas = m_window->canvas()->rect();
        const QRectF drawn(m_window->canvas()->toPixels({1000, 5100}),
                           m_window->canvas()->toPixels({3000, 5000}));
        QVERIFY(canvas.contains(drawn));
        QVERIFY(std::abs(drawn.width() - canvas.width() * 0.9) < 1e-6);
        QVERIFY((drawn.center() - QPointF(canvas.width() / 2, canvas.height() / 2)).manhattanLength()
                < 1e-6);
    }

    void fullScreenShowsNothingButTheDrawing()
    {
        const auto shown = [this] {
            QStringList names;
            const auto bars = m_window->findChildren<QToolBar *>();
            for (const QWidget *bar : bars) {
                if (bar->isVisible())
                    names += bar->objectName();
            }
            names += m_window->menuBar()->isVisible() ? QStringLiteral("menus") : QString();
            names += m_window->statusBar()->isVisible() ? QStringLiteral("status") : QString();
            return names;
        };
        const QStringList before = shown();
        QVERIFY(before.contains(QStringLiteral("drawBar")));
        QVERIFY(!before.contains(QStringLiteral("helpBar")));
        QTest::keyClick(m_window.get(), Qt::Key_F11);
        QVERIFY(m_window->isFullScreen());
        QTRY_COMPARE(m_window->canvas()->geometry(), m_window->rect());
        QCOMPARE(shown(), (QStringList{QString(), QString()}));
        // Keys still run commands.
        QSignalSpy grid(action("viewGrid"), &QAction::triggered);
        QTest::keyClick(m_window.get(), Qt::Key_F7);
        QCOMPARE(grid.count(), 1);
        QTest::keyClick(m_window.get(), Qt::Key_F11);
        QVERIFY(!m_window->isFullScreen());
        QCOMPARE(shown(), before);
    }

    void farOutNothingHangs()
    {
        m_window->drawing().add(Entity::line({1e9, 1e9}, {1e9 + 1e-3, 1e9}));
        action("viewZoomBounds")->trigger();
        for (int i = 0; i < 80; ++i)
            action("viewZoomIn")->trigger();
        QVERIFY(!m_window->canvas()->grab().isNull());
        for (int i = 0; i < 160; ++i)
            action("viewZoomOut")->trigger();
        QVERIFY(!m_window->canvas()->grab().isNull());
    }

    void aRightClickOpensTheMenu()
    {
        QStringList names;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&names] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                return;
            const auto entries = menu->actions();
            for (const QAction *entry : entries)
                names += entry->objectName();
            QTest::keyClick(menu, Qt::Key_Escape);
        });
        watch.start(0);
        const QPoint place(100, 100);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, m_window->canvas()->mapToGlobal(place));
        QApplication::sendEvent(m_window->canvas(), &event);
        QTRY_VERIFY(!names.isEmpty());
        QVERIFY(names.contains(QStringLiteral("modifyTrim")));
        QVERIFY(names.contains(QStringLiteral("viewZoomBounds")));
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

    void drawingsAreOpenedAndSaved()
    {
        if (!dxf::isSupported())
            return;
        const QString path = m_folder->filePath(QStringLiteral("mine.dxf"));
        m_window->drawing().add(Entity::line({0, 0}, {10, 0}));
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->saveFile(path));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("mine.dxf")));
        m_window->drawing().add(Entity::circle({0, 0}, 10));
        type("SAVE");
        QVERIFY(!m_window->isWindowModified());
        MainWindow other;
        QVERIFY(other.openFile(path));
        QCOMPARE(other.drawing().entities().size(), std::size_t(2));
        QVERIFY(!other.isWindowModified());
    }

    void whatCannotBeOpenedIsExplainedAndChangesNothing()
    {
        m_window->drawing().add(Entity::line({0, 0}, {10, 0}));
        QFile file(m_folder->filePath(QStringLiteral("letter.dxf")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Dear Sir,\nplease\n") > 0);
        file.close();
        Answer answer(QMessageBox::Ok);
        QVERIFY(!m_window->openFile(file.fileName()));
        QCOMPARE(answer.count, 1);
        QVERIFY(answer.said.contains(QStringLiteral("letter.dxf")));
        QCOMPARE(entities().size(), std::size_t(1));
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("New drawing")));
    }

    void aDrawingThatWasNotReadWholeIsNotReplaced()
    {
        if (!dxf::isSupported())
            return;
        const QString path = foreignFile();
        const QByteArray before = contents(path);
        QVERIFY(m_window->openFile(path));
        QCOMPARE(entities().size(), std::size_t(1));
        m_window->drawing().add(Entity::circle({0, 0}, 10));
        {
            Answer answer(QMessageBox::Ok);
            type("SAVE");
            QCOMPARE(answer.count, 1);
            QVERIFY(answer.said.contains(QStringLiteral("2 \u00d7 ELLIPSE")));
            QVERIFY(answer.said.contains(QStringLiteral("Save As")));
        }
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(contents(path), before);
        // The same through other names of the file.
        const QString link = m_folder->filePath(QStringLiteral("link.dxf"));
        QVERIFY(QFile::link(path, link));
        const QString roundabout = m_folder->path() + QStringLiteral("/../")
                                 + QFileInfo(m_folder->path()).fileName()
                                 + QStringLiteral("/foreign.dxf");
        for (const QString &name : {link, roundabout}) {
            Answer answer(QMessageBox::Ok);
            QVERIFY(!m_window->saveFile(name));
            QCOMPARE(answer.count, 1);
            QCOMPARE(contents(path), before);
        }
    }

    void itIsSavedUnderAnotherNameAfterAWarning()
    {
        if (!dxf::isSupported())
            return;
        const QString path = foreignFile();
        const QByteArray before = contents(path);
        const QString other = m_folder->filePath(QStringLiteral("other.dxf"));
        QVERIFY(m_window->openFile(path));
        {
            Answer answer(QMessageBox::Cancel);
            QVERIFY(!m_window->saveFile(other));
            QCOMPARE(answer.count, 1);
            QVERIFY(answer.said.contains(QStringLiteral("2 \u00d7 ELLIPSE")));
            QVERIFY(!QFile::exists(other));
        }
        {
            Answer answer(QMessageBox::Save);
            QVERIFY(m_window->saveFile(other));
            QCOMPARE(answer.count, 1);
        }
        QCOMPARE(contents(path), before);
        // The new file has been read completely, so it may be replaced.
        {
            Answer answer(QMessageBox::Ok);
            type("SAVE");
            QCOMPARE(answer.count, 0);
        }
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("other.dxf")));
        // The first file is still not replaced, by this drawing or by its own.
        Answer answer(QMessageBox::Ok);
        QVERIFY(!m_window->saveFile(path));
        QCOMPARE(answer.count, 1);
        QVERIFY(m_window->openFile(path));
        type("SAVE");
        QCOMPARE(answer.count, 2);
        QCOMPARE(contents(path), before);
    }

    void aFileThatIsNoDrawingIsNotReplaced()
    {
        if (!dxf::isSupported())
            return;
        QFile file(m_folder->filePath(QStringLiteral("letter.txt")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Dear Sir,\nplease\n") > 0);
        file.close();
        Answer answer(QMessageBox::Ok);
        QVERIFY(!m_window->saveFile(file.fileName()));
        QCOMPARE(answer.count, 1);
        QVERIFY(contents(file.fileName()).startsWith("Dear"));
        // An empty file may be replaced.
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.close();
        QVERIFY(m_window->saveFile(file.fileName()));
    }

    void changesAreNotLostWithoutAsking()
    {
        m_window->drawing().add(Entity::line({0, 0}, {10, 0}));
        {
            Answer answer(QMessageBox::Cancel);
            type("NEW");
            QCOMPARE(answer.count, 1);
            QCOMPARE(entities().size(), std::size_t(1));
            QVERIFY(!m_window->close());
            QCOMPARE(answer.count, 2);
            QVERIFY(m_window->isVisible());
        }
        Answer answer(QMessageBox::Discard);
        type("NEW");
        QCOMPARE(answer.count, 1);
        QVERIFY(entities().empty());
        QVERIFY(m_window->close());
        QCOMPARE(answer.count, 1);
    }
};

QTEST_MAIN(SketchpadTest)
#include "tst_sketchpad.moc"
