// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CatalogueMemory.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/RememberedIcon.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/StandardErrorCapture.h"
#include "tests/support/FatalWarnings.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIconEngine>
#include <QMap>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>

#include <sys/stat.h>

using gesturewidget::ActionItem;
using gesturewidget::CatalogueFile;
using gesturewidget::CatalogueMemory;
using gesturewidget::CommandCatalogue;
using gesturewidget::RememberedCommand;
using tests::DraftWindow;
using WellKnown = QHash<QString, QStringList>;

namespace {

const QString kLine = QStringLiteral("ID_LINE");

// A running program: its main window, and what the host knows about it.
struct Start
{
    explicit Start(const QString &file, const WellKnown &wellKnown = {})
        : catalogue(&window, wellKnown)
        , memory(catalogue, file)
        , settled(&memory, &CatalogueMemory::settled)
    {
    }

    // Waits until the file has what the menus show. Returns false if that takes too long.
    bool isWritten()
    {
        memory.start();
        return settled.wait();
    }
    [[nodiscard]] QString identifierOf(const QAction *action)
    {
        const ActionItem *item = catalogue.itemOf(action);
        return item ? item->GetIdentifier().toQString() : QStringLiteral("<none>");
    }
    // Returns true if a person can choose the command.
    [[nodiscard]] bool isOffered(const QString &identifier)
    {
        int count = 0;
        for (const auto &group : catalogue.groups()) {
            for (const CHxUICommandItem *item : group->items)
                count += item->GetIdentifier().toQString() == identifier;
        }
        return count == 1;
    }

    DraftWindow window;
    CommandCatalogue catalogue;
    CatalogueMemory memory;
    QSignalSpy settled;
};

QImage shown(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
}

// Notes the timers that fire, and their intervals in milliseconds. Repetitions are left out.
class FiredTimers : public QObject
{
public:
    FiredTimers() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        auto *timer = event->type() == QEvent::Timer ? qobject_cast<QTimer *>(receiver) : nullptr;
        if (timer && !intervals[timer].endsWith(timer->interval()))
            intervals[timer].append(timer->interval());
        return false;
    }

    QMap<QTimer *, QVector<int>> intervals;
};

// Counts icons that are drawn, also between two turns of the event loop.
class DrawnIcons : public QObject
{
public:
    DrawnIcons() { startTimer(0); }

    void count()
    {
        ++all;
        mostInATurn = std::max(mostInATurn, ++m_inThisTurn);
    }

    int all = 0;
    int mostInATurn = 0;

protected:
    void timerEvent(QTimerEvent * /*event*/) override { m_inThisTurn = 0; }

private:
    int m_inThisTurn = 0;
};

// A black icon that takes half of the time for which the memory draws without a pause, or more.
class SlowIconEngine : public QIconEngine
{
public:
    explicit SlowIconEngine(DrawnIcons &drawn)
        : m_drawn(drawn)
    {
    }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        painter->fillRect(place, Qt::black);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        constexpr int kTime = 2; // milliseconds
        m_drawn.count();
        QElapsedTimer timer;
        timer.start();
        QPixmap image(size);
        while (!timer.hasExpired(kTime))
            image.fill(Qt::black);
        return image;
    }
    [[nodiscard]] QIconEngine *clone() const override { return new SlowIconEngine(m_drawn); }

private:
    DrawnIcons &m_drawn;
};

} // namespace

class CatalogueMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("drafter.commands.json"));
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void theFirstStartIsWritten();
    void whatIsNewComesLater();
    void commandsOfAnotherWindowComeWithIt();
    void afterAFileThatCannotBeReadAllCommandsAreTrusted();
    void aStartWithNothingNewWritesNothing();
    void captionsThatChangeAllTheTimeAreNotWritten();
    void menusThatNeverRestAreWrittenLessAndLess();
    void aProgramAtRestIsLeftAlone();
    void nothingIsWrittenBeforeTheStartOrAfterTheStop();
    void iconsWaitWhileAButtonIsDown();
    void theStopWritesWhatWasSeen();
    void theStopWritesNothingTwice();
    void commandsOfEarlierStartsAreOffered();
    void theyAreTakenUpByTheirActions();
    void identifiersStayThoughMenusComeInAnotherOrder();
    void guessesStay();
    void aProfileThatComesLaterCounts();
    void aProfileThatChangesCounts();
    void anotherLanguageChangesNoIdentifier();
    void withoutObjectNamesTheLanguageCounts();
    void entriesOfListsAreNotOfferedForEver();
    void entriesOfKnownListsAreNotWritten();
    void anEntryThatIsBoundStays();
    void whatIsNotWrittenIsTriedAgain();
    void aFileThatCannotBeUsedHarmsNothing();
    void iconsAreReadWhenPainted();
    void whatIsNoPictureShowsNothing_data();
    void whatIsNoPictureShowsNothing();
    void iconsAreDrawnAFewAtATime();

