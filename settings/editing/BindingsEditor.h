// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"
#include "launcher/programs/Subject.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/ProgramSettings.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUndoStack>

#include <functional>

namespace settings {

// The bindings of one program, as its file has them now. Each change is written at once, with the
// launcher's tasks, and can be undone. What others write into the file is noticed and shown.
class BindingsEditor : public QObject
{
    Q_OBJECT

public:
    // `title` is the name by which people know the program.
    BindingsEditor(const launcher::Subject &subject, const QString &title, QObject *parent = nullptr);

    [[nodiscard]] const launcher::Subject &subject() const { return m_subject; }
    [[nodiscard]] const QString &title() const { return m_title; }
    [[nodiscard]] const launcher::Bindings &bindings() const { return m_bindings; }
    [[nodiscard]] const launcher::KnownCommands &commands() const { return m_settings.commands; }
    [[nodiscard]] const gesturewidget::ProgramProfile &profile() const { return m_settings.profile; }
    // The trigger that counts, see host/files/TriggerText.h.
    [[nodiscard]] QString trigger() const;
    [[nodiscard]] const QString &usualTrigger() const { return m_settings.usualTrigger; }
    // True if the program itself does something with that drag, by its profile or because its
    // drawings do not go with the right button alone.
    [[nodiscard]] bool isUsedByProgram(const QString &trigger) const;
    // True while the program runs with another trigger than trigger(), because it reads its trigger
    // when it starts. Knows only of changes that this object has seen.
    [[nodiscard]] bool isTriggerPending() const;
    [[nodiscard]] const launcher::SettingsTasks &tasks() const { return m_settings.tasks; }
    // One line about the file, such as that it was damaged; empty if all is well.
    [[nodiscard]] const QString &notice() const { return m_notice; }
    // The tasks of the program that have rings of their own, and the one whose ring this is about;
    // empty for the shared ring.
    [[nodiscard]] const QStringList &rings() const { return m_rings; }
    [[nodiscard]] const QString &ring() const { return m_settings.tasks.task(); }
    void setRing(const QString &task);
    // The tasks that can have rings of their own, as far as they are known, by caption. Empty if the
    // program's profile knows no tasks.
    [[nodiscard]] QStringList tasksOfProgram() const;
    [[nodiscard]] QUndoStack *undoStack() { return &m_undo; }
    // The caption of a command, or a word made from an identifier that the program has not shown yet.
    [[nodiscard]] QString captionOf(const QString &identifier) const;

    // Each returns whether it was done; otherwise failed() says why not. `direction` is an index in
    // the scheme in use.
    bool bind(int direction, const QString &identifier);
    bool unbind(int direction);
    bool swap(int direction, int other);
    bool setScheme(int scheme);
    // Switching on also forgets that the program has crashed.
    bool setEnabled(bool isEnabled);
    // Gives a task a ring of its own and shows that, or lets the task use the shared ring again and
    // shows this. The task's own ring is kept and comes back with the next one of its own.
    bool setOwnRing(const QString &task, bool isOwn);
    // See launcher::SettingsTasks::setTrigger().
    bool setTrigger(const QString &trigger);
    // Both are about the shared ring, and show it.
    bool reset();
    bool importFrom(const QString &path);

    // Reads everything again.
    void reload();

Q_SIGNALS:
    void bindingsChanged();
    // The program has shown other commands than before.
    void commandsChanged();
    // One line about something that could not be done; nothing is changed then.
    void failed(const QString &complaint);
    // There is a new notice().
    void noticed(const QString &notice);

private:
    class Change;

    [[nodiscard]] QString nameOf(int direction) const; // in words
    // Changes the shown ring; `text` names the change in the undo stack. For `edit` see
    // launcher::SettingsTasks::edit().
    bool change(const QString &text, const std::function<QString(launcher::Bindings &)> &edit);
    // The same for an edit that holds direction indices of the scheme shown.
    bool changeDirections(const QString &text, const std::function<void(launcher::Bindings &)> &edit);
    bool finish(const launcher::Outcome &outcome, const launcher::SettingsChange &made,
                const QString &text);
    // Watches the folders of the files, which are replaced when they change.
    void watch();
    // Remembers that the processes that run now have a trigger.
    void noteTriggerInUse(const QString &trigger);
    // Returns a text that differs when the content of the file may differ.
    [[nodiscard]] static QString stateOf(const QString &path);

    launcher::Subject m_subject;
    QString m_title;
    QString m_notice; // set while m_settings is made
    QString m_seenCommands; // stateOf() the program's commands when they were read last
    launcher::ProgramSettings m_settings;
    QStringList m_rings;
    launcher::Bindings m_bindings;
    QUndoStack m_undo;
    QFileSystemWatcher m_watcher;
    QTimer m_reload;
    QHash<qint64, QString> m_triggersInUse; // by process of the program, as far as they were seen
    QString m_seenSettings; // stateOf() the settings when they were read last
};

} // namespace settings
