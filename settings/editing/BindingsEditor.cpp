// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/editing/BindingsEditor.h"

#include "host/files/CommandNames.h"
#include "host/files/TriggerText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QUndoCommand>

namespace settings {
namespace {

using launcher::Bindings;
using launcher::Outcome;
using launcher::SettingsChange;

// Several files change at once when something is kept. Milliseconds.
constexpr int kSettle = 30;

} // namespace

QString directionInWords(const QString &name)
{
    static constexpr const char *kNames[] = {QT_TRANSLATE_NOOP("settings::Directions", "up"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "up-left"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "left"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "down-left"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "down"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "down-right"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "right"),
                                             QT_TRANSLATE_NOOP("settings::Directions", "up-right")};
    for (const char *one : kNames) {
        if (name == QLatin1String(one))
            return QCoreApplication::translate("settings::Directions", one)
                .replace(QLatin1Char('-'), QLatin1Char(' '));
    }
    return name;
}

// A change that has been made when it comes into the stack.
class BindingsEditor::Change : public QUndoCommand
{
public:
    Change(BindingsEditor &editor, const SettingsChange &change, const QString &text)
        : QUndoCommand(text)
        , m_editor(editor)
        , m_change(change)
    {
    }

    void undo() override { finish(m_editor.m_settings.tasks.takeBack(m_change)); }

    void redo() override
    {
        if (m_isMade)
            finish(m_editor.m_settings.tasks.makeAgain(m_change));
        m_isMade = true;
    }

private:
    void finish(const Outcome &outcome)
    {
        if (!outcome.isDone()) {
            setObsolete(true); // the stack forgets it
            Q_EMIT m_editor.failed(outcome.complaint);
        }
        m_editor.reload();
    }

    BindingsEditor &m_editor;
    SettingsChange m_change;
    bool m_isMade = false;
};

BindingsEditor::BindingsEditor(const launcher::Subject &subject, const QString &title, QObject *parent)
    : QObject(parent)
    , m_subject(subject)
    , m_title(title)
    , m_settings(launcher::ProgramSettings::of(subject, &m_notice))
    , m_rings(m_settings.tasks.tasks())
    , m_bindings(m_settings.tasks.bindings())
{
    m_reload.setSingleShot(true);
    m_reload.setInterval(kSettle);
    // Reading may itself write, such as a copy of a damaged file, so only other content counts.
    connect(&m_reload, &QTimer::timeout, this, [this] {
        watch();
        if (m_seen != stateOfFiles())
            reload();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reload, qOverload<>(&QTimer::start));
    watch();
    m_seen = stateOfFiles();
}

QString BindingsEditor::trigger() const
{
    return m_bindings.trigger.isEmpty() ? m_settings.usualTrigger : m_bindings.trigger;
}

QString BindingsEditor::captionOf(const QString &identifier) const
{
    const QString caption = m_settings.commands.captionOf(identifier);
    return caption.isEmpty() ? gesturewidget::captionFrom(identifier) : caption;
}

bool BindingsEditor::bind(int direction, const QString &identifier)
{
    const QString name = Bindings::directionNames(m_bindings.scheme).value(direction);
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.edit(
        [direction, &identifier, this](Bindings &bindings) {
            if (bindings.scheme != m_bindings.scheme)
                return tr("The number of directions was changed elsewhere meanwhile.");
            bindings.bind(direction, identifier);
            return QString();
        },
        &made);
    return finish(outcome, made,
                  identifier.isEmpty()
                      ? tr("Empty %1").arg(directionInWords(name))
                      : tr("Put \"%1\" %2").arg(captionOf(identifier), directionInWords(name)));
}

bool BindingsEditor::unbind(int direction)
{
    return bind(direction, {});
}

bool BindingsEditor::swap(int direction, int other)
{
    const QStringList names = Bindings::directionNames(m_bindings.scheme);
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.edit(
        [direction, other, this](Bindings &bindings) {
            if (bindings.scheme != m_bindings.scheme)
                return tr("The number of directions was changed elsewhere meanwhile.");
            bindings.swap(direction, other);
            return QString();
        },
        &made);
    return finish(
        outcome, made,
        tr("Exchange %1 and %2")
            .arg(directionInWords(names.value(direction)), directionInWords(names.value(other))));
}

bool BindingsEditor::setScheme(int scheme)
{
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.edit(
        [scheme](Bindings &bindings) {
            bindings.scheme = scheme;
            return QString();
        },
        &made);
    return finish(outcome, made, scheme == 4 ? tr("Four Directions") : tr("Eight Directions"));
}

bool BindingsEditor::setEnabled(bool isEnabled)
{
    SettingsChange made;
    const Outcome outcome = m_settings.tasks.edit(
        [isEnabled](Bindings &bindings) {
            bindings.enabled = isEnabled;
            return QString();
        },
        &made);
    return finish(outcome, made, isEnabled ? tr("Switch Gestures On") : tr("Switch Gestures Off"));
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

bool BindingsEditor::finish(const Outcome &outcome, const SettingsChange &made, const QString &text)
{
    if (outcome.isDone() && !made.isEmpty())
        m_undo.push(new Change(*this, made, text));
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
    m_settings = launcher::ProgramSettings::of(m_subject, &m_notice);
    m_rings = m_settings.tasks.tasks();
    m_settings.tasks.setTask(m_rings.contains(ring) ? ring : QString());
    m_bindings = m_settings.tasks.bindings();
    watch();
    m_seen = stateOfFiles();
    if (before != m_settings.commands.shown())
        Q_EMIT commandsChanged();
    Q_EMIT bindingsChanged();
    if (!notice().isEmpty() && notice() != noticeBefore)
        Q_EMIT noticed(notice());
}

QString BindingsEditor::stateOfFiles() const
{
    QString state;
    for (const QString &path : {m_subject.settingsFile(), m_subject.catalogueFile()}) {
        const QFileInfo file(path);
        state += QStringLiteral("%1 %2 ").arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
    }
    return state;
}

void BindingsEditor::watch()
{
    // Until something is kept, the folder may be missing.
    QString folder = QFileInfo(m_subject.settingsFile()).absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).path())
        folder = QFileInfo(folder).path();
    const QStringList watched = m_watcher.directories();
    if (watched == QStringList(folder))
        return;
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_watcher.addPath(folder);
}

} // namespace settings
