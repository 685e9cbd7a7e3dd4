// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfFilter.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

namespace {

// A complete file with these entities, written as "code|value|code|value ...". Each code and
// each value becomes a line.
QByteArray fileOf(const char *entities, const char *sections = "")
{
    QByteArray text = sections;
    text += "0|SECTION|2|ENTITIES|";
    text += entities;
    text += "0|ENDSEC|0|EOF|";
    return text.replace('|', '\n');
}

bool keeps(const DxfFilter &filter, const char *name)
{
    return filter.known().find(std::string("0\n") + name + "\n") != std::string::npos;
}

// A literal that contains zero bytes.
template <std::size_t size> QByteArray bytes(const char (&literal)[size])
{
    return QByteArray(literal, int(size) - 1);
}

const char kLine[] = "0|LINE|8|0|10|1|20|2|11|3|21|4|";

} // namespace

class DxfFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void soundEntitiesPassWhole_data()
    {
        QTest::addColumn<QByteArray>("entity");
        QTest::newRow("line") << QByteArray(kLine);
        QTest::newRow("circle") << QByteArray("0|CIRCLE|8|0|10|1|20|2|40|3|");
        QTest::newRow("arc") << QByteArray("0|ARC|8|0|10|1|20|2|40|3|50|0|51|90|");
        QTest::newRow("text") << QByteArray("0|TEXT|8|0|10|1|20|2|40|3|1|Words|7|Standard|41|1.0|");
        QTest::newRow("centred text")
            << QByteArray("0|TEXT|8|0|10|1|20|2|11|1|21|2|40|3|1|W|72|1|73|2|");
        QTest::newRow("light polyline")
            << QByteArray("0|LWPOLYLINE|8|0|90|2|70|1|43|0|10|1|20|2|10|3|20|4|");
        QTest::newRow("polyline") << QByteArray(
            "0|POLYLINE|66|1|70|0|0|VERTEX|10|1|20|2|30|0|42|0.5|0|VERTEX|"
            "10|3|20|4|0|SEQEND|8|0|");
        QTest::newRow("book-keeping")
            << QByteArray("0|LINE|5|2A|330|1F|100|AcDbEntity|102|{ACAD_REACTORS|330|"
                          "9|102|}|8|0|67|0|410|Model|48|1.0|39|0.0|10|1|20|2|30|0.0|"
                          "11|3|21|4|31|0|210|0|220|0.0|230|1.0|");
    }
    void soundEntitiesPassWhole()
    {
        QFETCH(QByteArray, entity);
        const DxfFilter filter(fileOf(entity.constData()));
        QCOMPARE(filter.error(), QString());
        QVERIFY2(filter.unread().isEmpty(), qPrintable(filter.unread().keys().join(QLatin1Char(' '))));
        QVERIFY(keeps(filter, entity.split('|').at(1).constData()));
    }

    void whatCannotBeReadIsCounted_data()
    {
        QTest::addColumn<QByteArray>("entity");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *what, const char *entity, const char *name) {
            QTest::newRow(what) << QByteArray(entity) << QString::fromLatin1(name);
        };
        row("ellipse", "0|ELLIPSE|8|0|10|1|20|2|11|3|21|0|40|0.5|", "ELLIPSE");
        row("block reference", "0|INSERT|2|Door|10|1|20|2|", "INSERT");
        row("something new", "0|HELIX|8|0|", "HELIX");
        row("in space", "0|CIRCLE|10|1|20|2|40|3|210|0|220|1|230|0|", "CIRCLE");
        row("turned over", "0|ARC|10|1|20|2|40|3|50|0|51|9|210|0|220|0|230|-1|", "ARC");
        row("on paper", "0|LINE|67|1|10|1|20|2|11|3|21|4|", "LINE");
        row("invisible", "0|LINE|60|1|10|1|20|2|11|3|21|4|", "LINE");
        row("no radius", "0|CIRCLE|10|1|20|2|", "CIRCLE");
        row("radius 0", "0|CIRCLE|10|1|20|2|40|0|", "CIRCLE");
        row("radius below 0", "0|ARC|10|1|20|2|40|-3|50|0|51|90|", "ARC");
        row("no number", "0|LINE|10|one|20|2|11|3|21|4|", "LINE");
        row("an empty number", "0|LINE|10||20|2|11|3|21|4|", "LINE");
        row("not a number", "0|LINE|10|nan|20|2|11|3|21|4|", "LINE");
        row("endless", "0|LINE|10|inf|20|2|11|3|21|4|", "LINE");
        row("far too far", "0|LINE|10|1e10|20|2|11|3|21|4|", "LINE");
        row("fitted text", "0|TEXT|10|1|20|2|40|3|1|W|72|5|", "TEXT");
        row("text aligned by no rule", "0|TEXT|10|1|20|2|40|3|1|W|73|4|", "TEXT");
        row("mesh", "0|POLYLINE|66|1|70|16|0|VERTEX|10|1|20|2|0|SEQEND|8|0|", "POLYLINE");
        row("polyline in space", "0|POLYLINE|66|1|70|8|0|VERTEX|10|1|20|2|0|SEQEND|8|0|", "POLYLINE");
        row("damaged colour", "0|LINE|62|red|10|1|20|2|11|3|21|4|", "LINE");
    }
    void whatCannotBeReadIsCounted()
    {
        QFETCH(QByteArray, entity);
        QFETCH(QString, name);
        const DxfFilter filter(fileOf(entity.constData()));
        QCOMPARE(filter.error(), QString());
        QCOMPARE(filter.unread(), (QMap<QString, int>{{name, 1}}));
        QVERIFY(!keeps(filter, qPrintable(name)));
        QVERIFY(!keeps(filter, "VERTEX"));
    }

    void whatIsKeptInPartIsCountedToo_data()
    {
        QTest::addColumn<QByteArray>("entity");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *what, const char *entity, const char *name) {
            QTest::newRow(what) << QByteArray(entity) << QString::fromLatin1(name);
        };
        row("height above the plane", "0|LINE|10|1|20|2|30|5|11|3|21|4|", "LINE");
        row("thickness", "0|LINE|39|2|10|1|20|2|11|3|21|4|", "LINE");
        row("true colour", "0|LINE|420|255|10|1|20|2|11|3|21|4|", "LINE");
        row("notes of another program", "0|LINE|10|1|20|2|11|3|21|4|1001|ACME|1000|x|", "LINE");
        row("a style of its own", "0|TEXT|10|1|20|2|40|3|1|W|7|ROMANS|", "TEXT");
        row("narrow text", "0|TEXT|10|1|20|2|40|3|1|W|41|0.8|", "TEXT");
        row("wide polyline", "0|LWPOLYLINE|90|2|70|0|43|2|10|1|20|2|10|3|20|4|", "LWPOLYLINE");
    }
    void whatIsKeptInPartIsCountedToo()
    {
        QFETCH(QByteArray, entity);
        QFETCH(QString, name);
        const DxfFilter filter(fileOf(entity.constData()));
        QCOMPARE(filter.unread().value(name + QStringLiteral(" (kept in part)")), 1);
        QCOMPARE(filter.unread().size(), 1);
        QVERIFY(keeps(filter, qPrintable(name)));
    }

    void anUnreadEntityDoesNotTakeTheNextAlong()
    {
        const DxfFilter filter(
            fileOf("0|POLYLINE|70|16|0|VERTEX|10|1|20|2|0|SEQEND|8|0|"
                   "0|LINE|10|1|20|2|11|3|21|4|0|INSERT|66|1|2|B|0|ATTRIB|1|x|0|SEQEND|8|0|"
                   "0|CIRCLE|10|1|20|2|40|3|"));
        QCOMPARE(filter.unread(), (QMap<QString, int>{{QStringLiteral("POLYLINE"), 1},
                                                      {QStringLiteral("INSERT"), 1},
                                                      {QStringLiteral("ATTRIB"), 1}}));
        QVERIFY(keeps(filter, "LINE") && keeps(filter, "CIRCLE"));
        QVERIFY(!keeps(filter, "SEQEND"));
    }

    void anOverlongTextIsNotRead()
    {
        const QByteArray text = "0|TEXT|10|1|20|2|40|3|1|" + QByteArray(1001, 'x') + "|";
        QCOMPARE(DxfFilter(fileOf(text.constData())).unread().value(QStringLiteral("TEXT")), 1);
        const QByteArray shorter = "0|TEXT|10|1|20|2|40|3|1|" + QByteArray(1000, 'x') + "|";
        QVERIFY(DxfFilter(fileOf(shorter.constData())).unread().isEmpty());
    }

    void verticesAreCountedNotBelieved()
    {
        const DxfFilter filter(fileOf("0|LWPOLYLINE|90|2000000000|70|0|10|1|20|2|10|3|20|4|"));
        QVERIFY(filter.known().find("90\n2\n") != std::string::npos);
        QVERIFY(filter.known().find("2000000000") == std::string::npos);
    }

    void blocksWithContentAreCounted()
    {
        const DxfFilter filter(
            fileOf(kLine, "0|SECTION|2|BLOCKS|0|BLOCK|2|*Model_Space|0|ENDBLK|0|BLOCK|2|Door|"
                          "0|LINE|10|1|20|2|11|3|21|4|0|ARC|40|1|0|ENDBLK|0|ENDSEC|"));
        QCOMPARE(filter.unread(), (QMap<QString, int>{{QStringLiteral("LINE in a block"), 1},
                                                      {QStringLiteral("ARC in a block"), 1}}));
        QVERIFY(!keeps(filter, "BLOCK") && !keeps(filter, "ARC"));
    }

    void unitsLayersAndLineTypesAreFound()
    {
        const DxfFilter filter(
            fileOf(kLine, "0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|9|$INSUNITS|70|4|0|ENDSEC|"
                          "0|SECTION|2|TABLES|0|TABLE|2|STYLE|70|1|0|STYLE|2|ROMANS|0|ENDTAB|"
                          "0|TABLE|2|LAYER|70|1|0|LAYER|2|WALLS|70|0|62|3|6|DASHED|0|ENDTAB|0|ENDSEC|"));
        QCOMPARE(filter.units(), 4);
        QVERIFY(keeps(filter, "LAYER"));
        QVERIFY(!keeps(filter, "STYLE"));
        QVERIFY(filter.known().find("WALLS") != std::string::npos);
        QVERIFY(filter.known().find("HEADER") == std::string::npos);
    }

    void tablesPassOnlyWhatTheReaderCanTake()
    {
        const QByteArray longName(2000, 'X');
        const QByteArray tables =
            "0|SECTION|2|TABLES|0|TABLE|2|LTYPE|70|1|0|LTYPE|2|A|73|2|49|1e300|49|-1|0|" + longName
            + "|0|LTYPE|2|" + longName
            + "|0|ENDTAB|0|TABLE|2|LAYER|70|1|0|LAYER|2|L|62|red|0|LTYPE|2|B|0|ENDTAB|0|ENDSEC|";
        const std::string known = DxfFilter(fileOf(kLine, tables.constData())).known();
        QVERIFY(known.find("\n49\n-1\n") != std::string::npos);
        QVERIFY(known.find("1e300") == std::string::npos);
        QVERIFY(known.find("XXX") == std::string::npos);
        QVERIFY(known.find("\nL\n") != std::string::npos);
        QVERIFY(known.find("red") == std::string::npos);
        QVERIFY(known.find("\nB\n") == std::string::npos);
    }

    void linesMayEndAsOnWindows()
    {
        QByteArray file = fileOf(kLine);
        const DxfFilter filter(file.replace("\n", "\r\n"));
        QCOMPARE(filter.error(), QString());
        QVERIFY(keeps(filter, "LINE"));
        QVERIFY(filter.known().find('\r') == std::string::npos);
    }

    void whatIsNoDxfFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("reason");
        const QByteArray sound = fileOf(kLine);
        QTest::newRow("empty") << QByteArray() << QStringLiteral("It is not a DXF file.");
        QTest::newRow("one byte") << QByteArray("0") << QStringLiteral("It is not a DXF file.");
        QTest::newRow("a letter") << QByteArray("Dear Sir,\nplease\nfind enclosed\n")
                                  << QStringLiteral("It is not a DXF file.");
        QTest::newRow("zeros") << QByteArray(5000, '\0') << QStringLiteral("It is not a DXF file.");
        QTest::newRow("noise") << bytes("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\n\xff\xfe\n")
                               << QStringLiteral("It is not a DXF file.");
        QTest::newRow("numbers") << QByteArray("1\n2\n3\n4\n")
                                 << QStringLiteral("It is not a DXF file.");
        QTest::newRow("binary DXF") << bytes("AutoCAD Binary DXF\r\n\x1a\0\0SECTION\0\2HEADER\0")
                                    << QStringLiteral(
                                           "It is a binary DXF file. Only text DXF files can be read.");
        QTest::newRow("no end") << sound.left(sound.lastIndexOf(
            "0\nEOF")) << QStringLiteral("It is incomplete: the end of the drawing is missing.");
        QTest::newRow("cut in the middle")
            << sound.left(60) << QStringLiteral("It is incomplete: the end of the drawing is missing.");
        QTest::newRow("a line is missing")
            << QByteArray(sound).replace("\nLINE\n", "\n")
            << QStringLiteral("It is damaged: line 17 should be a group code.");
    }
    void whatIsNoDxfFileIsRefused()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, reason);
        const DxfFilter filter(file);
        QCOMPARE(filter.error(), reason);
        QVERIFY(filter.known().empty());
    }
};

QTEST_MAIN(DxfFilterTest)
#include "tst_dxffilter.moc"
