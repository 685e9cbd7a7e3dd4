// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfFilter.h"

#include <QHash>
#include <QList>

#include <cmath>

namespace {

// The reader's buffer for a line holds 1024 characters.
constexpr int kLongestValue = 1000;
// A drawing with a coordinate beyond this cannot be shown as a whole.
constexpr double kFarthest = 1e9;

bool isWhole(int code)
{
    return (code >= 60 && code < 100) || code == 370;
}

bool isReal(int code)
{
    return code >= 10 && code < 60;
}

// The group codes that are kept of an entity, besides layer, line type, colour and width.
QList<int> keptCodes(const QByteArray &name)
{
    static const QHash<QByteArray, QList<int>> codes{
        {"LINE", {10, 20, 11, 21}},       {"CIRCLE", {10, 20, 40}},
        {"ARC", {10, 20, 40, 50, 51}},    {"TEXT", {10, 20, 11, 21, 40, 1, 50, 72, 73}},
        {"LWPOLYLINE", {70, 10, 20, 42}}, {"POLYLINE", {66, 70}},
        {"VERTEX", {10, 20, 42}},         {"SEQEND", {}},
    };
    const auto found = codes.constFind(name);
    return found == codes.constEnd() ? QList<int>() : QList<int>{8, 6, 62, 370} + *found;
}

// True if the reader can take a value. It does not check numbers, and its writer cannot
// write very large ones.
bool isSound(int code, const QByteArray &value)
{
    bool sound = true;
    if (isWhole(code)) {
        value.toInt(&sound);
    } else if (isReal(code)) {
        const double number = value.toDouble(&sound);
        sound = sound && std::isfinite(number) && std::abs(number) <= kFarthest;
    }
    return sound && value.size() <= kLongestValue;
}

// True if nothing is lost when a group is not kept: it only describes the file's structure,
// or it has its default value.
bool isNothing(int code, const QByteArray &value)
{
    switch (code) {
    case 5: // handle
    case 90: // number of vertices
    case 100: // subclass
    case 102: // group of references
    case 330:
    case 360:
        return true;
    case 7:
        return value.toLower() == "standard";
    case 410:
        return value.toLower() == "model";
    case 41:
    case 48:
    case 230:
        return value.toDouble() == 1 || (code == 41 && value.toDouble() == 0);
    default:
        return code < 370 && value.toDouble() == 0 && (isReal(code) || isWhole(code) || code >= 210);
    }
}

} // namespace

QByteArray DxfFilter::Record::value(int code) const
{
    for (const Pair &pair : pairs) {
        if (pair.code == code)
            return pair.value;
    }
    return {};
}

DxfFilter::DxfFilter(const QByteArray &file)
{
    if (file.startsWith("AutoCAD Binary DXF")) {
        m_error = tr("It is a binary DXF file. Only text DXF files can be read.");
        return;
    }
    const QList<Record> records = split(file);
    if (!m_error.isEmpty())
        return;
    if (records.isEmpty() || records.first().name != "SECTION")
        m_error = tr("It is not a DXF file.");
    else if (records.last().name != "EOF")
        m_error = tr("It is incomplete: the end of the drawing is missing.");
    if (!m_error.isEmpty())
        return;
    for (const Record &record : records)
        take(record);
    m_known += "0\nEOF\n";
}

QList<DxfFilter::Record> DxfFilter::split(const QByteArray &file)
{
    QList<Record> records;
    const QList<QByteArray> lines = file.split('\n');
    for (int i = 0; i + 1 < lines.size(); i += 2) {
        bool isNumber = false;
        const int code = lines[i].trimmed().toInt(&isNumber);
        if (!isNumber) {
            m_error = records.isEmpty()
                        ? tr("It is not a DXF file.")
                        : tr("It is damaged: line %1 should be a group code.").arg(i + 1);
            return {};
        }
        // Blanks at the ends of a text are part of it.
        const QByteArray value = lines[i + 1].endsWith('\r') ? lines[i + 1].chopped(1) : lines[i + 1];
        if (code == 0)
            records.append({value.trimmed().toUpper(), {}});
        else if (!records.isEmpty())
            records.last().pairs.append({code, code == 1 ? value : value.trimmed()});
        if (code == 0 && records.last().name == "EOF")
            break;
    }
    return records;
}

