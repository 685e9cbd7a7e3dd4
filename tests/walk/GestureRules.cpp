// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/walk/GestureRules.h"

#include <array>
#include <cmath>

namespace tests {
namespace {

// Pixels, across plus down from the press.
constexpr int kOpens = 21;
constexpr int kIsTheProgramsOwn = 41;
// Pixels in a straight line.
constexpr int kRuns = 69;

const std::array<const char *, 4> kFour = {"zoom_bounds", "open", "save", "line"};
// The fourth direction has no command.
const std::array<const char *, 8> kEight = {"zoom_bounds", "offset", "open", "",
                                            "save",        "dtext",  "line", "trim"};

bool isFar(const QPoint &offset)
{
    return QPoint::dotProduct(offset, offset) > kRuns * kRuns;
}

// Degrees from the right, counter-clockwise; 0 or more, less than 360.
double angleOf(const QPoint &offset)
{
    const double degrees = std::atan2(-offset.y(), offset.x()) * 180.0 / 3.14159265358979323846;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

// Degrees between two directions, at most 180.
double apart(double one, double other)
{
    return std::abs(std::remainder(one - other, 360.0));
}

double middleOf(int sector, int sectors)
{
    return 90.0 + 360.0 / sectors * sector;
}

// Half the range in which a lit sector stays lit, in degrees.
double keptHalf(int sectors)
{
    return sectors == 4 ? 65.0 : 32.5;
}

// Up-right of eight stays lit down to the right, and not only as far as the others.
bool isLastOfEight(int sector, int sectors)
{
    return sectors == 8 && sector == 7;
}

bool staysLit(double angle, int lit, int sectors)
{
    if (isLastOfEight(lit, sectors))
        return angle > 0.0 && angle < 45.0 + keptHalf(sectors);
    return apart(angle, middleOf(lit, sectors)) < keptHalf(sectors);
}

int nearestSector(double angle, int sectors)
{
    int nearest = 0;
    for (int sector = 1; sector < sectors; ++sector) {
        if (apart(angle, middleOf(sector, sectors)) < apart(angle, middleOf(nearest, sectors)))
            nearest = sector;
    }
    return nearest;
}

bool isMouse(Step::Kind kind)
{
    return kind == Step::Move || kind == Step::Press || kind == Step::Release;
}

bool isKey(Step::Kind kind)
{
    return kind == Step::KeyPress || kind == Step::KeyRepeat || kind == Step::KeyRelease;
}

} // namespace

GestureRules::GestureRules(const QRect &view, const QRect &control)
    : m_view(view)
    , m_control(control)
{
}

Qt::KeyboardModifiers GestureRules::modifiers() const
{
    Qt::KeyboardModifiers held;
    if (m_keys.count(Qt::Key_Control) > 0)
        held |= Qt::ControlModifier;
    if (m_keys.count(Qt::Key_Shift) > 0)
        held |= Qt::ShiftModifier;
    return held;
}

bool GestureRules::isClear(const QPoint &offset, int lit) const
{
    // The ring takes 22/7 for pi. So close to a border, that decides.
    constexpr double kUnclear = 0.3; // degrees
    const double angle = angleOf(offset);
    if (lit >= 0) {
        const bool isLast = isLastOfEight(lit, m_sectors);
        if (apart(angle, middleOf(lit, m_sectors) + keptHalf(m_sectors)) < kUnclear)
            return false;
        if (!isLast && apart(angle, middleOf(lit, m_sectors) - keptHalf(m_sectors)) < kUnclear)
            return false;
        if (isLast && angle != 0.0 && apart(angle, 0.0) < kUnclear)
            return false;
        if (staysLit(angle, lit, m_sectors))
            return true;
    }
    const double width = 360.0 / m_sectors;
    return std::abs(apart(angle, middleOf(nearestSector(angle, m_sectors), m_sectors)) - width / 2.0)
        >= kUnclear;
}

bool GestureRules::isPossible(const Step &step) const
{
    const QPoint offset = step.position - m_pressPosition;
    switch (step.kind) {
    case Step::Move:
        if (m_state == State::Holding && m_areGesturesOn && offset.manhattanLength() >= kOpens)
            return isClear(offset, -1);
        if (m_state == State::Gesturing && offset.manhattanLength() >= kOpens)
            return isClear(offset, m_lit);
        return true;
    case Step::Press:
        return (m_buttons & step.button) == Qt::NoButton;
    case Step::Release:
        return (m_buttons & step.button) != Qt::NoButton;
    case Step::DoubleClick:
        return m_buttons == Qt::NoButton && m_state == State::Idle;
    case Step::KeyPress:
        return m_keys.count(step.key) == 0;
    case Step::KeyRepeat:
    case Step::KeyRelease:
        return m_keys.count(step.key) > 0;
    case Step::Wheel:
        return true;
    case Step::SwitchGestures:
    case Step::SwitchScheme:
        // The dialog is not open during a gesture.
        return m_state != State::Gesturing;
    case Step::ShowDialog:
    case Step::ShowPopup:
        // Before it, the program would have had the press.
        return m_state != State::Holding;
    case Step::ReplaceView:
    case Step::Cancel:
        return true;
    case Step::HideRing:
    case Step::DestroyRing:
        return m_state == State::Gesturing;
    case Step::PostedMove:
        return false;
    }
    return false;
}

void GestureRules::noteFacts(const Step &step)
{
    switch (step.kind) {
    case Step::Move:
        m_position = step.position;
        return;
    case Step::Press:
        m_buttons |= step.button;
        return;
    case Step::Release:
        m_buttons &= ~Qt::MouseButtons(step.button);
        return;
    case Step::KeyPress:
        m_keys.insert(step.key);
        return;
    case Step::KeyRelease:
        m_keys.erase(step.key);
        return;
    case Step::SwitchGestures:
        m_areGesturesOn = !m_areGesturesOn;
        return;
    case Step::SwitchScheme:
        m_sectors = m_sectors == 4 ? 8 : 4;
        return;
    default:
        return;
    }
}

void GestureRules::take(const Step &step)
{
    if (step.kind == Step::Move && step.position == m_position)
        return; // Qt drops a movement to the same place, so nobody gets it
    noteFacts(step);
    switch (m_state) {
    case State::Idle:
        takeIdle(step);
        return;
    case State::Holding:
        takeHolding(step);
        return;
    case State::Gesturing:
        takeGesturing(step);
        return;
    case State::Swallowing:
        takeSwallowing(step);
        return;
    }
}

void GestureRules::takeIdle(const Step &step)
{
    note(step, true);
    const bool isTrigger = step.kind == Step::Press && step.button == Qt::RightButton
                        && m_buttons == Qt::MouseButtons(Qt::RightButton) && !modifiers();
    if (!isTrigger || !m_areGesturesOn || !m_view.contains(m_position) || m_control.contains(m_position))
        return;
    m_state = State::Holding;
    m_firstHeld = m_record.size() - 1;
    m_pressPosition = m_position;
    m_keysOfPress = m_keys;
}

void GestureRules::takeHolding(const Step &step)
{
    note(step, true);
    const int distance = (m_position - m_pressPosition).manhattanLength();
    switch (step.kind) {
    case Step::Move:
        if (m_areGesturesOn && distance >= kOpens)
            open();
        else if (distance >= kIsTheProgramsOwn)
            settle(true);
        return;
    case Step::Press:
    case Step::Release:
    case Step::Wheel:
        settle(true);
        return;
    case Step::KeyPress:
        if (m_keysOfPress.count(step.key) == 0)
            settle(true);
        return;
    case Step::ReplaceView:
    case Step::Cancel:
        settle(false);
        return;
    default:
        return;
    }
}

void GestureRules::settle(bool isOfProgram)
{
    m_state = State::Idle;
    for (std::size_t place = m_firstHeld; place < m_record.size(); ++place) {
        if (isMouse(m_record[place].step.kind))
            m_record[place].isOfProgram = isOfProgram;
    }
}

void GestureRules::open()
{
    settle(false);
    m_state = State::Gesturing;
    ++m_gestures;
    m_lit = -1;
    const QPoint offset = m_position - m_pressPosition;
    light(offset);
    m_isChosen = isFar(offset);
}

void GestureRules::light(const QPoint &offset)
{
    const double angle = angleOf(offset);
    if (m_lit < 0 || !staysLit(angle, m_lit, m_sectors))
        m_lit = nearestSector(angle, m_sectors);
}

void GestureRules::takeGesturing(const Step &step)
{
    const bool isOfHand = isMouse(step.kind) || isKey(step.kind) || step.kind == Step::Wheel;
    // The program saw that key go down.
    const bool endsAKeyOfBefore = step.kind == Step::KeyRelease && m_keysOfPress.erase(step.key) > 0;
    note(step, !isOfHand || endsAKeyOfBefore);
    switch (step.kind) {
    case Step::Move:
        follow(m_position - m_pressPosition);
        return;
    case Step::Release:
    case Step::ShowPopup:
    case Step::Cancel:
        endLikeARelease(step);
        return;
    case Step::ReplaceView:
        // There is no view that could learn where the pointer is.
        end(m_isChosen);
        return;
    case Step::ShowDialog:
    case Step::HideRing:
    case Step::DestroyRing:
        end(false);
        return;
    default:
        return;
    }
}

void GestureRules::follow(const QPoint &offset)
{
    if (offset.manhattanLength() < kOpens)
        return;
    light(offset);
    if (m_isChosen || isFar(offset))
        end(true);
}

void GestureRules::endLikeARelease(const Step &step)
{
    const bool isChosen = m_isChosen;
    end(isChosen);
    if (isChosen)
        return;
    Step posted = step;
    posted.kind = Step::PostedMove;
    posted.position = m_position;
    posted.buttons = m_buttons;
    if (step.kind != Step::Release)
        posted.buttons &= ~Qt::MouseButtons(Qt::RightButton);
    posted.modifiers = modifiers();
    note(posted, true);
}

void GestureRules::end(bool isChosen)
{
    if (isChosen && !litCommand().isEmpty())
        m_commands.push_back(litCommand());
    m_state = m_buttons == Qt::NoButton ? State::Idle : State::Swallowing;
}

QString GestureRules::litCommand() const
{
    if (m_state != State::Gesturing || m_lit < 0)
        return {};
    const auto sector = static_cast<std::size_t>(m_lit);
    return QLatin1String(m_sectors == 4 ? kFour.at(sector) : kEight.at(sector));
}

void GestureRules::takeSwallowing(const Step &step)
{
    note(step, !isMouse(step.kind));
    if (m_buttons == Qt::NoButton)
        m_state = State::Idle;
}

} // namespace tests
