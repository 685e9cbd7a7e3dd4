#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace launcher {

// What stands on a sheet to pin on the wall: the commands of one program by direction. The
// launcher gathers it; what draws it is a program of its own, mouse-gestures-sheet, which gets
// it as JSON.
struct SheetContent
{
    struct Command
    {
        QString direction; // as Bindings names it
        QString caption; // empty when nothing lies in that direction
        QString category; // may be empty
        QByteArray icon; // a PNG file, may be empty
    };

    [[nodiscard]] QByteArray toJson() const;
    // False when the text is no such content, or not of four or eight directions.
    [[nodiscard]] bool read(const QByteArray &json);
    // How a gesture is made with the trigger, as people say it: "the right button", "Ctrl and
    // the right button".
    [[nodiscard]] QString triggerInWords() const;

    QString program;
    QString trigger; // see host/files/TriggerText.h
    bool enabled = true;
    QVector<Command> commands; // by direction index, four or eight
};

} // namespace launcher
