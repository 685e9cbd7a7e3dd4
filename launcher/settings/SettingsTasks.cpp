#include "launcher/settings/SettingsTasks.h"

#include "host/files/SettingsFile.h"
#include "host/files/TriggerText.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/BindingsJson.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::SettingsFile;

// Far more than any export has; what is longer is some other file.
constexpr qint64 kMaximalSize = 1024 * 1024;

Bindings read(const QString &path)
{
    return Bindings::fromSettings(SettingsFile(path).read());
}

Outcome write(const QString &path, const SettingsFile::Values &values)
{
    SettingsFile file(path);
    // A damaged file is restored before anything is merged into it.
    static_cast<void>(file.read());
    if (!file.write(values))
        return Outcome::failure(QStringLiteral("%1 cannot be written").arg(path));
    static_cast<void>(file.read()); // renews the copy of its last good state
    return {};
}

bool save(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
}

void append(QByteArray &text, const QString &line)
{
    text += line.toLocal8Bit() + '\n';
}

void appendScheme(QByteArray &text, int scheme, const QStringList &commands, bool isInUse,
                  const KnownCommands &known)
{
    append(text, QStringLiteral("%1 gestures%2")
                     .arg(scheme)
                     .arg(isInUse ? QStringLiteral(" (in use)") : QString()));
    const QStringList names = Bindings::directionNames(scheme);
    QStringList shown;
    int width = 0;
    for (const QString &command : commands) {
        shown.append(command.isEmpty() ? QStringLiteral("none") : command.simplified());
        width = std::max(width, static_cast<int>(shown.last().size()));
    }
    for (int i = 0; i < scheme; ++i) {
        const QString caption = known.captionOf(commands.at(i));
        const QString command = caption.isEmpty() ? shown.at(i) : shown.at(i).leftJustified(width + 2);
        append(text, QStringLiteral("  %1 %2%3").arg(names.at(i), -10).arg(command, caption));
    }
}

} // namespace

SettingsTasks::SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands)
    : m_program(program)
    , m_file(file)
    , m_commands(commands)
{
}

Bindings SettingsTasks::bindings() const
{
    return read(m_file);
}

Outcome SettingsTasks::showBindings() const
{
    const Bindings bindings = read(m_file);
    Outcome outcome;
    append(outcome.output,
           QStringLiteral("gestures in %1: %2")
               .arg(m_program, bindings.enabled ? QStringLiteral("on") : QStringLiteral("off")));
    if (!bindings.trigger.isEmpty())
        append(outcome.output, QStringLiteral("started with: %1").arg(bindings.trigger));
    const bool isFour = bindings.scheme == 4;
    appendScheme(outcome.output, isFour ? 4 : 8, isFour ? bindings.four : bindings.eight, true,
                 m_commands);
    appendScheme(outcome.output, isFour ? 8 : 4, isFour ? bindings.eight : bindings.four, false,
                 m_commands);
    return outcome;
}

Outcome SettingsTasks::showBindingsAsJson() const
{
    Outcome outcome;
    outcome.output = bindingsToJson(read(m_file), m_program);
    return outcome;
}

Outcome SettingsTasks::bind(const QString &direction, const QString &command)
{
    Bindings bindings = read(m_file);
    const QStringList names = Bindings::directionNames(bindings.scheme);
    const auto index = names.indexOf(direction.toLower());
    if (index < 0)
        return Outcome::failure(QStringLiteral("\"%1\" is none of the %2 directions: %3")
                                    .arg(direction)
                                    .arg(bindings.scheme)
                                    .arg(names.join(QStringLiteral(", "))));
    const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
    if (std::any_of(command.begin(), command.end(), isControl))
        return Outcome::failure(QStringLiteral("a command's identifier has no control characters"));
    QString wanted;
    if (!command.isEmpty() && command != QLatin1String("none")) {
        const QString complaint = m_commands.resolve(command, m_program, wanted);
        if (!complaint.isEmpty())
            return Outcome::failure(complaint);
    }

    QStringList &commands = bindings.commands();
    for (QString &other : commands) {
        if (other == wanted)
            other.clear();
    }
    commands[index] = wanted;
    return write(m_file, bindings.toSettings());
}

Outcome SettingsTasks::reset()
{
    Bindings bindings = Bindings::initial();
    bindings.trigger = read(m_file).trigger;
    return write(m_file, bindings.toSettings());
}

Outcome SettingsTasks::exportTo(const QString &path) const
{
    if (!save(path, showBindingsAsJson().output))
        return Outcome::failure(QStringLiteral("%1 cannot be written").arg(path));
    return {};
}

Outcome SettingsTasks::importFrom(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Outcome::failure(QStringLiteral("%1: there is no such file").arg(path));
    if (!info.isFile()) // opening a pipe would wait for its writer
        return Outcome::failure(QStringLiteral("%1: this is not a file").arg(path));
    if (info.size() > kMaximalSize)
        return Outcome::failure(QStringLiteral("%1: this is too long for bindings").arg(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Outcome::failure(QStringLiteral("%1: %2").arg(path, file.errorString()));

    Bindings bindings;
    QString problem;
    if (!bindingsFromJson(file.read(kMaximalSize), m_program, bindings, problem))
        return Outcome::failure(QStringLiteral("%1, %2").arg(path, problem));

    if (QFileInfo::exists(m_file)) {
        const QString backup = m_file + QLatin1String(".before-import");
        static_cast<void>(read(m_file)); // a damaged file is restored first
        QFile settings(m_file);
        if (!settings.open(QIODevice::ReadOnly) || !save(backup, settings.readAll()))
            return Outcome::failure(
                QStringLiteral("%1 cannot be written, so nothing is imported").arg(backup));
    }
    return write(m_file, bindings.toSettings());
}

Outcome SettingsTasks::setTrigger(const QString &text)
{
    Bindings bindings = read(m_file);
    if (text == QLatin1String("default")) {
        bindings.trigger.clear();
    } else {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers keys = Qt::NoModifier;
        if (!gesturewidget::parseTrigger(text, button, keys))
            return Outcome::failure(QStringLiteral("\"%1\" names no trigger, such as right, middle or "
                                                   "ctrl+right; \"default\" is the program's usual one")
                                        .arg(text));
        if (!gesturewidget::isUsableTrigger(button, keys))
            return Outcome::failure(
                QStringLiteral("the left button alone is for drawing, add a key to it, "
                               "such as ctrl+left"));
        bindings.trigger = gesturewidget::triggerText(button, keys);
    }
    SettingsFile::Values values;
    values.insert(SettingsFile::nameOf(gesturewidget::triggerSection(), gesturewidget::triggerKey()),
                  bindings.trigger);
    return write(m_file, values);
}

} // namespace launcher
