#pragma once

#include "launcher/desktop/ExecLine.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace launcher {

// A desktop entry, a file "NAME.desktop" that puts a program into the desktop's menus. It is
// read and changed line by line: what is not asked for stays as it is, to the byte.
class DesktopFile
{
public:
    // False when there is no such file, or it is none that can be read.
    [[nodiscard]] bool read(const QString &path);
    [[nodiscard]] QByteArray content() const;

    // Value of a key of the entry itself, as the file has it; of a key that stands twice the
    // last one. Null when there is none.
    [[nodiscard]] QByteArray value(const QByteArray &key) const;
    // Sets a key of the entry itself, wherever it stands, or adds it to its end.
    void setValue(const QByteArray &key, const QByteArray &value);
    // Whether it starts a program and has not been deleted by its owner.
    [[nodiscard]] bool isApplication() const;
    // Whether a copy that was made to start a program with gestures.
    [[nodiscard]] bool isOurs() const { return value("X-MouseGestures") == "true"; }
    [[nodiscard]] ExecLine exec() const { return ExecLine::parse(value("Exec")); }

    // Puts `launcher` before the program in "Exec" of the entry and of its actions, wherever
    // `isWanted` says so of the command.
    void startBy(const QByteArray &launcher, const std::function<bool(const ExecLine &)> &isWanted);

private:
    struct Line
    {
        QByteArray text;
        QByteArray group; // that it stands in; of a group's head that group

        [[nodiscard]] bool isOfEntry() const { return group == "Desktop Entry"; }
        [[nodiscard]] QByteArray key() const; // empty when it has none
        [[nodiscard]] QByteArray value() const; // never null
    };

    QList<Line> m_lines;
};

} // namespace launcher
