// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Tests what is reported about a program without a profile, and over which socket.

#include "host/explain/Explanation.h"

#include "host/commands/CommandCatalogue.h"
#include "host/documents/ViewFinder.h"
#include "host/files/ExplanationChannel.h"
#include "host/menus/ToolsMenu.h"
#include "host/services/SystemServices.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIWorkspace.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QGraphicsView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>

using gesturewidget::Explanation;
using gesturewidget::Phrase;
using gesturewidget::ProgramProfile;
using gesturewidget::RememberedCommand;
using gesturewidget::SystemServices;
using tests::DraftWindow;

class ExplainedCanvas : public QWidget
{
    Q_OBJECT
};

class ExplainedScene : public QGraphicsView
{
    Q_OBJECT
};

class ExplanationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void viewsOfItsOwnClass();
    void viewsOfAClassOfQt();
    void severalViewsOfAClass();
    void aProgramWithoutAWindow();
    void viewsThatAProfileNames();
    void aViewThatInheritsANamedClass();
    void whatIsNoView();
    void aTriggerThatFollowsASetting();
    void onlyTheLargestAreTold();
    void toolsMenus();
    void aToolsMenuThatWasMade();
    void commands();
    void commandsOfAnEarlierStart();
    void anActionCalledLikeTheCommand();
    void commandsThatAProfileNames();
    void tellsOnceTheMenusAreComplete();
    void tellsWhatChangesOnly();
    void whatIsNoSocket();
    void anEndThatIsClosed();

private:
    // Begins anew, with what the profile says now and with commands from an earlier start.
    void explain(const QVector<RememberedCommand> &remembered = {});
    QWidget *show(QWidget *central);
    QString lines() const
    {
        QString text(QLatin1Char('\n'));
        const QJsonArray all = m_explanation->report().value(QStringLiteral("lines")).toArray();
        for (const QJsonValue &line : all)
            text += Phrase::fromJson(line).english() + QLatin1Char('\n');
        return text;
    }
    bool says(const char *line) const
    {
        return lines().contains(QLatin1Char('\n') + QLatin1String(line) + QLatin1Char('\n'));
    }
    // The profile that a host would read from the report.
    ProgramProfile reported() const;
    bool hasLine();
    QJsonObject next();

    std::unique_ptr<QTemporaryDir> m_folder;
    tests::StubDocuments m_documents;
    std::unique_ptr<DraftWindow> m_window;
    ProgramProfile m_profile;
    std::unique_ptr<SystemServices> m_services;
    std::unique_ptr<Explanation> m_explanation;
    int m_sockets[2] = {-1, -1};
    QByteArray m_received;
};

void ExplanationTest::init()
{
    tests::resetWarnings();
    m_folder = std::make_unique<QTemporaryDir>();
    m_profile = ProgramProfile();
    m_profile.program = QStringLiteral("drafter");
    m_window = std::make_unique<DraftWindow>();
    m_window->resize(600, 500);
    m_received.clear();
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, m_sockets), 0);
    explain();
}

void ExplanationTest::cleanup()
{
    m_explanation.reset();
    m_services.reset();
    m_window.reset();
    for (const int socket : m_sockets)
        ::close(socket);
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void ExplanationTest::explain(const QVector<RememberedCommand> &remembered)
{
    m_explanation.reset();
    m_services = std::make_unique<SystemServices>(m_window.get(), m_profile, &m_documents,
                                                  m_folder->filePath(QStringLiteral("drafter.ini")));
    m_services->catalogue().remember(remembered);
    m_services->catalogue().guessWellKnown();
    m_explanation = std::make_unique<Explanation>(m_sockets[0], m_profile, *m_services);
}

QWidget *ExplanationTest::show(QWidget *central)
{
    m_window->setCentralWidget(central);
    m_window->show();
    return QTest::qWaitForWindowExposed(m_window.get()) ? central : nullptr;
}

ProgramProfile ExplanationTest::reported() const
{
    QFile file(m_folder->filePath(QStringLiteral("drafter.json")));
    const QJsonObject profile = m_explanation->report().value(QStringLiteral("profile")).toObject();
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(profile).toJson());
    file.close();
    QString message;
    ProgramProfile found =
        ProgramProfile::forProgram(QStringLiteral("drafter"), {m_folder->path()}, &message);
    if (!message.isEmpty())
        qWarning("%s", qPrintable(message));
    return found;
}

// Returns true if a line has arrived over the socket; next() takes it.
bool ExplanationTest::hasLine()
{
    char part[4096];
    for (ssize_t count = 1; count > 0;) {
        count = ::recv(m_sockets[1], part, sizeof part, MSG_DONTWAIT);
        if (count > 0)
            m_received.append(part, static_cast<int>(count));
    }
    return m_received.contains('\n');
}

