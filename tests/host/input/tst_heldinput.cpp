// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/HeldInput.h"
#include "tests/host/support/LoggingView.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include <functional>
#include <vector>

using gesturewidget::HeldInput;

namespace {

// A window without widgets, such as one of a 3D view. Calls for each button event that it gets.
class BareWindow : public QWindow
{
public:
    std::function<void(const QEvent &event)> onButton;

protected:
    bool event(QEvent *event) override
    {
        const bool isButton =
            event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
        if (isButton && onButton)
            onButton(*event);
        return QWindow::event(event);
    }
};

void holdClick(HeldInput &held, QWindow *window)
{
    const QPointF at(50, 50);
    held.hold(window, QMouseEvent(QEvent::MouseButtonPress, at, at, at, Qt::LeftButton, Qt::LeftButton,
                                  Qt::NoModifier));
    held.hold(window, QMouseEvent(QEvent::MouseButtonRelease, at, at, at, Qt::LeftButton, Qt::NoButton,
                                  Qt::NoModifier));
}

} // namespace

class HeldInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    // A hand may tremble for hours before it drags.
    void keepsTheNewestOfTooManyMovements();
    void aModalWindowKeepsInputFromOthers_data();
    void aModalWindowKeepsInputFromOthers();
    void aModalWindowKeepsInputFromBareWindows_data() { aModalWindowKeepsInputFromOthers_data(); }
    void aModalWindowKeepsInputFromBareWindows();
    void aPopupLetsInputPassAModalWindow();
    void onlyTheEventThatIsSentIsSending();
    void aWindowThatIsGoneGetsNothing();
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

// As Qt does with input from the window system.
void HeldInputTest::aModalWindowKeepsInputFromOthers_data()
{
    QTest::addColumn<int>("modality");
    QTest::addColumn<QString>("parent"); // of the modal window
    QTest::addColumn<QString>("place"); // where the input goes
    QTest::addColumn<bool>("isSeen");
    const auto row = [](const char *name, Qt::WindowModality modality, const char *parent,
                        const char *place, bool isSeen) {
        QTest::newRow(name) << int(modality) << QString::fromLatin1(parent) << QString::fromLatin1(place)
                            << isSeen;
    };
    row("no modality", Qt::NonModal, "window", "window", true);
    row("of the program", Qt::ApplicationModal, "other", "window", false);
    row("of its window", Qt::WindowModal, "window", "window", false);
    row("of its window, nested", Qt::WindowModal, "window", "nested", false);
    row("of another window", Qt::WindowModal, "other", "window", true);
    row("the modal window itself", Qt::ApplicationModal, "other", "modal", true);
    row("a window of the modal one", Qt::ApplicationModal, "other", "child", true);
}

void HeldInputTest::aModalWindowKeepsInputFromOthers()
{
    QFETCH(int, modality);
    QFETCH(QString, parent);
    QFETCH(QString, place);
    QFETCH(bool, isSeen);
    QWidget window;
    QWidget other;
    QDialog dialog(parent == QStringLiteral("window") ? &window : &other);
    dialog.setWindowModality(static_cast<Qt::WindowModality>(modality));
    QDialog child(&dialog);
    QWidget *home = place == QStringLiteral("modal") ? &dialog
                  : place == QStringLiteral("child") ? &child
                                                     : &window;
    auto *view = new tests::LoggingView(home);
    view->resize(100, 100);
    if (place == QStringLiteral("nested"))
        view->setAttribute(Qt::WA_NativeWindow);
    for (QWidget *one :
         {&window, &other, static_cast<QWidget *>(&dialog), static_cast<QWidget *>(&child)}) {
        one->resize(200, 200);
        one->show();
        QVERIFY(QTest::qWaitForWindowExposed(one));
    }
    QWindow *target = view->windowHandle() ? view->windowHandle() : home->windowHandle();
    QCOMPARE(view->windowHandle() != nullptr, place == QStringLiteral("nested"));
    view->log.clear();
    HeldInput held;
    holdClick(held, target);
    held.replay();
    QCOMPARE(view->log.filter(QStringLiteral("MouseButton")).size(), isSeen ? 2 : 0);
    // Qt learns of the release in any case.
    QCOMPARE(QGuiApplication::mouseButtons(), Qt::MouseButtons(Qt::NoButton));
}

// Qt does not ask again for windows without widgets, as it does for widgets.
void HeldInputTest::aModalWindowKeepsInputFromBareWindows()
{
    QFETCH(int, modality);
    QFETCH(QString, parent);
    QFETCH(QString, place);
    QFETCH(bool, isSeen);
    BareWindow window;
    BareWindow other;
    BareWindow modal;
    BareWindow child;
    BareWindow nested;
    nested.setParent(&window);
    modal.setModality(static_cast<Qt::WindowModality>(modality));
    modal.setTransientParent(parent == QStringLiteral("window") ? &window : &other);
    child.setTransientParent(&modal);
    for (BareWindow *one : {&window, &other, &nested, &modal, &child}) {
        one->resize(200, 200);
        one->show();
    }
    BareWindow *target = place == QStringLiteral("modal")  ? &modal
                       : place == QStringLiteral("child")  ? &child
                       : place == QStringLiteral("nested") ? &nested
                                                           : &window;
    int buttons = 0;
    target->onButton = [&buttons](const QEvent &) { ++buttons; };
    HeldInput held;
    holdClick(held, target);
    held.replay();
    QCOMPARE(buttons, isSeen ? 2 : 0);
}

void HeldInputTest::aPopupLetsInputPassAModalWindow()
{
    BareWindow window;
    QDialog dialog;
    dialog.setModal(true);
    QMenu menu;
    menu.addAction(QStringLiteral("first"));
    window.show();
    dialog.show();
    menu.popup(QPoint(0, 0));
    int buttons = 0;
    window.onButton = [&buttons](const QEvent &) { ++buttons; };
    HeldInput held;
    holdClick(held, &window);
    held.replay();
    QCOMPARE(buttons, 2);
}

// Another event may get the address of one that was sent.
void HeldInputTest::onlyTheEventThatIsSentIsSending()
{
    BareWindow window;
    window.show();
    HeldInput held;
    std::vector<const QEvent *> sent;
    bool isSending = true;
    window.onButton = [&](const QEvent &event) {
        sent.push_back(&event);
        isSending = isSending && held.isSending(&event);
    };
    holdClick(held, &window);
    held.replay();
    QCOMPARE(sent.size(), std::size_t(2));
    QVERIFY(isSending);
    for (const QEvent *event : sent)
        QVERIFY(!held.isSending(event));
}

void HeldInputTest::aWindowThatIsGoneGetsNothing()
{
    HeldInput held;
    {
        QWindow window;
        const QPointF at(50, 50);
        held.hold(&window, QMouseEvent(QEvent::MouseMove, at, at, at, Qt::NoButton, Qt::NoButton,
                                       Qt::NoModifier));
        held.hold(&window, QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier));
    }
    held.replay();
    QVERIFY(!held.hasRest());
}

QTEST_MAIN(HeldInputTest)
#include "tst_heldinput.moc"