private:
    [[nodiscard]] QVector<RememberedCommand> file() const { return CatalogueFile(m_path).read(); }
    [[nodiscard]] RememberedCommand inFile(const QString &identifier) const
    {
        const QVector<RememberedCommand> commands = file();
        for (const RememberedCommand &command : commands) {
            if (command.identifier == identifier)
                return command;
        }
        return {};
    }
    [[nodiscard]] ino_t node() const // differs after each writing
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(m_path).constData(), &status) == 0 ? status.st_ino : 0;
    }
    // Starts the program once and ends it. `before` changes the window first.
    void runOnce(const std::function<void(DraftWindow &)> &before = {},
                 const WellKnown &wellKnown = {}) const
    {
        Start start(m_path, wellKnown);
        if (before)
            before(start.window);
        QVERIFY(start.isWritten());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void CatalogueMemoryTest::theFirstStartIsWritten()
{
    runOnce({}, {{kLine, {QStringLiteral("drawLine")}}});
    QStringList identifiers;
    const QVector<RememberedCommand> commands = file();
    for (const RememberedCommand &command : commands)
        identifiers.append(command.identifier);
    QCOMPARE(identifiers, QStringList({QStringLiteral("fileNew"), QStringLiteral("fileOpen"),
                                       QStringLiteral("File/Export/Picture..."),
                                       QStringLiteral("File/Export/Text & numbers..."), kLine,
                                       QStringLiteral("drawCircle"), QStringLiteral("helpAbout"),
                                       QStringLiteral("drawArc")}));
    const RememberedCommand line = inFile(kLine);
    QCOMPARE(line.command, QStringLiteral("drawLine"));
    QCOMPARE(line.caption, QStringLiteral("Line"));
    QCOMPARE(line.tip, QStringLiteral("Draws a line"));
    QCOMPARE(line.group, QStringLiteral("Draw"));
    QVERIFY(!line.isInToolBar);
    const QImage icon = QImage::fromData(line.icon, "PNG");
    QCOMPARE(icon.size(), QSize(16, 16));
    QCOMPARE(icon.pixelColor(8, 8), QColor(Qt::red));
    const RememberedCommand arc = inFile(QStringLiteral("drawArc"));
    QVERIFY(arc.isInToolBar);
    QCOMPARE(arc.group, QStringLiteral("Drawing"));
    QCOMPARE(arc.icon, QByteArray());
}

void CatalogueMemoryTest::whatIsNewComesLater()
{
    Start start(m_path);
    QVERIFY(start.isWritten());
    const int before = int(file().size());
    QMenu *menu = start.window.addMenu("Sketch", "sketchMenu");
    for (const char *name : {"sketchFillet", "sketchChamfer"})
        DraftWindow::addAction(menu, name, name)->setIcon(start.window.line->icon());
    const ino_t node = this->node();
    QCOMPARE(file().size(), before); // not at once
    QVERIFY(start.settled.wait());
    QCOMPARE(file().size(), before + 2);
    QCOMPARE(inFile(QStringLiteral("sketchFillet")).group, QStringLiteral("Sketch"));
    QVERIFY(!inFile(QStringLiteral("sketchFillet")).icon.isEmpty());
    QVERIFY(!inFile(QStringLiteral("sketchChamfer")).icon.isEmpty());
    QVERIFY(this->node() != node);
    QCOMPARE(start.settled.count(), 2);
}

// A program may have several main windows.
void CatalogueMemoryTest::commandsOfAnotherWindowComeWithIt()
{
    Start start(m_path);
    DraftWindow other;
    DraftWindow::addAction(other.addMenu("Sketch", "sketchMenu"), "Fillet", "sketchFillet");
    start.catalogue.addWindow(&other);
    QVERIFY(start.isWritten());
    QVERIFY(inFile(QStringLiteral("sketchFillet")).identifier.isEmpty());
    start.catalogue.setCurrentWindow(&other);
    QVERIFY(start.settled.wait());
    QCOMPARE(inFile(QStringLiteral("sketchFillet")).group, QStringLiteral("Sketch"));
}

// What earlier starts have seen is then unknown, so that a command may be right that this one lacks.
void CatalogueMemoryTest::afterAFileThatCannotBeReadAllCommandsAreTrusted()
{
    for (const bool isReadable : {true, false}) {
        if (!isReadable)
            tests::writeFile(m_path, "{");
        tests::StandardErrorCapture errors;
        Start start(m_path);
        start.catalogue.expect(QStringLiteral("drawArcc"), QStringLiteral("drawArcc"));
        start.catalogue.endGuessing();
        QCOMPARE(start.isOffered(QStringLiteral("drawArcc")), !isReadable);
        QCOMPARE(errors.lines().size(), isReadable ? 0 : 1);
    }
}

void CatalogueMemoryTest::aStartWithNothingNewWritesNothing()
{
    runOnce();
    const ino_t before = node();
    QVERIFY(before != 0);
    runOnce();
    runOnce([](DraftWindow &window) { delete window.draw; });
    QCOMPARE(node(), before);
}

void CatalogueMemoryTest::captionsThatChangeAllTheTimeAreNotWritten()
{
    Start start(m_path);
    QVERIFY(start.isWritten());
    const ino_t before = node();
    start.window.line->setText(QStringLiteral("Line again"));
    start.window.draw->addSeparator(); // changes the menus
    QVERIFY(start.settled.wait());
    QCOMPARE(node(), before);
    QCOMPARE(inFile(QStringLiteral("drawLine")).caption, QStringLiteral("Line"));
}

void CatalogueMemoryTest::menusThatNeverRestAreWrittenLessAndLess()
{
    Start start(m_path);
    QMenu *clock = start.window.addMenu("Clock", "clockMenu");
    int time = 0;
    QTimer tick;
    connect(&tick, &QTimer::timeout, this, [&] {
        clock->clear();
        clock->addAction(QString::number(++time));
    });
    tick.start(5);
    const FiredTimers fired;
    QVERIFY(start.isWritten());
    QVERIFY(start.settled.wait());
    QVERIFY(start.settled.wait());
    constexpr int kFirst = CatalogueMemory::kQuietTime;
    const QVector<int> doubled{kFirst, 2 * kFirst, 4 * kFirst};
    QVERIFY(std::find(fired.intervals.begin(), fired.intervals.end(), doubled) != fired.intervals.end());
}

// While nothing changes, nothing wakes the program up.
void CatalogueMemoryTest::aProgramAtRestIsLeftAlone()
{
    Start start(m_path);
    const FiredTimers fired;
    QVERIFY(start.isWritten());
    const auto quiet = fired.intervals.keys({CatalogueMemory::kQuietTime});
    const auto waitsTwiceAsLong = [](const QTimer *timer) {
        return !timer->isActive() && timer->interval() == 2 * CatalogueMemory::kQuietTime;
    };
    QCOMPARE(std::count_if(quiet.begin(), quiet.end(), waitsTwiceAsLong), std::ptrdiff_t(1));
    // Between two turns of drawing, the program has 20 ms to itself.
    const QTimer *drawing = fired.intervals.key({20});
    QVERIFY(drawing);
    QVERIFY(!drawing->isActive());
}

void CatalogueMemoryTest::nothingIsWrittenBeforeTheStartOrAfterTheStop()
{
    Start start(m_path);
    QVERIFY(start.catalogue.find(QStringLiteral("drawLine")));
    DraftWindow::addAction(start.window.draw, "More", "drawMore");
    start.memory.start();
    start.memory.stop();
    DraftWindow::addAction(start.window.draw, "Much more", "drawMuchMore");
    QVERIFY(!start.settled.wait(2 * CatalogueMemory::kQuietTime));
    QVERIFY(!QFileInfo::exists(m_path));
}

void CatalogueMemoryTest::iconsWaitWhileAButtonIsDown()
{
    Start start(m_path);
    start.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&start.window));
    QTest::mousePress(start.window.windowHandle(), Qt::LeftButton, {}, QPoint(90, 90));
    start.memory.start();
    QVERIFY(!start.settled.wait(2 * CatalogueMemory::kQuietTime));
    QVERIFY(!QFileInfo::exists(m_path));
    // Handles events, so it may settle in here.
    QTest::mouseRelease(start.window.windowHandle(), Qt::LeftButton, {}, QPoint(90, 90));
    QTRY_COMPARE(start.settled.count(), 1);
    QVERIFY(QFileInfo::exists(m_path));
}

