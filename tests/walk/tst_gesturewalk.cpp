// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "tests/support/FatalWarnings.h"
#include "tests/support/HastyClock.h"
#include "tests/walk/DrawingDesk.h"
#include "tests/walk/GestureRules.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <ostream>

using tests::BareDesk;
using tests::DrawingDesk;
using tests::GestureDesk;
using tests::GestureRules;
using tests::Step;

namespace {

// What somebody wants to do. Where and with what is decided when it comes to that.
struct Act
{
    Step::Kind kind;
    int x; // pixels from the press, or from the last press
    int y;
    unsigned which; // button or key
};

std::ostream &operator<<(std::ostream &out, const Act &act)
{
    return out << "\n    " << Step{act.kind, QPoint(act.x, act.y), {}, {}, int(act.which), {}};
}

// The longest walks. RapidCheck makes walks of all lengths up to this.
constexpr int kLongestWalk = 600;

rc::Gen<Step::Kind> someKind()
{
    return rc::gen::weightedElement<Step::Kind>({{40, Step::Move},
                                                 {30, Step::Press},
                                                 {12, Step::Release},
                                                 {1, Step::DoubleClick},
                                                 {4, Step::KeyPress},
                                                 {1, Step::KeyRepeat},
                                                 {8, Step::KeyRelease},
                                                 {1, Step::Wheel},
                                                 {1, Step::SwitchGestures},
                                                 {1, Step::SwitchScheme},
                                                 {1, Step::ShowDialog},
                                                 {1, Step::ShowPopup},
                                                 {1, Step::ReplaceView},
                                                 {1, Step::HideRing},
                                                 {1, Step::DestroyRing},
                                                 {1, Step::Cancel}});
}

// Movements on both sides of what opens a ring, belongs to the program and runs a command.
const std::vector<int> kBorders = {0, 20, 21, 40, 41, 69, 70, -20, -21, -40, -41, -69, -70};

// Small movements, those that open a ring, and those that run a command.
rc::Gen<int> someWay()
{
    return rc::gen::weightedOneOf<int>({{2, rc::gen::inRange(-12, 13)},
                                        {4, rc::gen::inRange(-50, 51)},
                                        {2, rc::gen::inRange(-72, 73)},
                                        {1, rc::gen::elementOf(kBorders)},
                                        {1, rc::gen::inRange(-400, 401)}});
}

rc::Gen<Act> someAct()
{
    return rc::gen::build<Act>(rc::gen::set(&Act::kind, someKind()), rc::gen::set(&Act::x, someWay()),
                               rc::gen::set(&Act::y, someWay()),
                               rc::gen::set(&Act::which, rc::gen::inRange(0U, 42U)));
}

// The trigger most of the time.
Qt::MouseButton buttonOf(unsigned which)
{
    if (which == 40)
        return Qt::LeftButton;
    return which == 41 ? Qt::MiddleButton : Qt::RightButton;
}

int keyOf(unsigned which)
{
    static constexpr std::array kKeys = {Qt::Key_Control, Qt::Key_Shift, Qt::Key_A,
                                         Qt::Key_L,       Qt::Key_A,     Qt::Key_L};
    return kKeys.at(which % kKeys.size());
}

Qt::KeyboardModifier modifierOf(int key)
{
    if (key == Qt::Key_Control)
        return Qt::ControlModifier;
    return key == Qt::Key_Shift ? Qt::ShiftModifier : Qt::NoModifier;
}

QPoint within(const QRect &area, const QPoint &point)
{
    return {std::clamp(point.x(), area.left(), area.right()),
            std::clamp(point.y(), area.top(), area.bottom())};
}

// One walk: a desk with gestures beside the rules.
class Walk
{
public:
    Walk()
        : m_rules(DrawingDesk::viewArea(), DrawingDesk::controlArea())
    {
        take(stepOf({Step::Move, 200, 200, 0}));
    }

