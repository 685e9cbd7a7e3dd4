// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/Phrase.h"
#include "host/input/HitTest.h"

#include <QString>

class CHxProfileStore;
QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

struct ProgramProfile;

// Chooses what starts a gesture: what the person has set; otherwise what the profile says; otherwise
// the right button, with Ctrl if the first drawing is painted by OpenGL. Programs that show things
// in space turn or move them with the right button, and people need that more than gestures.
class TriggerChoice
{
public:
    // `store` may be null. Writes one line to standard error if the settings name no trigger.
    TriggerChoice(const ProgramProfile &profile, CHxProfileStore *store);

    [[nodiscard]] const Trigger &trigger() const { return m_trigger; }
    // Why it is this one, for a person.
    [[nodiscard]] const Phrase &reason() const { return m_reason; }
    // Call this for each new view. Only the first one counts, so that a program has one trigger.
    // Returns whether it has changed the trigger. Keeps what it finds in the settings, for those
    // who look at them without the program.
    bool noteView(const QWidget &view);
    // Returns a line for the person that says what starts a gesture and where to change that, once
    // for each program; empty later and while gestures are off.
    [[nodiscard]] QString introduction();

    // True if OpenGL paints the widget, or what is in it.
    [[nodiscard]] static bool isPaintedByOpenGL(const QWidget &view);

private:
    void store(const QString &key, const QString &value);

    QString m_program;
    CHxProfileStore *m_store;
    Trigger m_trigger;
    Phrase m_reason;
    bool m_isSettled = false;
};

} // namespace gesturewidget
