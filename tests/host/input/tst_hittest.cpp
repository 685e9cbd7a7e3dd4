// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/DocumentManager.h"
#include "host/input/HitTest.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <functional>

using gesturewidget::HitTest;
using gesturewidget::Trigger;

namespace {

using Kind = HitTest::Kind;
using Role = HitTest::Role;

HitTest::Event seenAs(Kind kind, Role role = Role::Gesture, Qt::MouseButtons buttons = Qt::RightButton)
{
    HitTest::Event result;
    result.kind = kind;
    result.role = role;
    result.position = QPoint(30, 40);
    result.button = kind == Kind::Press ? Qt::RightButton : Qt::NoButton;
    result.buttons = buttons;
    return result;
}

} // namespace

Q_DECLARE_METATYPE(HitTest::Event)

class HitTestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void answers_data();
    void answers();
    void triggerWithModifiers_data();
    void triggerWithModifiers();
    void otherTrigger();
    void controls();
    void blockedView();
    void modalWindow();
    void dialogOfAnotherWindow_data();
    void dialogOfAnotherWindow();
    void popup();
    void grabbedMouse();
    void endOfAGestureIsNeverSuppressed();
    void notifications();
    void documentThatIsGone();
    void withoutADocument();

private:
    std::unique_ptr<QWidget> m_view;
    std::unique_ptr<gesturewidget::DocumentManager> m_documents;
    gesturewidget::Document *m_document = nullptr;
    Trigger m_trigger;
};

void HitTestTest::init()
{
    tests::resetWarnings();
    m_view = std::make_unique<QWidget>();
    m_view->resize(200, 200);
    m_view->show();
    m_documents = std::make_unique<gesturewidget::DocumentManager>();
    m_document = m_documents->open(m_view.get());
    m_trigger = {};
}

void HitTestTest::cleanup()
{
    m_view.reset();
    m_documents.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void HitTestTest::answers_data()
{
    QTest::addColumn<HitTest::Event>("seen");
    QTest::addColumn<bool>("isPress");
    QTest::addColumn<bool>("isMotion");
    QTest::addColumn<bool>("isHeld");
    QTest::addColumn<bool>("isOther");

    QTest::newRow("press") << seenAs(Kind::Press) << true << false << true << false;
    QTest::newRow("drag") << seenAs(Kind::Motion) << false << true << true << false;
    QTest::newRow("hover") << seenAs(Kind::Motion, Role::Program, Qt::NoButton) << false << true << false
                           << false;
    QTest::newRow("release") << seenAs(Kind::Other, Role::Gesture, Qt::NoButton) << false << false
                             << false << false;
    QTest::newRow("trigger of the program")
        << seenAs(Kind::Motion, Role::Program) << false << true << false << true;
    QTest::newRow("press of the program")
        << seenAs(Kind::Press, Role::Program) << true << false << false << true;
    QTest::newRow("left drag") << seenAs(Kind::Motion, Role::Program, Qt::LeftButton) << false << true
                               << false << true;
    QTest::newRow("second button in a gesture")
        << seenAs(Kind::Motion, Role::Gesture, Qt::LeftButton | Qt::RightButton) << false << true << true
        << true;
    QTest::newRow("end with the button held")
        << seenAs(Kind::Motion, Role::GestureEnd) << false << true << true << false;
    QTest::newRow("end with another button")
        << seenAs(Kind::Motion, Role::GestureEnd, Qt::LeftButton) << false << true << false << false;

    HitTest::Event left = seenAs(Kind::Press, Role::Program, Qt::LeftButton);
    left.button = Qt::LeftButton;
    QTest::newRow("left press") << left << false << false << false << true;
}

void HitTestTest::answers()
{
    QFETCH(HitTest::Event, seen);
    HitTest hit(m_document, m_trigger, seen);
    QCOMPARE(hit.GetPosition(), QPoint(30, 40));
    QCOMPARE(hit.GetDocument(), static_cast<CHxDocument *>(m_document));
    QTEST(hit.IsPress(), "isPress");
    QTEST(hit.IsMotion(), "isMotion");
    QTEST(hit.IsButtonHeld(), "isHeld");
    QTEST(hit.IsOtherButtonDown(), "isOther");
    QVERIFY(!hit.IsModalWindowOpen());
    QVERIFY(!hit.IsPopupOpen());
    QVERIFY(!hit.IsMouseGrabbed());
    QVERIFY(!hit.IsModifierMismatch());
    QVERIFY(!hit.IsOverControl());
    QVERIFY(!hit.IsViewBlocked());
    QTEST(hit.isSuppressed(), "isOther");
}

void HitTestTest::triggerWithModifiers_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("held");
    QTest::addColumn<bool>("isMismatch");
    QTest::newRow("none") << 0 << 0 << false;
    QTest::newRow("one too many") << 0 << int(Qt::ShiftModifier) << true;
    QTest::newRow("one missing") << int(Qt::ControlModifier) << 0 << true;
    QTest::newRow("another") << int(Qt::ControlModifier) << int(Qt::AltModifier) << true;
    QTest::newRow("exactly") << int(Qt::ControlModifier | Qt::AltModifier)
                             << int(Qt::ControlModifier | Qt::AltModifier) << false;
    QTest::newRow("keypad") << 0 << int(Qt::KeypadModifier) << false;
    QTest::newRow("second layout") << 0 << int(Qt::GroupSwitchModifier) << false;
}