    void act(const Act &act)
    {
        // They are on most of the time.
        if (act.kind == Step::SwitchGestures && m_rules.areGesturesOn() && act.which > 10)
            return;
        const Step step = stepOf(act);
        if (m_rules.isPossible(step))
            take(step);
    }

    // Lets go of everything.
    void end()
    {
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton, Qt::MiddleButton}) {
            if (m_rules.buttons() & button)
                take(ready({Step::Release, m_rules.position(), button, {}, 0, {}}));
        }
        for (const int key : std::set<int>(m_rules.keys()))
            take(ready({Step::KeyRelease, m_rules.position(), Qt::NoButton, {}, key, {}}));
        RC_ASSERT(m_rules.state() == GestureRules::State::Idle);
        const bool isEachCommandRight = m_desk.commands() == m_rules.commands();
        RC_ASSERT(isEachCommandRight);
    }

    [[nodiscard]] const GestureRules &rules() const { return m_rules; }
    [[nodiscard]] const QStringList &log() const { return m_desk.log(); }

private:
    [[nodiscard]] Step stepOf(const Act &act) const
    {
        const QPoint start = m_rules.buttons() ? m_rules.pressPosition() : QPoint(200, 200);
        // Of the buttons that are down, the other ones do not stay so for long.
        const Qt::MouseButtons others = m_rules.buttons() & ~Qt::MouseButtons(Qt::RightButton);
        const Qt::MouseButton button =
            act.kind == Step::Release && others && act.which % 2 == 0
                ? Qt::MouseButton(others & Qt::LeftButton ? Qt::LeftButton : Qt::MiddleButton)
                : buttonOf(act.which);
        const QPoint position = act.kind == Step::Move
                                  ? within(DrawingDesk::reach(), start + QPoint(act.x, act.y))
                                  : m_rules.position();
        return ready({act.kind, position, button, {}, keyOf(act.which), {}});
    }

    // Fills in what is down after the step.
    [[nodiscard]] Step ready(Step step) const
    {
        step.buttons = m_rules.buttons();
        step.modifiers = m_rules.modifiers();
        if (step.kind == Step::Press)
            step.buttons |= step.button;
        else if (step.kind == Step::Release)
            step.buttons &= ~Qt::MouseButtons(step.button);
        else if (step.kind == Step::KeyPress)
            step.modifiers |= modifierOf(step.key);
        else if (step.kind == Step::KeyRelease)
            step.modifiers &= ~Qt::KeyboardModifiers(modifierOf(step.key));
        return step;
    }

    void take(const Step &step)
    {
        m_last = step;
        m_rules.take(step);
        m_desk.perform(step);
        check();
    }

    void check() const
    {
        const bool isGesturing = m_rules.state() == GestureRules::State::Gesturing;
        const MgDonutDialogPVStyleImpl *ring = m_desk.ring();
        const QWidget *grabber = isGesturing ? ring : nullptr;
        const bool grabsAreRight =
            QWidget::mouseGrabber() == grabber && QWidget::keyboardGrabber() == grabber;
        RC_LOG() << "after " << m_last << std::endl;
        RC_ASSERT(int(m_desk.state()) == int(m_rules.state()));
        const bool isOpen = ring && ring->isVisible() && ring->gesturing;
        const bool isClosed = !ring || !(ring->isVisible() || ring->gesturing || ring->armed);
        const bool isRingRight = isGesturing ? isOpen : isClosed;
        RC_ASSERT(isRingRight);
        RC_ASSERT(grabsAreRight);
        RC_ASSERT(int(m_desk.host().mode) == (isGesturing ? 1 : int(GestureDesk::kOwnMode)));
        RC_ASSERT(int(m_desk.cursor()) == int(isGesturing ? Qt::ArrowCursor : GestureDesk::kOwnCursor));
        RC_ASSERT(m_desk.host().text.toStdString() == m_rules.litCommand().toUpper().toStdString());
        RC_ASSERT(m_desk.commands().size() == m_rules.commands().size());
    }

    GestureRules m_rules;
    GestureDesk m_desk;
    Step m_last;
};

