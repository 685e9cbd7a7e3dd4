#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// The command of a desktop entry, the value of its key "Exec" as the file has it: escaped as
// every value there, quoted in double quotes, with field codes such as "%F".
//
// Where it begins with "env", the program is the one that env starts.
struct ExecLine
{
    // One that cannot be read, has no program, or lets env split a text, is not valid.
    [[nodiscard]] static ExecLine parse(const QByteArray &value);
    // An argument as such a value has it; field codes in it are meant literally.
    [[nodiscard]] static QByteArray encoded(const QByteArray &argument);

    // The value with `launcher`, a path, put before the program. All else stays as it was, to
    // the byte.
    [[nodiscard]] QByteArray startedBy(const QByteArray &launcher) const;

    bool isValid = false;
    QByteArray program; // as a shell would have it
    QList<QByteArray> arguments; // likewise, with their field codes
    // Where the program begins in the value.
    int place = 0;
    QByteArray value;
};

} // namespace launcher