void HitTestTest::triggerWithModifiers()
{
    QFETCH(int, wanted);
    QFETCH(int, held);
    QFETCH(bool, isMismatch);
    m_trigger.modifiers = Qt::KeyboardModifiers(wanted);
    HitTest::Event press = seenAs(Kind::Press);
    press.modifiers = Qt::KeyboardModifiers(held);
    QCOMPARE(HitTest(m_document, m_trigger, press).IsModifierMismatch(), isMismatch);
    QCOMPARE(HitTest(m_document, m_trigger, press).isSuppressed(), isMismatch);
    // Keys that are pressed or released later do not matter.
    HitTest::Event motion = seenAs(Kind::Motion);
    motion.modifiers = press.modifiers;
    QVERIFY(!HitTest(m_document, m_trigger, motion).IsModifierMismatch());
}

void HitTestTest::otherTrigger()
{
    m_trigger.button = Qt::MiddleButton;
    HitTest::Event press = seenAs(Kind::Press, Role::Gesture, Qt::MiddleButton);
    QVERIFY(!HitTest(m_document, m_trigger, press).IsPress());
    press.button = Qt::MiddleButton;
    QVERIFY(HitTest(m_document, m_trigger, press).IsPress());
    QVERIFY(HitTest(m_document, m_trigger, press).IsButtonHeld());
    const HitTest::Event right = seenAs(Kind::Motion);
    QVERIFY(!HitTest(m_document, m_trigger, right).IsButtonHeld());
    QVERIFY(HitTest(m_document, m_trigger, right).IsOtherButtonDown());
}

void HitTestTest::controls()
{
    QLineEdit control(m_view.get());
    control.setGeometry(20, 30, 50, 20);
    control.show();
    const HitTest::Event press = seenAs(Kind::Press);
    QVERIFY(HitTest(m_document, m_trigger, press).IsOverControl());
    QVERIFY(HitTest(m_document, m_trigger, press).isSuppressed());
    const HitTest::Event motion = seenAs(Kind::Motion);
    QVERIFY(!HitTest(m_document, m_trigger, motion).IsOverControl());
    control.move(100, 100);
    QVERIFY(!HitTest(m_document, m_trigger, press).IsOverControl());
    // A widget that lets the pointer through is not a control.
    control.move(20, 30);
    control.setAttribute(Qt::WA_TransparentForMouseEvents);
    QVERIFY(!HitTest(m_document, m_trigger, press).IsOverControl());
}

void HitTestTest::blockedView()
{
    const HitTest::Event motion = seenAs(Kind::Motion);
    m_view->setEnabled(false);
    QVERIFY(HitTest(m_document, m_trigger, motion).IsViewBlocked());
    QVERIFY(HitTest(m_document, m_trigger, motion).isSuppressed());
    QVERIFY(HitTest(nullptr, m_trigger, motion).IsViewBlocked());
}

void HitTestTest::dialogOfAnotherWindow_data()
{
    QTest::addColumn<int>("modality");
    QTest::addColumn<bool>("isOfView"); // the dialog belongs to the view's window
    QTest::addColumn<bool>("blocks");
    QTest::newRow("of the program") << int(Qt::ApplicationModal) << false << true;
    QTest::newRow("of the view's window") << int(Qt::WindowModal) << true << true;
    QTest::newRow("of another window") << int(Qt::WindowModal) << false << false;
}