struct Outcome
{
    GestureRules rules;
    QStringList log; // of the program's view
};

// The desk is gone afterwards: the pointer finds the window of the first desk.
Outcome walked(const std::vector<Act> &acts)
{
    Walk walk;
    for (const Act &act : acts)
        walk.act(act);
    walk.end();
    return {walk.rules(), walk.log()};
}

// What the program would have got without gestures, less what belongs to gestures.
QStringList logOfTheProgramAlone(const std::vector<GestureRules::Noted> &record)
{
    BareDesk desk;
    for (const GestureRules::Noted &noted : record) {
        if (noted.isOfProgram)
            desk.perform(noted.step);
        else
            desk.performUnseen(noted.step);
    }
    return desk.log();
}

} // namespace

// A hand, the program and the host act at random, with events as the window system sends them. The
// pointer filter, the tracker and the ring together must do what the rules say after each step, and
// the program must get exactly what it would have got, in order, less the gestures.
//
// GESTUREWALK_STEPS sets the number of steps. GESTUREWALK_FIGURES names a file that gets the figures.
class GestureWalkTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { tests::HastyClock::keepTestsRunning(); }

private Q_SLOTS:
    void initTestCase();
    void everyStepFollowsTheRules();

private:
    int m_wanted = 20'000; // steps
};

void GestureWalkTest::initTestCase()
{
    tests::failOnWarnings();
    if (qEnvironmentVariableIsSet("GESTUREWALK_STEPS"))
        m_wanted = qEnvironmentVariableIntValue("GESTUREWALK_STEPS");
    // RapidCheck reads this when it checks for the first time.
    // Lengths are random, so a few walks may all be short: 30 are added.
    const int walks = m_wanted * 7 / (kLongestWalk * 2) + 30;
    QByteArray parameters = qgetenv("RC_PARAMS");
    if (!parameters.contains("max_success"))
        parameters += " max_success=" + QByteArray::number(walks);
    qputenv("RC_PARAMS", parameters);
}

void GestureWalkTest::everyStepFollowsTheRules()
{
    const tests::HastyClock clock;
    qint64 steps = 0;
    qint64 gestures = 0;
    qint64 commands = 0;
    int walks = 0;
    const bool holds = rc::check("every step follows the rules", [&] {
        const auto acts =
            *rc::gen::resize(kLongestWalk, rc::gen::container<std::vector<Act>>(someAct()));
        const Outcome outcome = walked(acts);
        const QStringList alone = logOfTheProgramAlone(outcome.rules.record());
        for (int line = 0; line < std::min(outcome.log.size(), alone.size()); ++line) {
            RC_LOG() << "line " << line << std::endl;
            RC_ASSERT(outcome.log.at(line).toStdString() == alone.at(line).toStdString());
        }
        RC_ASSERT(outcome.log.size() == alone.size());
        RC_ASSERT(tests::warnings().toStdString().empty());
        steps += qint64(outcome.rules.record().size());
        gestures += outcome.rules.gestures();
        commands += qint64(outcome.rules.commands().size());
        ++walks;
    });
    QVERIFY(holds);
    const QString figures =
        QStringLiteral("gesturewalk: %1 steps in %2 walks, %3 gestures, %4 commands: "
                       "no difference from the rules\n")
            .arg(steps)
            .arg(walks)
            .arg(gestures)
            .arg(commands);
    qInfo("%s", qPrintable(figures.trimmed()));
    QVERIFY2(steps >= m_wanted, qPrintable(figures));
    // The walks must have come to something.
    QVERIFY2(gestures > steps / 70 && commands > steps / 150, qPrintable(figures));
    if (qEnvironmentVariableIsSet("GESTUREWALK_FIGURES")) {
        QFile file(qEnvironmentVariable("GESTUREWALK_FIGURES"));
        QDir().mkpath(QFileInfo(file).path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(figures.toUtf8());
    }
}

QTEST_MAIN(GestureWalkTest)
#include "tst_gesturewalk.moc"
