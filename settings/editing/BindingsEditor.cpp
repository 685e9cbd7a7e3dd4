// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/editing/BindingsEditor.h"

#include "host/files/CommandNames.h"
#include "host/files/TriggerText.h"
#include "launcher/Folders.h"
#include "launcher/programs/RunningPrograms.h"

#include <QDateTime>
#include <QFileInfo>
#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace settings {
namespace {

using launcher::Bindings;
using launcher::Outcome;
using launcher::SettingsChange;
using launcher::SettingsTasks;

// Several files change at once when something is kept. Milliseconds.
constexpr int kSettle = 30;

} // namespace

// A change that has been made when it comes into the stack.
class BindingsEditor::Change : public QUndoCommand
{
public:
    using Task = std::function<Outcome(SettingsTasks &)>;

    Change(BindingsEditor &editor, const QString &text, Task takeBack, Task makeAgain)
        : QUndoCommand(text)
        , m_editor(editor)
        , m_takeBack(std::move(takeBack))
        , m_makeAgain(std::move(makeAgain))
    {
    }

    void undo() override { perform(m_takeBack); }

    void redo() override
    {
        if (m_isMade)
            perform(m_makeAgain);
        m_isMade = true;
    }

private:
    void perform(const Task &task)
    {
        const Outcome outcome = task(m_editor.m_settings.tasks);
        if (!outcome.isDone()) {
            setObsolete(true); // the stack forgets it
            Q_EMIT m_editor.failed(outcome.complaint);
        }
        m_editor.reload();
    }

    BindingsEditor &m_editor;
    Task m_takeBack;
    Task m_makeAgain;
    bool m_isMade = false;
};

