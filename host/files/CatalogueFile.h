// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/RememberedCommand.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace gesturewidget {

// The commands that a program has ever shown, in a JSON file. Several copies of the program may
// add to it at once.
//
// The file is replaced in one step, and the old one stays beside it as "<file>.bak". If the file
// is damaged, this class uses that copy and keeps the damaged file as "<file>.damaged". It leaves
// files alone that are not its own to write: a file of a later version, or one that cannot be read.
//
// Commands that name a document, such as entries of recent files, are never written. A file of an
// earlier version that holds some is cleaned at the next merge().
//
// An object writes at most one line to standard error about what is wrong.
class CatalogueFile
{
public:
    // An empty path means that there is no file.
    explicit CatalogueFile(const QString &path);

    // The commands in the order in which they were first seen; empty when there is no file or it
    // cannot be used. Writes nothing.
    [[nodiscard]] QVector<RememberedCommand> read();
    // Returns whether read() has returned all that was ever written, or nothing was. False if the
    // file is damaged, of a later version, or cannot be read.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    // Adds `seen` to the file and removes the identifiers `gone` from it, unless they were seen.
    // Updates texts and icon of a command that the file already has; an empty text or icon keeps
    // the old one. Writes only if something changes. Returns whether the file now holds all of
    // this; false without a line when another program holds the lock.
    [[nodiscard]] bool merge(const QVector<RememberedCommand> &seen, const QStringList &gone = {});

    // Far more than programs have. Commands and icons beyond these limits are left out, a longer
    // caption or tip is cut off.
    static constexpr qint64 kMaximalSize = qint64(32) * 1024 * 1024; // bytes of the file
    static constexpr int kMaximalCount = 8000;
    static constexpr int kMaximalText = 500; // characters
    static constexpr int kMaximalIcon = 16 * 1024; // bytes

private:
    enum class State { Missing, Good, Damaged, Foreign };
    struct Content
    {
        State state = State::Missing;
        QVector<RememberedCommand> commands;
        bool isPrivate = false; // the file holds names of documents, `commands` does not
        QString problem; // for a foreign file: words that follow its name
    };

    [[nodiscard]] static Content contentOf(const QString &path);
    [[nodiscard]] static Content parsed(const QByteArray &text);
    // The content of the file or, if that is damaged, of its copy.
    [[nodiscard]] Content lastGood();
    [[nodiscard]] bool store(const QVector<RememberedCommand> &commands, const Content &before);
    [[nodiscard]] QString backupPath() const;
    void complainOnce(const QString &line);

    QString m_path;
    bool m_isComplete = true;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
