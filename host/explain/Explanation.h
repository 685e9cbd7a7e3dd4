// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/Phrase.h"
#include "host/files/ProgramProfile.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVector>

namespace gesturewidget {

class CommandCatalogue;
class SystemServices;

// Reports what the host has found and guessed in a program without a profile, and why: as lines
// for a person, and as a profile that says the same. The lines are translated where they are read. The
// reasons in the profile are English, because a profile is for everybody.
class Explanation : public QObject
{
    Q_OBJECT

public:
    // `socket`: see ExplanationChannel.h; not owned. The others must outlive this.
    Explanation(int socket, const ProgramProfile &profile, SystemServices &services);
    ~Explanation() override;

    // Adds a view, the widget that gets the pointer. Adding it again has no effect.
    void addView(QWidget *view);
    // Notes the trigger, and the reason for it. Call this again when it changes.
    void noteTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const Phrase &reason);
    // Call this when the menus are complete. Nothing is reported before.
    void menusSettled();

    // Returns the findings so far in the format of ExplanationChannel.h.
    [[nodiscard]] QJsonObject report();

private:
    struct View
    {
        QPointer<QWidget> widget;
        QString className;
        QString name; // may be empty
        Phrase reason;
        bool isQtsOwn; // its class is one of Qt's, so other widgets have it too
    };

    // The findings so far, for one report.
    struct Findings
    {
        ProgramProfile profile;
        QJsonObject why;
        QJsonArray lines;

        // `what` is a text of the translations.
        void add(const char *what, const Phrase &text) { add(Phrase(what), text); }
        void add(const Phrase &what, const Phrase &text);
    };

    void tellSoon();
    void tellNow();
    void explainViews(Findings &findings) const;
    void explainOthers(Findings &findings) const;
    // The current main window; null if there is none.
    [[nodiscard]] QMainWindow *window() const;
    void explainTrigger(Findings &findings) const;
    void explainToolsMenu(Findings &findings) const;
    void explainCommands(Findings &findings);

    int m_socket;
    ProgramProfile m_profile;
    SystemServices &m_services;
    QVector<View> m_views;
    Qt::MouseButton m_triggerButton;
    Qt::KeyboardModifiers m_triggerModifiers;
    Phrase m_triggerReason; // empty until noteTrigger()
    QJsonObject m_told;
    bool m_isSettled = false;
    QTimer m_soon;
};

} // namespace gesturewidget
