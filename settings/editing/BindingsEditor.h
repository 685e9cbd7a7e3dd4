// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"
#include "launcher/programs/Subject.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/ProgramSettings.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUndoStack>

namespace settings {

// The bindings of one program, as its file has them now. Each change is written at once, with the
// launcher's tasks, and can be undone. What others write into the file is noticed and shown.
class BindingsEditor : public QObject
{
    Q_OBJECT

public:
    // `title` is what people call the program.
    BindingsEditor(const launcher::Subject &subject, const QString &title, QObject *parent = nullptr);

    [[nodiscard]] const launcher::Subject &subject() const { return m_subject; }
    [[nodiscard]] const QString &title() const { return m_title; }
    [[nodiscard]] const launcher::Bindings &bindings() const { return m_bindings; }
    [[nodiscard]] const launcher::KnownCommands &commands() const { return m_settings.commands; }
    [[nodiscard]] const gesturewidget::ProgramProfile &profile() const { return m_settings.profile; }
    // The trigger that counts, see host/files/TriggerText.h.
    [[nodiscard]] QString trigger() const;
    [[nodiscard]] const QString &usualTrigger() const { return m_settings.usualTrigger; }
    [[nodiscard]] const launcher::SettingsTasks &tasks() const { return m_settings.tasks; }
    // One line about the file, such as that it was damaged; empty if all is well.
    [[nodiscard]] const QString &notice() const { return m_notice; }
    // The tasks of the program that have rings of their own, and the one whose ring this is about;
    // empty for the shared ring.
    [[nodiscard]] const QStringList &rings() const { return m_rings; }
    [[nodiscard]] const QString &ring() const { return m_settings.tasks.task(); }
    void setRing(const QString &task);
    [[nodiscard]] QUndoStack *undoStack() { return &m_undo; }
    // What a person reads for a command: its caption, or a word for an identifier that the program
    // has not shown yet.
    [[nodiscard]] QString captionOf(const QString &identifier) const;

    // Each returns whether it was done; otherwise failed() says why not. `direction` is an index in
    // the scheme in use.
    bool bind(int direction, const QString &identifier);
    bool unbind(int direction);
    bool swap(int direction, int other);
    bool setScheme(int scheme);
    bool setEnabled(bool isEnabled);
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

    bool finish(const launcher::Outcome &outcome, const launcher::SettingsChange &made,
                const QString &text);
    // Watches the folders of the files, which are replaced when they change.
    void watch();
    // Differs when the content of a file may differ.
    [[nodiscard]] QString stateOfFiles() const;

    launcher::Subject m_subject;
    QString m_title;
    QString m_notice; // set while m_settings is made
    launcher::ProgramSettings m_settings;
    QStringList m_rings;
    launcher::Bindings m_bindings;
    QUndoStack m_undo;
    QFileSystemWatcher m_watcher;
    QTimer m_reload;
    QString m_seen; // stateOfFiles() when they were read last
};

// "up left" for the name of a direction "up-left", in the person's language.
[[nodiscard]] QString directionInWords(const QString &name);

} // namespace settings
