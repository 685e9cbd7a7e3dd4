// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// Puts a file with these contents in the place of `path`, in one step. If this fails, for
// instance because the disk is full, it returns false, sets `error` to a sentence for the
// person, and the file that was there stays as it was.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &contents, QString *error);