// A person may start the program, look at something and quit before all icons are drawn.
void CatalogueMemoryTest::theStopWritesWhatWasSeen()
{
    {
        Start start(m_path);
        start.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&start.window));
        QTest::mousePress(start.window.windowHandle(), Qt::LeftButton, {}, QPoint(90, 90));
        const FiredTimers fired;
        start.memory.start();
        QVERIFY(!start.settled.wait(2 * CatalogueMemory::kQuietTime)); // seen, but not drawn
        QTest::mouseRelease(start.window.windowHandle(), Qt::LeftButton, {}, QPoint(90, 90));
        start.memory.stop();
        const QTimer *drawing = fired.intervals.key({20});
        QVERIFY(drawing && !drawing->isActive());
        QCOMPARE(file().size(), 8);
        QCOMPARE(inFile(QStringLiteral("drawLine")).caption, QStringLiteral("Line"));
        QVERIFY(inFile(QStringLiteral("drawLine")).icon.isEmpty());
    }
    runOnce(); // has enough time for the icons
    QVERIFY(!inFile(QStringLiteral("drawLine")).icon.isEmpty());
}

void CatalogueMemoryTest::theStopWritesNothingTwice()
{
    Start start(m_path);
    QVERIFY(start.isWritten());
    QVERIFY(QFile::remove(m_path));
    start.memory.stop();
    QVERIFY(!QFileInfo::exists(m_path));
}

void CatalogueMemoryTest::commandsOfEarlierStartsAreOffered()
{
    runOnce();
    Start start(m_path);
    const QImage icon = shown(start.window.line->icon());
    delete start.window.toolBar;
    delete start.window.draw; // with its actions
    ActionItem *line = start.catalogue.find(QStringLiteral("drawLine"));
    QVERIFY(line);
    QVERIFY(!line->here.isPresent && !line->isUsable());
    QCOMPARE(line->GetCaption().toQString(), QStringLiteral("Line"));
    QCOMPARE(line->GetTip().toQString(), QStringLiteral("Draws a line"));
    QCOMPARE(line->here.group, QStringLiteral("Draw"));
    QCOMPARE(shown(line->GetSmallIcon()), icon);
    QCOMPARE(shown(line->GetLargeIcon()), icon);
    QVERIFY(start.isOffered(QStringLiteral("drawLine")));
    QVERIFY(start.isOffered(QStringLiteral("drawArc"))); // only in a toolbar
    QVERIFY(start.catalogue.find(QStringLiteral("drawArc"))->here.isInToolBar);
    const auto &groups = start.catalogue.groups();
    const auto isDraw = [](const auto &group) {
        return group->GetName().toQString() == QLatin1String("Draw");
    };
    const auto draw = std::find_if(groups.begin(), groups.end(), isDraw);
    QVERIFY(draw != groups.end());
    QCOMPARE(int((*draw)->items.size()), 2);
    QVERIFY(!start.catalogue.isShown(QStringLiteral("Draw")));
    QVERIFY(start.catalogue.isShown(QStringLiteral("Help")));
}

