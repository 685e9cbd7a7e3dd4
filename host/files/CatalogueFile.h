#pragma once

#include "host/files/RememberedCommand.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace gesturewidget {

// The commands that a program has ever shown, in a JSON file of its own that several copies
// of the program may add to at once.
//
// The file is replaced in one step, and what it was before stays beside it as "<file>.bak".
// That copy is used when the file turns out to be damaged; the damaged one is then kept as
// "<file>.damaged". A file that is not this class's to write, such as one of a later version
// or one that cannot be read, is left alone.
//
// Whatever is wrong is said in one line on standard error, once in the life of an object.
class CatalogueFile
{
public:
    // An empty path stands for no file.
    explicit CatalogueFile(const QString &path);

    // The commands in the order in which they were first seen; none when there is no file
    // or it cannot be used. Writes nothing.
    [[nodiscard]] QVector<RememberedCommand> read();
    // Adds `seen` to the file and takes the identifiers `gone` out of it, unless they were
    // seen. Of a command that the file has already it brings texts and icon up to date; an
    // empty one leaves what is there. A file that says all of this is not written. Returns
    // whether the file now says so; false too, and silent, while another program holds it.
    [[nodiscard]] bool merge(const QVector<RememberedCommand> &seen, const QStringList &gone = {});

    // Far more than programs have. What is beyond these is left out, a caption or tip cut off.
    static constexpr qint64 kMaximalSize = 32 * 1024 * 1024; // bytes of the file
    static constexpr int kMaximalCount = 8000;
    static constexpr int kMaximalText = 500; // characters
    static constexpr int kMaximalIcon = 16 * 1024; // bytes

private:
    enum class State { Missing, Good, Damaged, Foreign };
    struct Content
    {
        State state = State::Missing;
        QVector<RememberedCommand> commands;
        QString problem; // of a foreign one, follows the file's name
    };

    [[nodiscard]] static Content contentOf(const QString &path);
    [[nodiscard]] static Content parsed(const QByteArray &text);
    // That of the file or, when it is damaged, of its copy.
    [[nodiscard]] Content lastGood();
    [[nodiscard]] bool store(const QVector<RememberedCommand> &commands, State before);
    [[nodiscard]] QString backupPath() const;
    void complainOnce(const QString &line);

    QString m_path;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
