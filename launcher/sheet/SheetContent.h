// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace launcher {

// The content of a sheet to pin on the wall: the commands of one program by direction. The launcher
// gathers it. A separate program, mouse-gestures-sheet, gets it as JSON and draws it.
struct SheetContent
{
    struct Command
    {
        QString direction; // one of Bindings::directionNames()
        QString caption; // empty when nothing lies in that direction
        QString category; // may be empty
        QByteArray icon; // a PNG file, may be empty
    };

    [[nodiscard]] QByteArray toJson() const;
    // Returns false when the text is no such content, or does not have four or eight directions.
    [[nodiscard]] bool read(const QByteArray &json);
    // The trigger in words: "the right button", "Ctrl and the right button".
    [[nodiscard]] QString triggerInWords() const;

    QString program;
    QString trigger; // see host/files/TriggerText.h
    bool enabled = true;
    QVector<Command> commands; // by direction index, four or eight
};

} // namespace launcher