QJsonObject ExplanationTest::next()
{
    const auto end = static_cast<int>(m_received.indexOf('\n'));
    const QByteArray line = m_received.left(end);
    m_received.remove(0, end + 1);
    return QJsonDocument::fromJson(line).object();
}

void ExplanationTest::viewsOfItsOwnClass()
{
    QWidget *canvas = show(new ExplainedCanvas);
    canvas->setObjectName(QStringLiteral("sheet"));
    m_explanation->addView(canvas);
    m_explanation->addView(canvas);
    QVERIFY2(says("view: ExplainedCanvas \"sheet\", since it paints itself and fills 100 % of the area"),
             qPrintable(lines()));
    QCOMPARE(lines().count(QLatin1String("\nview: ")), 1);
    QCOMPARE(reported().viewClasses, QStringList(QStringLiteral("ExplainedCanvas")));
}

// If a profile named the class, every other widget of that class would become a view too.
void ExplanationTest::viewsOfAClassOfQt()
{
    QWidget *view = show(new QGraphicsView);
    m_explanation->addView(gesturewidget::ViewFinder::pointerWidget(view));
    QVERIFY2(says("view: QGraphicsView, since it is a graphics view"), qPrintable(lines()));
    QVERIFY2(says("view classes: left to be guessed, a class of Qt's own says too little"),
             qPrintable(lines()));
    QCOMPARE(reported().viewClasses, QStringList());
}

void ExplanationTest::severalViewsOfAClass()
{
    auto *both = new QSplitter;
    for (const char *name : {"left", "right"}) {
        auto *canvas = new ExplainedCanvas;
        canvas->setObjectName(QString::fromLatin1(name));
        both->addWidget(canvas);
    }
    show(both);
    for (int i = 0; i < both->count(); ++i)
        m_explanation->addView(both->widget(i));
    QCOMPARE(lines().count(QLatin1String("\nview: ExplainedCanvas")), 2);
    QCOMPARE(reported().viewClasses, QStringList(QStringLiteral("ExplainedCanvas")));
}

void ExplanationTest::aProgramWithoutAWindow()
{
    QCOMPARE(lines().count(QLatin1String("\nwindow: ")), 1);
    QWidget palette; // this is no main window
    palette.resize(300, 300);
    palette.show();
    m_window.reset();
    QCOMPARE(lines().count(QLatin1String("\nwindow: ")), 0);
    QVERIFY2(says("view: none, perhaps before a drawing is open"), qPrintable(lines()));
    QVERIFY2(!lines().contains(QLatin1String("\nno view: ")), qPrintable(lines()));
}

void ExplanationTest::viewsThatAProfileNames()
{
    m_profile.viewClasses = QStringList{QStringLiteral("Other"), QStringLiteral("QGraphicsView")};
    explain();
    QWidget *view = show(new QGraphicsView);
    m_explanation->addView(gesturewidget::ViewFinder::pointerWidget(view));
    QVERIFY2(says("view: QGraphicsView, since the profile names its class QGraphicsView"),
             qPrintable(lines()));
    QCOMPARE(reported().viewClasses,
             QStringList({QStringLiteral("Other"), QStringLiteral("QGraphicsView")}));
}

void ExplanationTest::aViewThatInheritsANamedClass()
{
    m_profile.viewClasses = QStringList{QStringLiteral("QGraphicsView")};
    explain();
    QWidget *view = show(new ExplainedScene);
    m_explanation->addView(gesturewidget::ViewFinder::pointerWidget(view));
    QVERIFY2(says("view: ExplainedScene, since the profile names its class QGraphicsView"),
             qPrintable(lines()));
    QCOMPARE(reported().viewClasses, QStringList(QStringLiteral("QGraphicsView")));
}

void ExplanationTest::whatIsNoView()
{
    auto *plain = new QFrame;
    plain->setObjectName(QStringLiteral("welcome"));
    show(plain);
    QVERIFY2(says("view: none, perhaps before a drawing is open"), qPrintable(lines()));
    QVERIFY2(says("no view: QFrame \"welcome\", since it is a start page by its name"),
             qPrintable(lines()));
    QCOMPARE(reported().viewClasses, QStringList());
}

// The line says what starts a gesture now; the profile still follows the setting.
void ExplanationTest::aTriggerThatFollowsASetting()
{
    const QJsonObject setting{{QStringLiteral("file"), QStringLiteral("a.cfg")},
                              {QStringLiteral("before"), QStringLiteral("<")},
                              {QStringLiteral("behind"), QStringLiteral(">")}};
    const QJsonObject fixed{{QStringLiteral("button"), QStringLiteral("middle")}};
    m_profile.triggerBySetting = setting;
    m_profile.fixedTriggers.insert(QStringLiteral("trigger"), fixed);
    explain();
    m_explanation->noteTrigger(Qt::RightButton, Qt::ControlModifier,
                               Phrase::verbatim(QStringLiteral("it is set so")));
    QVERIFY2(says("trigger: ctrl+right, since it is set so"), qPrintable(lines()));
    const QJsonObject profile = m_explanation->report().value(QStringLiteral("profile")).toObject();
    QCOMPARE(profile.value(QStringLiteral("trigger")), QJsonValue(fixed));
    QCOMPARE(profile.value(QStringLiteral("triggerBySetting")), QJsonValue(setting));
}