void CatalogueMemoryTest::theyAreTakenUpByTheirActions()
{
    runOnce();
    Start start(m_path);
    delete start.window.line;
    ActionItem *line = start.catalogue.find(QStringLiteral("drawLine"));
    QVERIFY(line && !line->here.isPresent);
    QAction *again = DraftWindow::addAction(start.window.help, "Segment", "drawLine");
    QCOMPARE(start.catalogue.itemOf(again), line);
    QVERIFY(line->isUsable());
    QCOMPARE(line->GetCaption().toQString(), QStringLiteral("Segment"));
    QCOMPARE(line->GetTip().toQString(), QStringLiteral("Segment")); // a tool tip, by default
    QVERIFY(line->GetSmallIcon().isNull());
    QCOMPARE(line->here.group, QStringLiteral("Help"));
    QVERIFY(start.isOffered(QStringLiteral("drawLine")));
}

// If a well-known command has two names, the name that was seen first keeps the identifier.
void CatalogueMemoryTest::identifiersStayThoughMenusComeInAnotherOrder()
{
    const WellKnown wellKnown{{kLine, {QStringLiteral("sketchLine"), QStringLiteral("drawLine")}}};
    runOnce({}, wellKnown);
    QCOMPARE(inFile(kLine).command, QStringLiteral("drawLine"));
    for (int round = 0; round < 2; ++round) {
        Start start(m_path, wellKnown);
        const QAction *line = start.window.line;
        start.window.draw->removeAction(start.window.line);
        start.window.toolBar->removeAction(start.window.line);
        const QAction *sketch = DraftWindow::addAction(start.window.file, "Sketch line", "sketchLine");
        QCOMPARE(start.identifierOf(sketch), QStringLiteral("sketchLine"));
        // Both names run it, whatever identifiers they have.
        QCOMPARE(start.catalogue.findUsable(kLine), start.catalogue.itemOf(sketch));
        start.window.draw->addAction(start.window.line);
        QCOMPARE(start.identifierOf(line), kLine);
        QVERIFY(start.isWritten());
    }
}

void CatalogueMemoryTest::guessesStay()
{
    {
        Start start(m_path);
        start.catalogue.guessWellKnown();
        QCOMPARE(start.identifierOf(start.window.line), kLine);
        QVERIFY(start.isWritten());
    }
    Start start(m_path);
    start.catalogue.guessWellKnown();
    QAction *line = start.window.line;
    start.window.draw->removeAction(line);
    start.window.toolBar->removeAction(line);
    // Without the remembered commands, this action would be taken for the line.
    const QAction *other = DraftWindow::addAction(start.window.file, "Line", "otherLine");
    QCOMPARE(start.identifierOf(other), QStringLiteral("otherLine"));
    start.window.draw->addAction(line);
    QCOMPARE(start.identifierOf(line), kLine);
}

void CatalogueMemoryTest::aProfileThatComesLaterCounts()
{
    runOnce();
    QVERIFY(!inFile(QStringLiteral("drawLine")).identifier.isEmpty());
    Start start(m_path, {{kLine, {QStringLiteral("drawLine")}}});
    QCOMPARE(start.identifierOf(start.window.line), kLine);
    QVERIFY(start.isOffered(kLine));
    QVERIFY(!start.isOffered(QStringLiteral("drawLine")));
}