BindingsEditor::BindingsEditor(const launcher::Subject &subject, const QString &title, QObject *parent)
    : QObject(parent)
    , m_subject(subject)
    , m_title(title)
    , m_seenCommands(stateOf(subject.catalogueFile())) // before it is read
    , m_settings(launcher::ProgramSettings::of(subject, &m_notice))
    , m_rings(m_settings.tasks.tasks())
    , m_bindings(m_settings.tasks.bindings())
{
    m_reload.setSingleShot(true);
    m_reload.setInterval(kSettle);
    // Reading may itself write, such as a copy of a damaged file, so only other content counts.
    connect(&m_reload, &QTimer::timeout, this, [this] {
        watch();
        if (m_seenSettings != stateOf(m_subject.settingsFile())
            || m_seenCommands != stateOf(m_subject.catalogueFile()))
            reload();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reload, qOverload<>(&QTimer::start));
    watch();
    m_seenSettings = stateOf(m_subject.settingsFile());
}

QString BindingsEditor::trigger() const
{
    return m_bindings.trigger.isEmpty() ? m_settings.usualTrigger : m_bindings.trigger;
}

bool BindingsEditor::isUsedByProgram(const QString &trigger) const
{
    if (!profile().usedTriggers.isEmpty())
        return profile().usedTriggers.contains(trigger);
    const QString right = QStringLiteral("right");
    return trigger == right && usualTrigger() != right;
}

bool BindingsEditor::isTriggerPending() const
{
    if (m_triggersInUse.isEmpty())
        return false;
    const QList<qint64> running = launcher::runningWithGestures(m_subject);
    return std::any_of(running.begin(), running.end(), [this](qint64 process) {
        return m_triggersInUse.value(process, trigger()) != trigger();
    });
}

void BindingsEditor::noteTriggerInUse(const QString &trigger)
{
    const QList<qint64> running = launcher::runningWithGestures(m_subject);
    QHash<qint64, QString> inUse;
    for (const qint64 process : running)
        inUse.insert(process, m_triggersInUse.value(process, trigger));
    m_triggersInUse = inUse;
}

QString BindingsEditor::captionOf(const QString &identifier) const
{
    const QString caption = m_settings.commands.captionOf(identifier);
    return caption.isEmpty() ? gesturewidget::captionFrom(identifier) : caption;
}

bool BindingsEditor::bind(int direction, const QString &identifier)
{
    const QString name = nameOf(direction);
    return changeDirections(
        identifier.isEmpty() ? tr("Empty %1").arg(name)
                             : tr("Put \"%1\" %2").arg(captionOf(identifier), name),
        [direction, &identifier](Bindings &bindings) { bindings.bind(direction, identifier); });
}

bool BindingsEditor::unbind(int direction)
{
    return bind(direction, {});
}

bool BindingsEditor::swap(int direction, int other)
{
    return changeDirections(tr("Exchange %1 and %2").arg(nameOf(direction), nameOf(other)),
                            [direction, other](Bindings &bindings) { bindings.swap(direction, other); });
}

bool BindingsEditor::setScheme(int scheme)
{
    return change(scheme == 4 ? tr("Four Directions") : tr("Eight Directions"),
                  [scheme](Bindings &bindings) {
                      bindings.scheme = scheme;
                      return QString();
                  });
}

bool BindingsEditor::setEnabled(bool isEnabled)
{
    if (isEnabled) {
        SettingsChange made;
        const Outcome outcome = m_settings.tasks.switchOn(&made);
        return finish(outcome, made, tr("Switch Gestures On"));
    }
    return change(tr("Switch Gestures Off"), [](Bindings &bindings) {
        bindings.enabled = false;
        return QString();
    });
}

bool BindingsEditor::setTrigger(const QString &trigger)
{
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    if (gesturewidget::parseTrigger(trigger, button, keys)
        && !gesturewidget::isUsableTrigger(button, keys)) {
        Q_EMIT failed(
            tr("The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it."));
        return false;
    }
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.setTrigger(trigger, &made);
    return finish(outcome, made, tr("Change What Starts a Gesture"));
}

void BindingsEditor::setRing(const QString &task)
{
    m_settings.tasks.setTask(task);
    reload();
}

QStringList BindingsEditor::tasksOfProgram() const
{
    QStringList tasks = m_settings.tasksOfProgram() + m_rings;
    tasks.removeDuplicates();
    std::sort(tasks.begin(), tasks.end(), [this](const QString &one, const QString &other) {
        return QString::localeAwareCompare(captionOf(one), captionOf(other)) < 0;
    });
    return tasks;
}

bool BindingsEditor::setOwnRing(const QString &task, bool isOwn)
{
    if (m_rings.contains(task) == isOwn)
        return true;
    const auto set = [task, first = profile().taskBindings.value(task)](bool isWanted) {
        return [task, first, isWanted](SettingsTasks &tasks) {
            return tasks.setRing(task, isWanted, first);
        };
    };
    const Outcome outcome = set(isOwn)(m_settings.tasks);
    if (outcome.isDone()) {
        m_undo.push(new Change(*this,
                               isOwn ? tr("Give \"%1\" Its Own Ring").arg(captionOf(task))
                                     : tr("Let \"%1\" Use the Shared Ring").arg(captionOf(task)),
                               set(!isOwn), set(isOwn)));
        m_settings.tasks.setTask(isOwn ? task : QString());
    }
    reload();
    if (!outcome.isDone())
        Q_EMIT failed(outcome.complaint);
    return outcome.isDone();
}

bool BindingsEditor::reset()
{
    setRing({});
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.reset(&made);
    return finish(outcome, made, tr("Reset to First Commands"));
}

bool BindingsEditor::importFrom(const QString &path)
{
    setRing({});
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.importFrom(path, &made);
    return finish(outcome, made, tr("Import"));
}

QString BindingsEditor::nameOf(int direction) const
{
    return Bindings::directionInWords(Bindings::directionNames(m_bindings.scheme).value(direction));
}

bool BindingsEditor::change(const QString &text, const std::function<QString(Bindings &)> &edit)
{
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.edit(edit, &made);
    return finish(outcome, made, text);
}

bool BindingsEditor::changeDirections(const QString &text, const std::function<void(Bindings &)> &edit)
{
    return change(text, [this, &edit](Bindings &bindings) {
        if (bindings.scheme != m_bindings.scheme)
            return tr("The number of directions was changed elsewhere meanwhile.");
        edit(bindings);
        return QString();
    });
}

bool BindingsEditor::finish(const Outcome &outcome, const SettingsChange &made, const QString &text)
{
    if (outcome.isDone() && !made.isEmpty())
        m_undo.push(new Change(
            *this, text, [made](SettingsTasks &tasks) { return tasks.takeBack(made); },
            [made](SettingsTasks &tasks) { return tasks.makeAgain(made); }));
    reload();
    if (!outcome.isDone())
        Q_EMIT failed(outcome.complaint);
    return outcome.isDone();
}

void BindingsEditor::reload()
{
    const QVector<gesturewidget::RememberedCommand> before = m_settings.commands.shown();
    const QString ring = this->ring();
    const QString noticeBefore = notice();
    const QString triggerBefore = trigger();
    // A person waits for each change, and reading the commands takes longer than all the rest.
    const QString commandsNow = stateOf(m_subject.catalogueFile());
    if (commandsNow == m_seenCommands)
        m_settings.update(m_subject, &m_notice);
    else
        m_settings = launcher::ProgramSettings::of(m_subject, &m_notice);
    m_seenCommands = commandsNow;
    m_rings = m_settings.tasks.tasks();
    m_settings.tasks.setTask(m_rings.contains(ring) ? ring : QString());
    m_bindings = m_settings.tasks.bindings();
    if (trigger() != triggerBefore)
        noteTriggerInUse(triggerBefore);
    watch();
    m_seenSettings = stateOf(m_subject.settingsFile());
    if (before != m_settings.commands.shown())
        Q_EMIT commandsChanged();
    Q_EMIT bindingsChanged();
    if (!notice().isEmpty() && notice() != noticeBefore)
        Q_EMIT noticed(notice());
}

QString BindingsEditor::stateOf(const QString &path)
{
    const QFileInfo file(path);
    return QStringLiteral("%1 %2").arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

void BindingsEditor::watch()
{
    // Until something is kept, the folder may be missing.
    const QString folder = launcher::nearestFolder(QFileInfo(m_subject.settingsFile()).absolutePath());
    const QStringList watched = m_watcher.directories();
    if (watched == QStringList(folder))
        return;
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_watcher.addPath(folder);
}

} // namespace settings
