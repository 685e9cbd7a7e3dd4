// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/walk/Step.h"

#include <QRect>
#include <QString>

#include <set>
#include <vector>

namespace tests {

// The rules of a gesture, stated a second time and in another form: what a hand does at a desk goes
// in one by one, and what a person and the program must see comes out. It knows no event, no filter,
// no tracker and no ring.
class GestureRules
{
public:
    enum class State {
        Idle, // the program gets everything
        Holding, // a press may become a gesture; the program waits for it
        Gesturing, // the ring is open
        Swallowing, // the gesture is over, a button is still down
    };
    struct Noted
    {
        Step step;
        bool isOfProgram; // it gets this; otherwise the step was part of a gesture
    };

    // Pixels of the view. No gesture starts over the control.
    GestureRules(const QRect &view, const QRect &control);

    // True if a hand can do this now, and if the rules say clearly what follows.
    [[nodiscard]] bool isPossible(const Step &step) const;
    void take(const Step &step);

    // All steps so far. Those of a press that may still become a gesture are the program's or not
    // only when that is known.
    [[nodiscard]] const std::vector<Noted> &record() const { return m_record; }
    [[nodiscard]] State state() const { return m_state; }
    // The names of the commands that have run, and of the one that would run now; empty for none.
    [[nodiscard]] const std::vector<QString> &commands() const { return m_commands; }
    [[nodiscard]] QString litCommand() const;
    [[nodiscard]] int gestures() const { return m_gestures; }

    [[nodiscard]] QPoint position() const { return m_position; }
    [[nodiscard]] QPoint pressPosition() const { return m_pressPosition; }
    [[nodiscard]] Qt::MouseButtons buttons() const { return m_buttons; }
    [[nodiscard]] const std::set<int> &keys() const { return m_keys; }
    [[nodiscard]] Qt::KeyboardModifiers modifiers() const;
    [[nodiscard]] bool areGesturesOn() const { return m_areGesturesOn; }
    [[nodiscard]] int sectors() const { return m_sectors; }

private:
    void noteFacts(const Step &step);
    void takeIdle(const Step &step);
    void takeHolding(const Step &step);
    void takeGesturing(const Step &step);
    void takeSwallowing(const Step &step);

    void note(const Step &step, bool isOfProgram) { m_record.push_back({step, isOfProgram}); }
    // Decides about the press and what came after it.
    void settle(bool isOfProgram);
    void open();
    void follow(const QPoint &offset);
    void end(bool isChosen);
    // Ends it as a release does: a choice that was made stands.
    void endLikeARelease(const Step &step);
    void light(const QPoint &offset);
    [[nodiscard]] bool isClear(const QPoint &offset, int lit) const;

    QRect m_view;
    QRect m_control;
    State m_state = State::Idle;
    std::vector<Noted> m_record;
    std::size_t m_firstHeld = 0; // the place of the press in the record
    std::vector<QString> m_commands;
    int m_gestures = 0;

    QPoint m_position;
    Qt::MouseButtons m_buttons;
    std::set<int> m_keys; // down at the moment
    std::set<int> m_keysOfPress;
    bool m_areGesturesOn = true;
    int m_sectors = 4;

    QPoint m_pressPosition;
    int m_lit = -1; // sector
    bool m_isChosen = false; // the pointer was so far away when the ring opened
};

} // namespace tests