// Of equal ones, in the order of their classes.
void ExplanationTest::onlyTheLargestAreTold()
{
    auto *central = new QWidget;
    const auto add = [central](QWidget *widget, const char *name, int width, int height) {
        widget->setObjectName(QString::fromLatin1(name));
        widget->setParent(central);
        widget->setGeometry(0, 0, width, height);
        return widget;
    };
    add(new QLabel, "narrow", 99, 400);
    add(new QLabel, "low", 400, 99);
    add(new QLabel, "least", 100, 100);
    add(new QLabel, "third", 150, 150);
    add(new QFrame, "second", 150, 150);
    add(new QLabel, "first", 300, 160);
    add(new QLabel, "fourth", 140, 140);
    add(new QLabel, "fifth", 130, 130);
    QWidget *hidden = add(new QLabel, "hidden", 350, 350);
    hidden->setVisible(false);
    central->setObjectName(QStringLiteral("all"));
    m_window->setObjectName(QStringLiteral("window"));
    show(central);
    QStringList told;
    const QStringList all = lines().split(QLatin1Char('\n'));
    for (const QString &line : all) {
        if (line.startsWith(QStringLiteral("no view: ")))
            told << line.section(QLatin1Char('"'), 1, 1);
    }
    QCOMPARE(told, (QStringList{QStringLiteral("window"), QStringLiteral("all"), QStringLiteral("first"),
                                QStringLiteral("second"), QStringLiteral("third")}));
}

void ExplanationTest::toolsMenus()
{
    QVERIFY2(says("Tools menu: one is made, since no menu of the menu bar is called Tools"),
             qPrintable(lines()));
    QCOMPARE(reported().toolsMenu, QString());

    m_window->addMenu("&Tools", "");
    QVERIFY2(says("Tools menu: Tools, since its caption \"Tools\" says so"), qPrintable(lines()));
    QCOMPARE(reported().toolsMenu, QStringLiteral("Tools"));

    m_profile.toolsMenu = QStringLiteral("drawMenu");
    explain();
    QVERIFY2(says("Tools menu: drawMenu, since the profile names it"), qPrintable(lines()));
    QCOMPARE(reported().toolsMenu, QStringLiteral("drawMenu"));

    m_profile.toolsMenu = QStringLiteral("Draw");
    explain();
    QVERIFY2(says("Tools menu: drawMenu, since the profile names it"), qPrintable(lines()));

    // Nothing is called as the profile says.
    m_profile.toolsMenu = QStringLiteral("Extras");
    explain();
    QVERIFY2(says("Tools menu: Tools, since its caption \"Tools\" says so"), qPrintable(lines()));
}

void ExplanationTest::aToolsMenuThatWasMade()
{
    QVERIFY(m_services->GetUIManager()->NewWorkspaceIterator()->Current()->GetMenuItems());
    QVERIFY(m_services->toolsMenu().made());
    QVERIFY2(says("Tools menu: one is made, since no menu of the menu bar is called Tools"),
             qPrintable(lines()));
    QCOMPARE(reported().toolsMenu, QString());
}

void ExplanationTest::commands()
{
    QVERIFY2(says("ID_OPEN: fileOpen, since object name \"fileOpen\", caption \"Open...\""),
             qPrintable(lines()));
    QVERIFY2(says("ID_LINE: drawLine, since object name \"drawLine\", caption \"Line\""),
             qPrintable(lines()));
    QVERIFY2(
        says("ID_SAVE: none, since no action has a matching shortcut, icon, object name or caption"),
        qPrintable(lines()));
    const QHash<QString, QStringList> found = reported().wellKnownCommands;
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.value(QStringLiteral("ID_LINE")), QStringList(QStringLiteral("drawLine")));
    QCOMPARE(found.value(QStringLiteral("ID_OPEN")), QStringList(QStringLiteral("fileOpen")));
}

// A guess is made once, so its reason is found anew, if there still is one.
void ExplanationTest::commandsOfAnEarlierStart()
{
    const auto known = [](const char *identifier, const char *key) {
        RememberedCommand command;
        command.identifier = QString::fromLatin1(identifier);
        command.command = QString::fromLatin1(key);
        return command;
    };
    explain({known("ID_LINE", "drawLine"), known("ID_TRIM", "drawCircle")});
    QVERIFY2(says("ID_LINE: drawLine, since object name \"drawLine\", caption \"Line\""),
             qPrintable(lines()));
    QVERIFY2(says("ID_TRIM: drawCircle, since chosen at an earlier start"), qPrintable(lines()));
}

