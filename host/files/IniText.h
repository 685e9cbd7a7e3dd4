// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

namespace gesturewidget {

// The text of an INI file whose values are strings, as QSettings writes and reads it. Other lines
// stay as they are, including comments. Lines that no INI file can have, as after damage, are
// dropped.
//
// QSettings itself is not used. It waits for its lock file without limit, does not notice that its
// last flush failed, treats a file with the same size and the same millisecond as unchanged, and
// drops comments.
class IniText
{
public:
    explicit IniText(const QByteArray &text);

    // Returns whether an INI file can have every line. Often false for a file that a power failure
    // cut off or zeroed.
    [[nodiscard]] static bool isWellFormed(const QByteArray &text);
    // The name of a value, "section/key". Section and key may hold any characters.
    [[nodiscard]] static QString nameOf(const QString &section, const QString &key);

    // All values by name. If a key is repeated, the last value wins.
    [[nodiscard]] QMap<QString, QString> values() const;
    // Changes a value where it stands, or adds it at the end of its section.
    void set(const QString &name, const QString &value);
    // Removes a value, also if its key is repeated.
    void remove(const QString &name);
    [[nodiscard]] QByteArray text() const;

private:
    struct Line
    {
        QByteArray text;
        QString section; // "section/", empty before the first section and in "[General]"
        QString name; // of the line's value; empty when it has none
    };

    QVector<Line> m_lines;
};

} // namespace gesturewidget
