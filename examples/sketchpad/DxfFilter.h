// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>

#include <string>

// Checks a DXF file before the reader sees it. It refuses a damaged file, selects what this
// program can keep, and counts the rest. Its output is always well formed.
class DxfFilter
{
    Q_DECLARE_TR_FUNCTIONS(DxfFilter)

public:
    // Sets error() if `file` is not a complete text DXF file.
    explicit DxfFilter(const QByteArray &file);

    [[nodiscard]] const QString &error() const { return m_error; }
    // A smaller DXF file: layers, line types, and the entities that can be read.
    [[nodiscard]] const std::string &known() const { return m_known; }
    // The kinds of entities that were not read, or read only in part, with their count.
    [[nodiscard]] const QMap<QString, int> &unread() const { return m_unread; }
    // The value of $INSUNITS.
    [[nodiscard]] int units() const { return m_units; }

private:
    struct Pair
    {
        int code;
        QByteArray value;
    };
    // The groups from one group code 0 to the next.
    struct Record
    {
        QByteArray name;
        QList<Pair> pairs;
        [[nodiscard]] QByteArray value(int code) const;
    };

    [[nodiscard]] QList<Record> split(const QByteArray &file);
    void take(const Record &record);
    void takeEntity(const Record &record);
    void write(const Record &record, const QList<int> &codes);

    QString m_error;
    std::string m_known;
    QMap<QString, int> m_unread;
    int m_units = 0;
    QByteArray m_section;
    QByteArray m_table;
    enum { NoPolyline, KeptPolyline, LeftPolyline } m_polyline = NoPolyline;
};
