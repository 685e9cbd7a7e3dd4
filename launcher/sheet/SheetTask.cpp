// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/SheetTask.h"

#include "host/files/CommandNames.h"
#include "host/files/FileWriter.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"
#include "launcher/Text.h"

#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace launcher {
namespace {

constexpr int kPatience = 60000; // milliseconds

} // namespace

QString ringTitle(const QString &program, const QString &task, const KnownCommands &known)
{
    if (task.isEmpty())
        return program;
    const QString caption = known.captionOf(task);
    return Text::tr("%1, %2").arg(program, caption.isEmpty() ? task : caption);
}

SheetContent sheetContent(const QString &title, const Bindings &bindings, const KnownCommands &known,
                          const QString &usualTrigger)
{
    SheetContent content;
    content.program = title;
    content.trigger = bindings.trigger.isEmpty() ? usualTrigger : bindings.trigger;
    content.enabled = bindings.enabled;
    const QStringList names = Bindings::directionNames(bindings.scheme);
    const QStringList &identifiers = bindings.scheme == 4 ? bindings.four : bindings.eight;
    for (int i = 0; i < bindings.scheme; ++i) {
        SheetContent::Command command;
        command.direction = names.at(i);
        if (const gesturewidget::RememberedCommand *shown = known.find(identifiers.at(i))) {
            command.caption = known.captionOf(identifiers.at(i));
            command.category = shown->group;
            command.icon = shown->icon;
        }
        if (command.caption.isEmpty())
            command.caption = gesturewidget::captionFrom(identifiers.at(i));
        content.commands.append(command);
    }
    return content;
}

Outcome printSheet(const SheetContent &content, const QString &drawer, const QString &path)
{
    if (!path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        return Outcome::failure(Text::tr("%1: a sheet is a PDF, so its file ends in .pdf").arg(path));
    if (!QFileInfo(drawer).isExecutable())
        return Outcome::failure(Text::tr("%1 is not installed").arg(drawer));

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.remove(QStringLiteral("QT_QPA_GENERIC_PLUGINS"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(drawer, QStringList());
    process.write(content.toJson());
    process.closeWriteChannel();
    const bool isDone = process.waitForFinished(kPatience)
                     && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    const QByteArray pdf = process.readAllStandardOutput();
    if (!isDone || !pdf.startsWith("%PDF"))
        return Outcome::failure(
            Text::tr("the sheet could not be drawn: %1")
                .arg(QString::fromLocal8Bit(process.readAllStandardError()).simplified()));
    if (!gesturewidget::FileWriter(path, gesturewidget::FileWriter::Readers::Usual).write(pdf))
        return Outcome::failure(Text::tr("%1 cannot be written").arg(path));
    return {};
}

} // namespace launcher