// The dialog of a window leaves the other windows usable.
void HitTestTest::dialogOfAnotherWindow()
{
    QFETCH(int, modality);
    QFETCH(bool, isOfView);
    QFETCH(bool, blocks);
    QWidget other;
    other.show();
    QDialog dialog(isOfView ? m_view.get() : &other);
    dialog.setWindowModality(Qt::WindowModality(modality));
    dialog.show();
    QVERIFY(QGuiApplication::modalWindow());
    const HitTest::Event motion = seenAs(Kind::Motion);
    QCOMPARE(HitTest(m_document, m_trigger, motion).IsModalWindowOpen(), blocks);
    // Of two dialogs, the newer one does not hide the older.
    QDialog newer(&other);
    newer.setWindowModality(Qt::WindowModal);
    newer.show();
    QCOMPARE(HitTest(m_document, m_trigger, motion).IsModalWindowOpen(), blocks);
    dialog.hide();
    QVERIFY(!HitTest(m_document, m_trigger, motion).IsModalWindowOpen());
}

void HitTestTest::modalWindow()
{
    QDialog dialog(m_view.get());
    dialog.open();
    const HitTest::Event motion = seenAs(Kind::Motion);
    QVERIFY(HitTest(m_document, m_trigger, motion).IsModalWindowOpen());
    QVERIFY(HitTest(m_document, m_trigger, motion).isSuppressed());
}

void HitTestTest::popup()
{
    QMenu menu;
    menu.addAction(QStringLiteral("first"));
    menu.popup(QPoint(0, 0));
    const HitTest::Event motion = seenAs(Kind::Motion);
    QVERIFY(HitTest(m_document, m_trigger, motion).IsPopupOpen());
    QVERIFY(HitTest(m_document, m_trigger, motion).isSuppressed());
}

void HitTestTest::grabbedMouse()
{
    m_view->grabMouse();
    const HitTest::Event motion = seenAs(Kind::Motion);
    QVERIFY(HitTest(m_document, m_trigger, motion).IsMouseGrabbed());
    QVERIFY(HitTest(m_document, m_trigger, motion).isSuppressed());
    m_view->releaseMouse();
}

void HitTestTest::endOfAGestureIsNeverSuppressed()
{
    QDialog dialog(m_view.get());
    dialog.open();
    QMenu menu;
    menu.addAction(QStringLiteral("first"));
    menu.popup(QPoint(0, 0));
    m_view->grabMouse();
    m_view->setEnabled(false);
    const HitTest::Event end = seenAs(Kind::Motion, Role::GestureEnd, Qt::LeftButton | Qt::RightButton);
    QVERIFY(!HitTest(m_document, m_trigger, end).isSuppressed());
    QVERIFY(!HitTest(nullptr, m_trigger, end).isSuppressed());
    m_view->releaseMouse();
}

void HitTestTest::notifications()
{
    const HitTest::Event motion = seenAs(Kind::Motion);
    HitTest hit(m_document, m_trigger, motion);
    QVERIFY(!hit.dragNotified());
    hit.NotifyEnd();
    QVERIFY(!hit.dragNotified());
    hit.NotifyDrag();
    QVERIFY(hit.dragNotified());
}

void HitTestTest::documentThatIsGone()
{
    m_view.reset();
    const HitTest::Event motion = seenAs(Kind::Motion);
    QCOMPARE(HitTest(m_document, m_trigger, motion).GetDocument(), nullptr);
    QVERIFY(HitTest(m_document, m_trigger, motion).IsViewBlocked());
    QVERIFY(!HitTest(m_document, m_trigger, seenAs(Kind::Press)).IsOverControl());
}

// A gesture may end after its document.
void HitTestTest::withoutADocument()
{
    const HitTest::Event press = seenAs(Kind::Press);
    HitTest hit(nullptr, m_trigger, press);
    QCOMPARE(hit.GetDocument(), nullptr);
    QVERIFY(hit.IsViewBlocked());
    QVERIFY(!hit.IsOverControl());
    QVERIFY(!hit.IsModalWindowOpen());
    QVERIFY(hit.isSuppressed());
    // A dialog of any window may be above it.
    QWidget window;
    window.show();
    QDialog dialog(&window);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(hit.IsModalWindowOpen());
}

QTEST_MAIN(HitTestTest)
#include "tst_hittest.moc"
