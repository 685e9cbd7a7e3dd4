// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The file of remembered commands: reading it, and adding a command to it.

#include "host/files/CatalogueFile.h"
#include "tests/fuzz/Fuzz.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace gesturewidget;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::keepQuiet();
    const QStringList left = QDir(fuzz::folder()).entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : left)
        QFile::remove(fuzz::folder() + QLatin1Char('/') + name);

    const QString path = fuzz::file(QStringLiteral("drafting.commands.json"), fuzz::bytes(data, size));
    const QVector<RememberedCommand> before = CatalogueFile(path).read();
    fuzz::check(before.size() <= CatalogueFile::kMaximalCount, "there are not too many commands");

    RememberedCommand seen;
    seen.identifier = QStringLiteral("DrawLine");
    seen.caption = QStringLiteral("Line");
    CatalogueFile file(path);
    if (!file.merge({seen}))
        return 0; // a file of a later version
    const QVector<RememberedCommand> after = CatalogueFile(path).read();
    const auto has = [&after](const QString &id) {
        return std::any_of(after.begin(), after.end(),
                           [&id](const RememberedCommand &command) { return command.identifier == id; });
    };
    fuzz::check(has(seen.identifier) || after.size() == CatalogueFile::kMaximalCount,
                "the command is added");
    for (const RememberedCommand &command : before)
        fuzz::check(has(command.identifier), "the other commands stay");
    return 0;
}