void DxfFilter::take(const Record &record)
{
    if (record.name == "SECTION") {
        m_section = record.value(2).toUpper();
        for (int i = 0; m_section == "HEADER" && i + 1 < record.pairs.size(); ++i) {
            if (record.pairs[i].code == 9 && record.pairs[i].value == "$INSUNITS")
                m_units = record.pairs[i + 1].value.toInt();
        }
        if (m_section == "TABLES" || m_section == "ENTITIES")
            write(record, {2});
    } else if (record.name == "ENDSEC") {
        if (m_section == "TABLES" || m_section == "ENTITIES")
            write(record, {});
        m_section.clear();
    } else if (m_section == "ENTITIES") {
        takeEntity(record);
    } else if (m_section == "BLOCKS") {
        // The model and its layouts are blocks too. Every file has some that are empty.
        if (record.name != "BLOCK" && record.name != "ENDBLK")
            ++m_unread[tr("%1 in a block").arg(QString::fromLatin1(record.name.left(40)))];
    } else if (m_section == "TABLES") {
        // Only these tables pass: an overlong name would put the reader into an endless loop.
        if (record.name == "TABLE")
            m_table = record.value(2).toUpper();
        const bool isFrame = record.name == "TABLE" || record.name == "ENDTAB";
        if (m_table == "LAYER" && (isFrame || record.name == "LAYER"))
            write(record, {2, 70, 62, 6, 370});
        else if (m_table == "LTYPE" && (isFrame || record.name == "LTYPE"))
            write(record, {2, 3, 70, 72, 73, 40, 49});
    }
}

void DxfFilter::takeEntity(const Record &record)
{
    // Vertices are kept or left out with their polyline.
    const bool belongs = record.name == "VERTEX" || record.name == "SEQEND";
    const auto polyline = m_polyline;
    if (!belongs || record.name == "SEQEND")
        m_polyline = NoPolyline;
    if (belongs && polyline != KeptPolyline)
        return;

    const QString name = QString::fromLatin1(record.name.left(40));
    const QList<int> kept = keptCodes(record.name);
    bool readable = !kept.isEmpty();
    bool whole = true;
    for (const Pair &pair : record.pairs) {
        // Invisible, in paper space, or in a plane of its own.
        const bool elsewhere =
            pair.code == 60 || pair.code == 67 || (pair.code >= 210 && pair.code <= 230);
        if (!isSound(pair.code, pair.value) || (elsewhere && !isNothing(pair.code, pair.value)))
            readable = false;
        else if (!kept.contains(pair.code) && !isNothing(pair.code, pair.value))
            whole = false;
    }
    if (record.name == "CIRCLE" || record.name == "ARC" || record.name == "TEXT")
        readable = readable && record.value(40).toDouble() > 0;
    if (record.name == "TEXT") {
        // 3 and 5 stretch the words between two points.
        const int across = record.value(72).toInt();
        const int upright = record.value(73).toInt();
        readable = readable && across >= 0 && across <= 4 && across != 3 && upright >= 0 && upright <= 3;
    }
    // Flag 1 is "closed", 128 concerns dashes; the others mark meshes and fitted curves.
    if (record.name.endsWith("POLYLINE"))
        readable = readable && !(record.value(70).toInt() & ~129);

    if (!readable)
        ++m_unread[name];
    else if (!whole)
        ++m_unread[tr("%1 (kept in part)").arg(name)];
    if (readable)
        write(record, kept);
    if (record.name == "POLYLINE")
        m_polyline = readable ? KeptPolyline : LeftPolyline;
}

void DxfFilter::write(const Record &record, const QList<int> &codes)
{
    const auto put = [this](int code, const QByteArray &value) {
        m_known += std::to_string(code) + '\n' + value.toStdString() + '\n';
    };
    put(0, record.name);
    if (record.name == "LWPOLYLINE") {
        // Counted here: the reader allocates as many vertices as the file announces.
        int vertices = 0;
        for (const Pair &pair : record.pairs)
            vertices += pair.code == 10;
        put(90, QByteArray::number(vertices));
    }
    for (const Pair &pair : record.pairs) {
        if (codes.contains(pair.code) && isSound(pair.code, pair.value))
            put(pair.code, pair.value);
    }
}