void CatalogueMemoryTest::aProfileThatChangesCounts()
{
    runOnce({}, {{kLine, {QStringLiteral("drawLine")}}});
    Start start(m_path, {{kLine, {QStringLiteral("drawArc")}}});
    QCOMPARE(start.identifierOf(start.window.arc), kLine);
    QCOMPARE(start.identifierOf(start.window.line), QStringLiteral("drawLine"));
    QVERIFY(start.isOffered(kLine));
}

void CatalogueMemoryTest::anotherLanguageChangesNoIdentifier()
{
    const auto german = [](DraftWindow &window) {
        window.draw->setTitle(QStringLiteral("&Zeichnen"));
        window.line->setText(QStringLiteral("&Linie"));
        window.line->setStatusTip(QStringLiteral("Zeichnet eine Linie"));
        window.circle->setText(QStringLiteral("&Kreis"));
    };
    runOnce();
    Start start(m_path);
    german(start.window);
    QCOMPARE(start.identifierOf(start.window.line), QStringLiteral("drawLine"));
    QCOMPARE(start.identifierOf(start.window.circle), QStringLiteral("drawCircle"));
    QVERIFY(start.isWritten());
    // A command that is missing at the next start keeps the language in which it was last seen.
    const RememberedCommand line = inFile(QStringLiteral("drawLine"));
    QCOMPARE(line.caption, QStringLiteral("Linie"));
    QCOMPARE(line.tip, QStringLiteral("Zeichnet eine Linie"));
    QCOMPARE(line.group, QStringLiteral("Zeichnen"));
    QVERIFY(!line.icon.isEmpty());
    QCOMPARE(file().size(), 8);
}

void CatalogueMemoryTest::withoutObjectNamesTheLanguageCounts()
{
    runOnce();
    Start start(m_path);
    start.window.exportPicture->setText(QStringLiteral("&Bild..."));
    QCOMPARE(start.identifierOf(start.window.exportPicture), QStringLiteral("File/Export/Bild..."));
}

void CatalogueMemoryTest::entriesOfListsAreNotOfferedForEver()
{
    const QString first = QStringLiteral("File/Plates/Plate one");
    const QString path = QStringLiteral("File/Plates/Plate two");
    const QString twin = QStringLiteral("File/Plates/Window (2)");
    const auto addPlates = [](DraftWindow &window, const QStringList &names) {
        QMenu *plates = window.file->addMenu(QStringLiteral("Plates"));
        for (const QString &name : names)
            plates->addAction(name);
    };
    runOnce([&](DraftWindow &window) {
        addPlates(window, {QStringLiteral("Plate one"), QStringLiteral("Plate two"),
                           QStringLiteral("Window"), QStringLiteral("Window")});
    });
    {
        // Without their menu, the host cannot tell what they are.
        Start start(m_path);
        for (const QString &name : {first, path, twin})
            QVERIFY2(start.isOffered(name), qPrintable(name));
    }
    Start start(m_path);
    addPlates(start.window, {QStringLiteral("Plate one")});
    QVERIFY(start.isOffered(first));
    QVERIFY(!start.isOffered(path));
    QVERIFY(!start.isOffered(twin));
    // A command that was there at the start stays offered, like every other command.
    QMenu *plates = start.window.file->actions().constLast()->menu();
    plates->clear();
    QVERIFY(start.isOffered(first));
    // They leave the file when something else is written to it.
    QVERIFY(start.isWritten());
    QVERIFY(!inFile(path).identifier.isEmpty());
    DraftWindow::addAction(start.window.draw, "Spline", "drawSpline");
    QVERIFY(start.settled.wait());
    QVERIFY(!inFile(QStringLiteral("drawSpline")).identifier.isEmpty());
    QVERIFY(!inFile(first).identifier.isEmpty());
    QVERIFY(inFile(path).identifier.isEmpty());
    QVERIFY(inFile(twin).identifier.isEmpty());
}

