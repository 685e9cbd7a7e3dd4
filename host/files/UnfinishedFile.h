// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <sys/types.h>

namespace gesturewidget {

// A new file that will take the name `path`, or leaves nothing behind.
//
// It has no name while it is written, so the kernel frees it if its writer is killed. It needs a
// name of its own only for a moment before it takes `path`: "<path>.saving-" and six letters. On
// file systems that have no files without a name, it has that name from the beginning.
//
// The writer holds the kernel's lock of the file. So whoever finds such a name without a lock knows
// that its writer was killed, and may remove it: see removeLeftovers().
class UnfinishedFile
{
public:
    // The mode that a new file has until fill() sets another.
    static constexpr mode_t kOwnerOnly = 0600;

    enum class Start {
        WithoutName, // where the file system can
        WithName
    };

    // Whether a mode that cannot be set is a failure. On shares and sticks all files may belong to one
    // other user; a person may write them there, but not change their modes.
    enum class Mode { Required, Wished };

    explicit UnfinishedFile(const QByteArray &path, Start start = Start::WithoutName);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

    // Writes the content, flushes it to the disk, reads it back and compares. Sets the file's mode.
    // Returns false on any error.
    [[nodiscard]] bool fill(const QByteArray &content, mode_t mode, Mode need = Mode::Required);
    // Gives it the name `path`, in place of the file that has it.
    [[nodiscard]] bool finish();

    // Gives the file `path` the second name `second`, in place of the file that has it. That name is
    // never missing meanwhile. Returns false if the file system cannot do this.
    [[nodiscard]] static bool linkAs(const QByteArray &path, const QByteArray &second);
    // Removes what killed writers of `path` have left.
    static void removeLeftovers(const QByteArray &path);

private:
    void open();
    void openWithName();
    [[nodiscard]] bool giveName();
    [[nodiscard]] bool writeAll(const QByteArray &content) const;
    [[nodiscard]] bool isOnDisk() const;
    [[nodiscard]] bool holds(const QByteArray &content) const;

    QByteArray m_path;
    QByteArray m_name; // empty while it has none
    int m_file = -1;
};

} // namespace gesturewidget
