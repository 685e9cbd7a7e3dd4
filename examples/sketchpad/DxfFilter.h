#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>

#include <string>

// Looks through a DXF file before the reader sees it: tells a damaged file from a sound one,
// picks out what this program can keep and counts everything else. What it hands on is well
// formed, whatever the file says of itself.
class DxfFilter
{
    Q_DECLARE_TR_FUNCTIONS(DxfFilter)

public:
    // A file that is not a whole text DXF file leaves a sentence in error().
    explicit DxfFilter(const QByteArray &file);

    [[nodiscard]] const QString &error() const { return m_error; }
    // A smaller DXF file: layers, line types, and the entities that can be read.
    [[nodiscard]] const std::string &known() const { return m_known; }
    // What else there was, and how often; also entities that are read but not whole.
    [[nodiscard]] const QMap<QString, int> &unread() const { return m_unread; }
    // The value of $INSUNITS.
    [[nodiscard]] int units() const { return m_units; }

private:
    struct Pair
    {
        int code;
        QByteArray value;
    };
    // What lies between one group code 0 and the next.
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