void ExplanationTest::anActionCalledLikeTheCommand()
{
    DraftWindow::addAction(m_window->file, "&Save", "ID_SAVE");
    QVERIFY2(says("ID_SAVE: ID_SAVE, since the action itself is called so"), qPrintable(lines()));
    // A profile need not say that.
    QVERIFY(!reported().wellKnownCommands.contains(QStringLiteral("ID_SAVE")));
}

void ExplanationTest::commandsThatAProfileNames()
{
    const QHash<QString, QStringList> named{
        {QStringLiteral("ID_LINE"), {QStringLiteral("sketchLine"), QStringLiteral("drawLine")}},
        {QStringLiteral("ID_TRIM"), {QStringLiteral("modifyTrim")}},
        {QStringLiteral("ID_ROUND"), {QStringLiteral("drawCircle")}}};
    m_profile.wellKnownCommands = named;
    explain();
    QVERIFY2(says("ID_LINE: drawLine, since the profile names it"), qPrintable(lines()));
    QVERIFY2(says("ID_ROUND: drawCircle, since the profile names it"), qPrintable(lines()));
    QVERIFY2(says("ID_TRIM: none, since the profile names modifyTrim, which is not there at the moment"),
             qPrintable(lines()));
    // Guesses are added to what the profile says.
    QHash<QString, QStringList> expected = named;
    expected.insert(QStringLiteral("ID_OPEN"), {QStringLiteral("fileOpen")});
    QCOMPARE(reported().wellKnownCommands, expected);
}

void ExplanationTest::tellsOnceTheMenusAreComplete()
{
    QWidget *canvas = show(new ExplainedCanvas);
    m_explanation->addView(canvas);
    m_explanation->menusSettled();
    QTRY_VERIFY(hasLine());
    const QJsonObject told = next();
    QCOMPARE(told, m_explanation->report());
    QCOMPARE(told.value(QStringLiteral("views")), QJsonValue(1));
}

void ExplanationTest::tellsWhatChangesOnly()
{
    QWidget *canvas = show(new ExplainedCanvas);
    m_explanation->menusSettled();
    QTRY_VERIFY(hasLine());
    QCOMPARE(next().value(QStringLiteral("views")), QJsonValue(0));
    // This change of the menus does not change the report, so the next line is about the view.
    m_window->addMenu("&View", "viewMenu");
    m_explanation->addView(canvas);
    QTRY_VERIFY(hasLine());
    QCOMPARE(next().value(QStringLiteral("views")), QJsonValue(1));
    DraftWindow::addAction(m_window->file, "&Save", "fileSave");
    QTRY_VERIFY(hasLine());
    QVERIFY(next()
                .value(QStringLiteral("profile"))
                .toObject()
                .value(QStringLiteral("wellKnownCommands"))
                .toObject()
                .contains(QStringLiteral("ID_SAVE")));
}

void ExplanationTest::whatIsNoSocket()
{
    const int file = ::open("/dev/null", O_RDWR);
    for (const QByteArray &value :
         {QByteArray(), QByteArray("x"), QByteArray("-1"), QByteArray("0"), QByteArray("2"),
          QByteArray("99999"), QByteArray::number(file), QByteArray("3x"), QByteArray("3:")})
        QCOMPARE(gesturewidget::explanationSocket(value), -1);
    QCOMPARE(gesturewidget::explanationValue(file), QByteArray());
    ::close(file);
    // A socket that somebody else made, such as that of an X connection.
    const QByteArray value = gesturewidget::explanationValue(m_sockets[0]);
    const QByteArray number = QByteArray::number(m_sockets[0]);
    const QByteArray inode = value.mid(value.indexOf(':'));
    for (const QByteArray &other : {number, number + ':', number + ":1", value + '0', value + ' ',
                                    ' ' + value, QByteArray::number(m_sockets[1]) + inode})
        QCOMPARE(gesturewidget::explanationSocket(other), -1);
    QVERIFY(!(::fcntl(m_sockets[0], F_GETFD) & FD_CLOEXEC));
    QCOMPARE(gesturewidget::explanationSocket(value), m_sockets[0]);
    QVERIFY(::fcntl(m_sockets[0], F_GETFD) & FD_CLOEXEC);
    QVERIFY(!gesturewidget::tell(-1, {}));
}

// Nobody listens any more. A signal would end the program.
void ExplanationTest::anEndThatIsClosed()
{
    ::close(m_sockets[1]);
    m_sockets[1] = -1;
    QVERIFY(!gesturewidget::tell(m_sockets[0], {{QStringLiteral("process"), 1}}));
}

QTEST_MAIN(ExplanationTest)
#include "tst_explanation.moc"