// Nobody offers them, not even if somebody has bound them once.
void CatalogueMemoryTest::entriesOfKnownListsAreNotWritten()
{
    const QString bound = QStringLiteral("File/Open Recent/Plate one");
    Start start(m_path);
    start.catalogue.expect(bound, QString());
    QMenu *recent = start.window.file->addMenu(QStringLiteral("Open Recent"));
    recent->addAction(QStringLiteral("Plate one"));
    recent->addAction(QStringLiteral("Plate two"));
    QVERIFY(start.isWritten());
    QVERIFY(start.isOffered(bound));
    QVERIFY(!start.isOffered(QStringLiteral("File/Open Recent/Plate two")));
    QFile written(m_path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(!written.readAll().contains("Plate"));
}

void CatalogueMemoryTest::anEntryThatIsBoundStays()
{
    const QString picture = QStringLiteral("File/Export/Picture...");
    runOnce();
    Start start(m_path);
    start.window.exports->removeAction(start.window.exportPicture);
    QVERIFY(!start.isOffered(picture));
    start.catalogue.expect(picture, QStringLiteral("Expected"));
    QVERIFY(start.isOffered(picture));
    QCOMPARE(start.catalogue.find(picture)->GetCaption().toQString(),
             QStringLiteral("Export > Picture"));
    DraftWindow::addAction(start.window.draw, "Spline", "drawSpline");
    QVERIFY(start.isWritten());
    QVERIFY(!inFile(picture).identifier.isEmpty());
}

void CatalogueMemoryTest::whatIsNotWrittenIsTriedAgain()
{
    const QString folder = m_folder->filePath(QStringLiteral("drafter.commands.json"));
    QVERIFY(QDir().mkdir(folder)); // in the way
    tests::StandardErrorCapture errors;
    Start start(m_path);
    QVERIFY(start.isWritten());
    QVERIFY(QDir().rmdir(folder));
    DraftWindow::addAction(start.window.draw, "Spline", "drawSpline");
    QVERIFY(start.settled.wait());
    QCOMPARE(file().size(), 9);
    QVERIFY(!inFile(QStringLiteral("drawLine")).icon.isEmpty());
    QCOMPARE(errors.lines().size(), 1);
}

void CatalogueMemoryTest::aFileThatCannotBeUsedHarmsNothing()
{
    for (const char *text : {"", "{", "{\"version\": 99}", "[]"}) {
        tests::writeFile(m_path, text);
        tests::StandardErrorCapture errors;
        Start start(m_path);
        QCOMPARE(start.identifierOf(start.window.line), QStringLiteral("drawLine"));
        QVERIFY(start.isWritten());
        QCOMPARE(errors.lines().size(), 1);
        QVERIFY(QFile::remove(m_path));
    }
    tests::StandardErrorCapture errors;
    Start start(QStringLiteral("/proc/gesturewidget/drafter.commands.json"));
    QCOMPARE(start.identifierOf(start.window.line), QStringLiteral("drawLine"));
    QVERIFY(start.isWritten());
    DraftWindow::addAction(start.window.draw, "Spline", "drawSpline");
    QVERIFY(start.settled.wait());
    QCOMPARE(errors.lines().size(), 1);
}

void CatalogueMemoryTest::iconsAreReadWhenPainted()
{
    QPixmap pixmap(20, 10);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        painter.fillRect(3, 2, 9, 5, QColor(10, 200, 30, 128));
    }
    const QIcon original(pixmap);
    const QByteArray file = gesturewidget::iconToPng(original);
    QVERIFY(!file.isEmpty());
    const QIcon icon = gesturewidget::iconFromPng(file);
    QVERIFY(!icon.isNull());
    const QIcon copy = icon; // NOLINT(performance-unnecessary-copy-initialization): it is tested
    for (const QSize &size : {QSize(32, 32), QSize(16, 16), QSize(8, 8)}) {
        QCOMPARE(copy.actualSize(size), original.actualSize(size));
        QCOMPARE(copy.pixmap(size).toImage(), original.pixmap(size).toImage());
    }
    QCOMPARE(copy.pixmap(QSize(20, 10), QIcon::Disabled).toImage(),
             original.pixmap(QSize(20, 10), QIcon::Disabled).toImage());
    const auto painted = [](const QIcon &each) {
        QImage image(24, 24, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        each.paint(&painter, image.rect());
        return image;
    };
    QCOMPARE(painted(icon), painted(original));
    QIcon changed = icon;
    changed.addPixmap(pixmap, QIcon::Selected); // detaches the copy
    QCOMPARE(painted(icon), painted(original));
    // The file is read once.
    QCOMPARE(icon.pixmap(QSize(20, 10)).cacheKey(), icon.pixmap(QSize(20, 10)).cacheKey());

    QVERIFY(gesturewidget::iconToPng(QIcon()).isEmpty());
    QVERIFY(gesturewidget::iconFromPng({}).isNull());
    QPixmap large(128, 128);
    large.fill(Qt::blue);
    QCOMPARE(QImage::fromData(gesturewidget::iconToPng(QIcon(large)), "PNG").size(),
             QSize(gesturewidget::kRememberedIconSize, gesturewidget::kRememberedIconSize));
}

void CatalogueMemoryTest::whatIsNoPictureShowsNothing_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto saved = [](const QSize &size, const char *format) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::red);
        QByteArray file;
        QBuffer buffer(&file);
        return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format) ? file : QByteArray();
    };
    const QByteArray png = saved({256, 256}, "PNG");
    QVERIFY(!gesturewidget::iconFromPng(png).pixmap(16, 16).isNull());
    QTest::newRow("text") << QByteArray("picture");
    QTest::newRow("cut off in the header") << png.left(30);
    QTest::newRow("nothing but the header") << png.left(33);
    QTest::newRow("too wide") << saved({257, 256}, "PNG");
    QTest::newRow("too high") << saved({256, 257}, "PNG");
    QTest::newRow("other format") << saved({16, 16}, "BMP");
}

