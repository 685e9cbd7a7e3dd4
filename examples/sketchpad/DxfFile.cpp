// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfFile.h"

#include "examples/sketchpad/DxfFilter.h"
#include "examples/sketchpad/DxfReader.h"
#include "examples/sketchpad/ReplaceFile.h"

#include <dxflib/dl_dxf.h>
#include <QFile>
#include <QTemporaryDir>
#include <QtMath>

#include <exception>
#include <memory>
#include <sstream>

namespace dxf {
namespace {

QString tr(const char *sentence)
{
    return QCoreApplication::translate("dxf", sentence);
}

// Text as ASCII, every other character as \U+XXXX, which old readers understand as well. Also
// coded are the first characters of "\U+" and "%%", so that typed text does not read as a code.
std::string encoded(const QString &text)
{
    std::string bytes;
    for (QString::size_type i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const QString start = text.mid(i, 3);
        const bool readsAsCode = start == QLatin1String("\\U+") || start.startsWith(QLatin1String("%%"));
        if (character.unicode() >= 32 && character.unicode() < 127 && !readsAsCode)
            bytes += character.toLatin1();
        else
            bytes += QStringLiteral("\\U+%1")
                         .arg(character.unicode(), 4, 16, QLatin1Char('0'))
                         .toUpper()
                         .toStdString();
    }
    return bytes;
}

// The name of a line type that the file defines.
std::string defined(const QString &lineType, const Sheet &sheet)
{
    const bool isKnown = sheet.lineTypes.contains(lineType) || lineType == QLatin1String("BYLAYER")
                      || lineType == QLatin1String("BYBLOCK");
    return isKnown ? encoded(lineType) : "CONTINUOUS";
}

void writeTables(DL_Dxf &dxf, DL_WriterA &out, const Sheet &sheet)
{
    out.sectionTables();
    dxf.writeVPort(out);
    // Each table starts with its size. The first two line types are in every file.
    out.tableLinetypes(int(sheet.lineTypes.size()) + 2);
    for (const char *name : {"BYBLOCK", "BYLAYER"})
        dxf.writeLinetype(out, DL_LinetypeData(name, "", 0, 0, 0));
    for (auto type = sheet.lineTypes.begin(); type != sheet.lineTypes.end(); ++type) {
        if (type.key().startsWith(QLatin1String("BY"), Qt::CaseInsensitive))
            continue;
        QVector<double> dashes = type.value();
        double length = 0;
        for (const double dash : dashes)
            length += std::abs(dash);
        dxf.writeLinetype(
            out, DL_LinetypeData(encoded(type.key()), "", 0, int(dashes.size()), length, dashes.data()));
    }
    out.tableEnd();
    out.tableLayers(int(sheet.layers.size()));
    for (auto layer = sheet.layers.begin(); layer != sheet.layers.end(); ++layer)
        dxf.writeLayer(
            out, DL_LayerData(encoded(layer.key()), layer->flags, layer->off),
            DL_Attributes("", layer->color, layer->width, defined(layer->lineType, sheet), 1.0));
    out.tableEnd();
    out.tableStyle(1);
    dxf.writeStyle(out, DL_StyleData("Standard", 0, 0, 1, 0, 0, 2.5, "txt", ""));
    out.tableEnd();
    dxf.writeView(out);
    dxf.writeUcs(out);
    out.tableAppid(1);
    dxf.writeAppid(out, "ACAD");
    out.tableEnd();
    dxf.writeDimStyle(out, 2.5, 1.25, 0.625, 0.625, 2.5);
    dxf.writeBlockRecord(out);
    out.tableEnd();
    out.sectionEnd();
    out.sectionBlocks();
    for (const char *name : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
        dxf.writeBlock(out, DL_BlockData(name, 0, 0, 0, 0));
        dxf.writeEndBlock(out, name);
    }
    out.sectionEnd();
}

void writeEntity(DL_Dxf &dxf, DL_WriterA &out, const Sheet &sheet, const Entity &entity)
{
    const DL_Attributes attributes(encoded(entity.layer), entity.color, entity.width,
                                   defined(entity.lineType, sheet), 1.0);
    const QPointF &at = entity.origin;
    if (entity.kind == Entity::Kind::Line)
        dxf.writeLine(out, DL_LineData(at.x(), at.y(), 0, entity.end.x(), entity.end.y(), 0),
                      attributes);
    else if (entity.kind == Entity::Kind::Text)
        dxf.writeText(out,
                      DL_TextData(at.x(), at.y(), 0, at.x(), at.y(), 0, entity.height, 1, 0,
                                  entity.across, entity.upright, encoded(entity.words), "Standard",
                                  qDegreesToRadians(entity.angle)),
                      attributes);
    else if (entity.isCircle())
        dxf.writeCircle(out, DL_CircleData(at.x(), at.y(), 0, entity.radius), attributes);
    else
        dxf.writeArc(
            out, DL_ArcData(at.x(), at.y(), 0, entity.radius, entity.angle, entity.angle + entity.sweep),
            attributes);
}

} // namespace

bool isSupported()
{
    return true;
}

std::optional<Sheet> read(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return std::nullopt;
    }
    const DxfFilter filter(file.readAll());
    if (!filter.error().isEmpty()) {
        *error = filter.error();
        return std::nullopt;
    }
    try {
        DxfReader reader;
        std::istringstream known(filter.known());
        DL_Dxf().in(known, &reader);
        Sheet sheet = reader.sheet();
        sheet.units = filter.units();
        sheet.unread = filter.unread();
        return sheet;
    } catch (const std::exception &) {
        *error = tr("It is damaged.");
        return std::nullopt;
    }
}

bool write(const Sheet &sheet, const QString &path, QString *error)
{
    // dxflib writes to a named file and does not report a full disk. It therefore writes a
    // temporary file, and only one that is complete replaces the old file.
    QTemporaryDir aside;
    const QString name = aside.filePath(QStringLiteral("drawing.dxf"));
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> out(
        dxf.out(QFile::encodeName(name).constData(), DL_Codes::AC1015));
    if (!aside.isValid() || !out) {
        *error = tr("Temporary files cannot be written.");
        return false;
    }
    dxf.writeHeader(*out);
    out->dxfString(9, "$INSUNITS");
    out->dxfInt(70, sheet.units);
    out->sectionEnd();
    writeTables(dxf, *out, sheet);
    out->sectionEntities();
    for (const Entity &entity : sheet.entities)
        writeEntity(dxf, *out, sheet, entity);
    out->sectionEnd();
    dxf.writeObjects(*out);
    dxf.writeObjectsEnd(*out);
    out->dxfEOF();
    out->close();

    QFile written(name);
    const QByteArray bytes = written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    if (!bytes.trimmed().endsWith("EOF")) {
        *error = tr("The folder for temporary files is full.");
        return false;
    }
    return replaceFile(path, bytes, error);
}

} // namespace dxf
