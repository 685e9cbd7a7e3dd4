// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/ReplaceFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <unistd.h>

bool replaceFile(const QString &path, const QByteArray &contents, QString *error)
{
    QSaveFile file(path);
    // commit() does not notice that the rest of the buffer did not fit on the disk, so the
    // buffer is flushed and synced before the old file goes.
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() || !file.flush()
        || ::fsync(file.handle()) != 0 || !file.commit()) {
        *error = file.error() == QFileDevice::NoError
                   ? QCoreApplication::translate("ReplaceFile", "The disk may be full.")
                   : file.errorString();
        return false;
    }
    QFile written(path);
    if (written.open(QIODevice::ReadOnly) && written.readAll() == contents)
        return true;
    *error = QCoreApplication::translate("ReplaceFile", "The disk did not keep what was written.");
    return false;
}