void CatalogueMemoryTest::whatIsNoPictureShowsNothing()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    tests::StandardErrorCapture errors;
    const QIcon icon = gesturewidget::iconFromPng(file);
    QVERIFY(icon.pixmap(16, 16).isNull());
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    icon.paint(&painter, image.rect());
    QCOMPARE(image.pixelColor(8, 8), QColor(Qt::white));
    QCOMPARE(errors.lines(), QStringList());
}

// No single piece of work on the user-interface thread may take long.
void CatalogueMemoryTest::iconsAreDrawnAFewAtATime()
{
    constexpr int kIcons = 40;
    DrawnIcons drawn;
    const auto fill = [&drawn](DraftWindow &window) {
        for (int i = 0; i < kIcons; ++i) {
            const QByteArray name = "command" + QByteArray::number(i);
            QAction *action = DraftWindow::addAction(window.draw, name.constData(), name.constData());
            action->setIcon(QIcon(new SlowIconEngine(drawn)));
        }
    };
    {
        Start start(m_path);
        fill(start.window);
        QVERIFY(start.isWritten());
        QCOMPARE(drawn.all, kIcons);
        // The time for drawing ends while the second of a turn is drawn, or before.
        QVERIFY2(drawn.mostInATurn <= 2, qPrintable(QString::number(drawn.mostInATurn)));
    }
    QVERIFY(file().size() > kIcons);

    Start again(m_path);
    fill(again.window);
    QVERIFY(again.isWritten());
    QCOMPARE(drawn.all, kIcons); // they are in the file
}

QTEST_MAIN(CatalogueMemoryTest)
#include "tst_cataloguememory.moc"
