// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfFile.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

class DxfFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    [[nodiscard]] QString sample(const char *name) const
    {
        return QStringLiteral(TESTS_SOURCE_DIR "/../samples/") + QLatin1String(name);
    }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool put(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
    // Reads a file with this ENTITIES section, in which '|' ends a line.
    [[nodiscard]] Sheet readEntities(const char *entities) const
    {
        QByteArray text = QByteArray("0|SECTION|2|ENTITIES|") + entities + "0|ENDSEC|0|EOF|";
        QString error;
        const auto sheet = put(path("entities.dxf"), text.replace('|', '\n'))
                             ? dxf::read(path("entities.dxf"), &error)
                             : std::nullopt;
        return sheet.value_or(Sheet());
    }
    static void compare(const Entity &found, const Entity &wanted)
    {
        const auto near = [](double a, double b) { return std::abs(a - b) < 1e-9; };
        QCOMPARE(found.kind, wanted.kind);
        QVERIFY(near(found.origin.x(), wanted.origin.x()) && near(found.origin.y(), wanted.origin.y()));
        QVERIFY(near(found.end.x(), wanted.end.x()) && near(found.end.y(), wanted.end.y()));
        QVERIFY2(near(found.radius, wanted.radius), "radius");
        QVERIFY2(near(found.angle, wanted.angle), "angle");
        QVERIFY2(near(found.sweep, wanted.sweep), "sweep");
        QVERIFY2(near(found.height, wanted.height), "height");
        QCOMPARE(found.words, wanted.words);
        QCOMPARE(found.across, wanted.across);
        QCOMPARE(found.upright, wanted.upright);
        QCOMPARE(found.layer, wanted.layer);
        QCOMPARE(found.color, wanted.color);
        QCOMPARE(found.lineType, wanted.lineType);
        QCOMPARE(found.width, wanted.width);
    }

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void whatIsWrittenIsReadAgain()
    {
        Sheet sheet;
        sheet.units = 4;
        sheet.lineTypes[QStringLiteral("DASHDOT")] = {5, -1.5, 0, -1.5};
        Sheet::Layer walls;
        walls.color = 3;
        walls.lineType = QStringLiteral("DASHDOT");
        walls.width = 50;
        Sheet::Layer hidden;
        hidden.off = true;
        hidden.flags = 1 | 4;
        sheet.layers[QStringLiteral("W\u00e4nde")] = walls;
        sheet.layers[QStringLiteral("HIDDEN")] = hidden;
        sheet.entities = {
            Entity::line({1.25, -2.5}, {1e6, 1.0 / 3}), Entity::circle({0, 0}, 0.001),
            Entity::arc({-5, 7}, 12, 350, 20), Entity::arc({-5, 7}, 12, 0, 270.5),
            Entity::label({3, 4}, 2.5, QStringLiteral("\u230036 \u00b10.2 m\u00b2 \u4e2d %%u"))};
        sheet.entities[0].layer = QStringLiteral("W\u00e4nde");
        sheet.entities[0].lineType = QStringLiteral("DASHDOT");
        sheet.entities[0].width = 35;
        sheet.entities[1].color = 5;
        sheet.entities[4].angle = 90;
        sheet.entities[4].across = 2;
        sheet.entities[4].upright = 3;

        QString error;
        QVERIFY2(dxf::write(sheet, path("all.dxf"), &error), qPrintable(error));
        const auto again = dxf::read(path("all.dxf"), &error);
        QVERIFY2(again, qPrintable(error));
        QCOMPARE(again->unread, (QMap<QString, int>()));
        QCOMPARE(again->polylines, 0);
        QCOMPARE(again->units, 4);
        QCOMPARE(again->layers.keys(), sheet.layers.keys());
        const Sheet::Layer &read = again->layers[QStringLiteral("W\u00e4nde")];
        QCOMPARE(read.color, 3);
        QCOMPARE(read.lineType, QStringLiteral("DASHDOT"));
        QCOMPARE(read.width, 50);
        QVERIFY(read.isVisible());
        QVERIFY(again->layers[QStringLiteral("HIDDEN")].off);
        QCOMPARE(again->layers[QStringLiteral("HIDDEN")].flags, 5);
        QCOMPARE(again->lineTypes[QStringLiteral("DASHDOT")], (QVector<double>{5, -1.5, 0, -1.5}));
        QVERIFY(again->lineTypes[QStringLiteral("CONTINUOUS")].isEmpty());
        QCOMPARE(again->entities.size(), sheet.entities.size());
        for (std::size_t i = 0; i < sheet.entities.size(); ++i)
            compare(again->entities[i], sheet.entities[i]);

        // Writing it again changes nothing.
        QVERIFY(dxf::write(*again, path("twice.dxf"), &error));
        QCOMPARE(contents(path("twice.dxf")), contents(path("all.dxf")));
    }

    void typedTextIsReadAsTyped_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char *typed :
             {"\\U+0041", "\\\\U+0041", "\\U+005CU+0041", "\\U+", "\\u+0041", "C:\\Users", "%%d", "%%P",
              "%%%c", "%%%%", "100 %", "%\\U+0025d", "%%u under %%u", "  blanks  "})
            QTest::newRow(typed) << QString::fromLatin1(typed);
    }
    void typedTextIsReadAsTyped()
    {
        QFETCH(QString, typed);
        Sheet sheet;
        sheet.layers[typed] = {};
        sheet.entities = {Entity::label({0, 0}, 5, typed)};
        sheet.entities[0].layer = typed.trimmed();
        QString error;
        QVERIFY2(dxf::write(sheet, path("typed.dxf"), &error), qPrintable(error));
        const auto again = dxf::read(path("typed.dxf"), &error);
        QVERIFY2(again, qPrintable(error));
        QCOMPARE(again->entities.size(), std::size_t(1));
        QCOMPARE(again->entities[0].words, typed);
        QCOMPARE(again->entities[0].layer, typed.trimmed());
    }

    void anglesInTheFileAreDegrees()
    {
        Sheet sheet;
        sheet.entities = {Entity::label({0, 0}, 5, QStringLiteral("x")), Entity::arc({0, 0}, 5, 30, 60)};
        sheet.entities[0].angle = 45;
        QString error;
        QVERIFY(dxf::write(sheet, path("angles.dxf"), &error));
        const QByteArray text = contents(path("angles.dxf")).replace(" ", "");
        QVERIFY(text.mid(text.indexOf("\nTEXT\n")).contains("\n50\n45.0\n"));
        const QByteArray arc = text.mid(text.indexOf("\nARC\n"));
        QVERIFY(arc.contains("\n50\n30.0\n"));
        QVERIFY(arc.contains("\n51\n90.0\n"));
    }

    void samplesHoldNothingThatIsUnread_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("layers");
        QTest::newRow("bracket") << sample("bracket.dxf")
                                 << QStringList{QStringLiteral("0"),      QStringLiteral("CENTER"),
                                                QStringLiteral("DIM"),    QStringLiteral("FRAME"),
                                                QStringLiteral("HIDDEN"), QStringLiteral("OUTLINE"),
                                                QStringLiteral("TEXT")};
        QTest::newRow("floor plan") << sample(
            "floor-plan.dxf") << QStringList{QStringLiteral("0"),         QStringLiteral("AXES"),
                                             QStringLiteral("DIM"),       QStringLiteral("DOORS"),
                                             QStringLiteral("FURNITURE"), QStringLiteral("PLANTS"),
                                             QStringLiteral("SANITARY"),  QStringLiteral("TEXT"),
                                             QStringLiteral("WALLS"),     QStringLiteral("WINDOWS")};
    }
    void samplesHoldNothingThatIsUnread()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, layers);
        QString error;
        const auto sheet = dxf::read(file, &error);
        QVERIFY2(sheet, qPrintable(error));
        QVERIFY(sheet->unread.isEmpty());
        QCOMPARE(QStringList(sheet->layers.keys()), layers);
        int lines = 0;
        int circles = 0;
        int arcs = 0;
        int texts = 0;
        for (const Entity &entity : sheet->entities) {
            lines += entity.kind == Entity::Kind::Line;
            texts += entity.kind == Entity::Kind::Text;
            circles += entity.isCircle();
            arcs += entity.kind == Entity::Kind::Arc && !entity.isCircle();
            QVERIFY(layers.contains(entity.layer));
        }
        QVERIFY(lines > 100 && circles > 5 && arcs > 5 && texts > 10);
        QVERIFY(dxf::write(*sheet, path("sample.dxf"), &error));
        QCOMPARE(contents(path("sample.dxf")), contents(file));
    }

    void whatTheTablesForgotIsMadeUp()
    {
        const Sheet sheet = readEntities("0|LINE|8|WALLS|6|Dotted|62|300|10|0|20|0|11|1|21|0|"
                                         "0|LINE|6|ByLayer|62|-4|10|0|20|0|11|1|21|0|");
        QCOMPARE(QStringList(sheet.layers.keys()),
                 (QStringList{QStringLiteral("0"), QStringLiteral("WALLS")}));
        QCOMPARE(sheet.entities[0].lineType, QStringLiteral("DOTTED"));
        QCOMPARE(sheet.entities[0].color, 256);
        QCOMPARE(sheet.entities[1].layer, QStringLiteral("0"));
        QCOMPARE(sheet.entities[1].lineType, QStringLiteral("BYLAYER"));
        QCOMPARE(sheet.entities[1].color, 256);
        // The file does not refer to a line type that it does not define.
        QString error;
        QVERIFY(dxf::write(sheet, path("tables.dxf"), &error));
        QVERIFY(!contents(path("tables.dxf")).contains("DOTTED"));
        QVERIFY(contents(path("tables.dxf")).contains("\nWALLS\n"));
    }

    void theFileHangsTogether()
    {
        // The dimension style refers to the text style by its handle.
        QString error;
        QVERIFY(dxf::write({}, path("empty.dxf"), &error));
        const QByteArray text = contents(path("empty.dxf"));
        const QByteArray style = text.mid(text.indexOf("\nAcDbTextStyleTableRecord") - 40, 40);
        const auto handle = style.indexOf("\n  5\n") + 5;
        const QByteArray own = style.mid(handle, style.indexOf('\n', handle) - handle);
        QVERIFY(!own.isEmpty());
        QVERIFY(text.mid(text.indexOf("\nAcDbDimStyleTableRecord")).contains("\n340\n" + own + "\n"));
    }

    void polylinesComeApart()
    {
        const Sheet open = readEntities("0|LWPOLYLINE|8|A|90|3|70|0|10|0|20|0|10|10|20|0|10|10|20|5|");
        QCOMPARE(open.polylines, 1);
        QCOMPARE(open.entities.size(), std::size_t(2));
        QCOMPARE(open.entities[1].origin, QPointF(10, 0));
        QCOMPARE(open.entities[1].end, QPointF(10, 5));
        QCOMPARE(open.entities[1].layer, QStringLiteral("A"));
        const Sheet closed = readEntities("0|LWPOLYLINE|8|A|90|3|70|1|10|0|20|0|10|10|20|0|10|10|20|5|");
        QCOMPARE(closed.entities.size(), std::size_t(3));
        QCOMPARE(closed.entities[2].end, QPointF(0, 0));
        const Sheet old =
            readEntities("0|POLYLINE|8|B|66|1|70|1|0|VERTEX|8|B|10|0|20|0|0|VERTEX|8|B|10|4|20|0|"
                         "0|VERTEX|8|B|10|4|20|3|0|SEQEND|8|B|0|LINE|8|C|10|1|20|1|11|2|21|2|");
        QCOMPARE(old.entities.size(), std::size_t(4));
        QCOMPARE(old.entities[2].end, QPointF(0, 0));
        QCOMPARE(old.entities[2].layer, QStringLiteral("B"));
        QCOMPARE(old.entities[3].layer, QStringLiteral("C"));
        QVERIFY(readEntities("0|LWPOLYLINE|8|A|90|1|70|1|10|0|20|0|").entities.empty());
    }

    void bulgesBecomeArcs()
    {
        // A half circle on the right of the line from (0,0) to (10,0), then a quarter on its left.
        const Sheet sheet = readEntities("0|LWPOLYLINE|90|3|70|0|10|0|20|0|42|1|10|10|20|0|42|"
                                         "-0.41421356237309503|10|20|20|10|");
        QCOMPARE(sheet.entities.size(), std::size_t(2));
        compare(sheet.entities[0], Entity::arc({5, 0}, 5, 180, 180));
        compare(sheet.entities[1], Entity::arc({20, 0}, 10, 90, 90));
        // Its ends are at the vertices.
        QVERIFY(std::abs(sheet.entities[1].at(0).x() - 20) < 1e-9);
        QVERIFY(std::abs(sheet.entities[1].at(1).x() - 10) < 1e-9);
    }

    void textsOfAllAgesAreUnderstood_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("words");
        QTest::newRow("UTF-8") << QByteArray("K\xc3\xbc"
                                             "che")
                               << QStringLiteral("K\u00fcche");
        QTest::newRow("Windows-1252") << QByteArray("K\xfc"
                                                    "che")
                                      << QStringLiteral("K\u00fcche");
        QTest::newRow("coded") << QByteArray("K\\U+00fcche \\U+4E2D")
                               << QStringLiteral("K\u00fcche \u4e2d");
        QTest::newRow("signs") << QByteArray("%%c5 %%P1 %%d")
                               << QStringLiteral("\u23005 \u00b11 \u00b0");
        QTest::newRow("a coded backslash") << QByteArray("\\U+005CU+0041") << QStringLiteral("\\U+0041");
        QTest::newRow("not quite coded") << QByteArray("\\U+12 \\U+") << QStringLiteral("\\U+12 \\U+");
    }
    void textsOfAllAgesAreUnderstood()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, words);
        const Sheet sheet = readEntities(("0|TEXT|10|1|20|2|40|3|1|" + bytes + "|").constData());
        QCOMPARE(sheet.entities.size(), std::size_t(1));
        QCOMPARE(sheet.entities[0].words, words);
        QCOMPARE(sheet.entities[0].origin, QPointF(1, 2));
    }

    void alignedTextHangsOnItsSecondPoint()
    {
        const Sheet sheet = readEntities("0|TEXT|10|1|20|2|11|7|21|8|40|3|1|W|72|1|73|2|"
                                         "0|TEXT|10|1|20|2|11|7|21|8|40|3|1|W|72|4|");
        QCOMPARE(sheet.entities.size(), std::size_t(2));
        for (const Entity &text : sheet.entities) {
            QCOMPARE(text.origin, QPointF(7, 8));
            QCOMPARE(text.across, 1);
            QCOMPARE(text.upright, 2);
        }
    }

    void aMissingFileSaysSo()
    {
        QString error;
        QVERIFY(!dxf::read(path("nowhere.dxf"), &error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!dxf::read(m_folder.path(), &error));
        QVERIFY(!error.isEmpty());
    }

    void everyCutOfAFileIsRefused()
    {
        const QByteArray whole = contents(sample("bracket.dxf"));
        QVERIFY(whole.size() > 10000);
        const auto end = whole.lastIndexOf("EOF");
        for (int size = 0; size < end; size += 401) {
            QVERIFY(put(path("cut.dxf"), whole.left(size)));
            QString error;
            QVERIFY2(!dxf::read(path("cut.dxf"), &error), qPrintable(QString::number(size)));
            QVERIFY(!error.isEmpty());
        }
    }

    void scrambledFilesDoNoHarm()
    {
        const QByteArray whole = contents(sample("bracket.dxf"));
        const QList<QByteArray> lines = whole.split('\n');
        QRandomGenerator random(20);
        int read = 0;
        for (int round = 0; round < 150; ++round) {
            QList<QByteArray> changed = lines;
            // Mostly values: reading stops at the first line that should be a group code.
            for (int i = 0; i < 20; ++i) {
                const int at = random.bounded(int(changed.size() / 2 - 1)) * 2;
                switch (random.bounded(6)) {
                case 0:
                    changed[at + 1] = QByteArray::number(random.bounded(-2000000, 2000000));
                    break;
                case 1:
                    changed[at + 1] = changed.at(random.bounded(int(changed.size())));
                    break;
                case 2:
                    changed[at + 1] = QByteArray::number(random.generateDouble() * 1e300);
                    break;
                case 3:
                    changed[at] = QByteArray::number(random.bounded(0, 100));
                    break;
                case 4:
                    changed[at + 1] = QByteArray(random.bounded(3000), char(random.bounded(1, 256)));
                    break;
                default:
                    changed[at] = "0";
                    changed[at + 1] =
                        QByteArrayList{"LWPOLYLINE", "SPLINE",  "HATCH",  "VERTEX", "SEQEND",
                                       "POLYLINE",   "SECTION", "ENDSEC", "TABLE",  "LTYPE"}
                            .at(random.bounded(10));
                    break;
                }
            }
            if (round % 5 == 0)
                changed[random.bounded(int(changed.size()))] = "?";
            QVERIFY(put(path("scrambled.dxf"), changed.join('\n')));
            QString error;
            const auto sheet = dxf::read(path("scrambled.dxf"), &error);
            QCOMPARE(error.isEmpty(), sheet.has_value());
            if (!sheet)
                continue;
            ++read;
            for (const Entity &entity : sheet->entities) {
                QVERIFY(std::isfinite(entity.bounds().width()) || !entity.isCurve());
                QVERIFY(entity.across >= 0 && entity.across <= 2 && entity.upright >= 0
                        && entity.upright <= 3);
            }
            QVERIFY(dxf::write(*sheet, path("written.dxf"), &error));
        }
        QVERIFY2(read > 10 && read < 150, qPrintable(QString::number(read)));
    }

    void aFailedSaveKeepsTheOldFile()
    {
        QString error;
        QVERIFY(!dxf::write({}, path("no/such/folder/x.dxf"), &error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!dxf::write({}, m_folder.path(), &error));
        QVERIFY(!error.isEmpty());
        // The temporary file cannot be written: not even root can write to /proc.
        QVERIFY(put(path("old.dxf"), "old"));
        const QByteArray place = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc");
        error.clear();
        const bool written = dxf::write({}, path("old.dxf"), &error);
        if (place.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", place);
        QVERIFY(!written);
        QVERIFY(!error.isEmpty());
        QCOMPARE(contents(path("old.dxf")), QByteArray("old"));
    }

    void aFullDiskKeepsTheOldFile()
    {
        Sheet sheet;
        QString error;
        QVERIFY(dxf::write(sheet, path("drawing.dxf"), &error));
        const QByteArray old = contents(path("drawing.dxf"));
        sheet.entities = {Entity::circle({0, 0}, 5)};
        QVERIFY(dxf::write(sheet, path("whole.dxf"), &error));
        const QByteArray whole = contents(path("whole.dxf"));
        for (int room = 0; room < whole.size(); room += 499) {
            error.clear();
            bool written = false;
            {
                const tests::FileSizeLimit disk(room);
                written = dxf::write(sheet, path("drawing.dxf"), &error);
            }
            QVERIFY2(!written, qPrintable(QString::number(room)));
            QVERIFY(!error.isEmpty());
            QCOMPARE(contents(path("drawing.dxf")), old);
        }
        const tests::FileSizeLimit disk(whole.size());
        QVERIFY2(dxf::write(sheet, path("drawing.dxf"), &error), qPrintable(error));
        QCOMPARE(contents(path("drawing.dxf")), whole);
    }
};

QTEST_MAIN(DxfFileTest)
#include "tst_dxffile.moc"
