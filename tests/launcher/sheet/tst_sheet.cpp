// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The sheet to pin on the wall: its texts, and that each has enough room.

#include "host/files/TriggerText.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"
#include "launcher/sheet/FittedText.h"
#include "launcher/sheet/RingPicture.h"
#include "launcher/sheet/SheetPainter.h"
#include "launcher/sheet/SheetTask.h"
#include "resources/draw/RingGeometry.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/FolderTest.h"

#include <QBuffer>
#include <QDir>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using launcher::Bindings;
using launcher::KnownCommands;
using launcher::SheetContent;
using tests::text;

namespace {

SheetContent content(int count, const QString &caption)
{
    SheetContent content;
    content.program = text("drafter");
    content.trigger = text("right");
    const QStringList names = Bindings::directionNames(count);
    for (const QString &name : names)
        content.commands.append({name, caption, text("Draw"), {}});
    return content;
}

} // namespace

class SheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        QVERIFY(m_folder.isValid());
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void labelsLieInTheirSectors_data();
    void labelsLieInTheirSectors();
    void textsAreMadeToFit_data();
    void textsAreMadeToFit();
    void namesOfCommands_data();
    void namesOfCommands();
    void nothingLeavesThePage_data();
    void nothingLeavesThePage();
    void anEmptyDirectionIsBlank();
    void iconsAreDrawn();
    void passesAsJson();
    void whatIsNoContent_data();
    void whatIsNoContent();
    void triggersInWords_data();
    void triggersInWords();
    void everyButtonHasWords();
    void theSchemeInUse();
    void printed_data();
    void printed();
    void anEmptyDirectionIsPrinted();
    void aPrinterThatFails_data();
    void aPrinterThatFails();
    void aFullOutputIsNoticed();
    void whatCannotBePrinted();

private:
    QString place(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void SheetTest::labelsLieInTheirSectors_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    for (const int count : {4, 8}) {
        for (int i = 0; i < count; ++i)
            QTest::newRow(qPrintable(QStringLiteral("%1 of %2").arg(i).arg(count))) << count << i;
    }
}

void SheetTest::labelsLieInTheirSectors()
{
    QFETCH(int, count);
    QFETCH(int, index);
    const QRectF box = sheet::RingPicture::labelBox(count, index);
    const QPainterPath sector = draw::sectorPath(count, index, draw::kInnerRadius, draw::kOuterRadius);
    QVERIFY(sector.contains(box));
    QVERIFY(sector.contains(box.adjusted(-2.0, -2.0, 2.0, 2.0))); // with a margin
    QVERIFY2(box.width() >= 34.0 && box.height() >= 20.0,
             qPrintable(QStringLiteral("%1 x %2").arg(box.width()).arg(box.height())));
}

void SheetTest::textsAreMadeToFit_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QSizeF>("box");
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("short") << text("Line") << QSizeF(400, 100) << 1 << true;
    QTest::newRow("shrunk") << text("A longer caption") << QSizeF(250, 100) << 1 << true;
    QTest::newRow("broken up") << text("Move copy rotate mirror") << QSizeF(200, 200) << 3 << true;
    QTest::newRow("cut off") << text("Far too many words for one line") << QSizeF(120, 100) << 1
                             << false;
    QTest::newRow("cut off after lines")
        << text("Far too many words for two lines as short as that") << QSizeF(120, 60) << 2 << false;
    QTest::newRow("one long word") << text("Parallelverschiebungsabstandsbestimmung") << QSizeF(120, 100)
                                   << 3 << false;
    QTest::newRow("low") << text("two words") << QSizeF(90, 24) << 3 << true;
    QTest::newRow("nothing") << QString() << QSizeF(100, 50) << 1 << true;
}

void SheetTest::textsAreMadeToFit()
{
    QFETCH(QString, wanted);
    QFETCH(QSizeF, box);
    QFETCH(int, lines);
    QFETCH(bool, isWhole);
    const sheet::FittedText fitted(wanted, QFont(), box, 60, 15, lines);
    const QStringList shown = fitted.text.split(QLatin1Char('\n'));
    QVERIFY(shown.size() <= lines);
    QVERIFY2(fitted.size.width() <= box.width() && fitted.size.height() <= box.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(fitted.size.width()).arg(fitted.size.height())));
    const QFontMetricsF metrics(fitted.font);
    for (const QString &line : shown)
        QVERIFY(metrics.horizontalAdvance(line) <= box.width());
    QVERIFY(fitted.font.pixelSize() <= 60 && fitted.font.pixelSize() >= 15);
    QCOMPARE(shown.join(QLatin1Char(' ')) == wanted, isWhole);
    QCOMPARE(fitted.text.contains(QChar(0x2026)), !isWhole);
}

// A name beside others is not much smaller than they are.
void SheetTest::namesOfCommands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("width"); // in widths of the last part
    QTest::addColumn<QString>("shown");
    const QString name = text("Modify > Trim");
    QTest::newRow("fits") << name << 4.0 << name;
    QTest::newRow("on two lines") << text("Line > 2 Points") << 1.5 << text("Line > 2\nPoints");
    QTest::newRow("a little smaller") << name << 3.1 << name;
    QTest::newRow("much smaller") << name << 1.9 << text("Trim");
    QTest::newRow("cut off") << name << 1.0 << text("Trim");
    QTest::newRow("no menu") << text("Trim") << 0.7 << text("Trim");
}

void SheetTest::namesOfCommands()
{
    QFETCH(QString, name);
    QFETCH(double, width);
    QFont font;
    font.setPixelSize(20);
    const QFontMetricsF metrics(font);
    const double unit = metrics.horizontalAdvance(name.section(text(" > "), -1));
    const int lines = name.contains(text("Line")) ? 2 : 1;
    const QSizeF box(width * unit, metrics.height() * lines);
    QTEST(sheet::FittedText::ofName(name, font, box, 20, 10, lines).text, "shown");
}

void SheetTest::nothingLeavesThePage_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("caption");
    for (const int count : {4, 8}) {
        const QByteArray name = QByteArray::number(count);
        QTest::newRow(name + ", short") << count << text("Line");
        QTest::newRow(name + ", long")
            << count
            << text("Parallelverschiebungsabstandsbestimmung of all that is there ").repeated(9);
    }
}

void SheetTest::nothingLeavesThePage()
{
    QFETCH(int, count);
    QFETCH(QString, caption);
    SheetContent wanted = content(count, caption);
    wanted.program = caption;
    wanted.enabled = false;
    for (SheetContent::Command &command : wanted.commands)
        command.category = caption;
    constexpr double kMillimetre = 4.0;
    const QRectF page(40, 40, 178 * kMillimetre, 265 * kMillimetre);
    QImage paper(page.adjusted(0, 0, 80, 80).size().toSize(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    sheet::SheetPainter(wanted).paint(painter, page, kMillimetre);
    painter.end();

    const QRect inside = page.toAlignedRect().adjusted(-1, -1, 1, 1);
    int outside = 0;
    int drawn = 0;
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < paper.width(); ++x) {
            if (paper.pixel(x, y) != qRgb(255, 255, 255))
                ++(inside.contains(x, y) ? drawn : outside);
        }
    }
    QCOMPARE(outside, 0);
    QVERIFY(drawn > 10000);
}

void SheetTest::anEmptyDirectionIsBlank()
{
    const auto sectorOf = [](const SheetContent &wanted) {
        QImage image(500, 500, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        sheet::RingPicture(wanted, QFont()).paint(painter, image.rect());
        painter.end();
        const QRectF box = sheet::RingPicture::labelBox(8, 1);
        return image.copy(QRectF(box.topLeft() * 2.0, box.size() * 2.0).toAlignedRect());
    };
    SheetContent wanted = content(8, text("Line"));
    QImage blank = sectorOf(wanted);
    const QImage bound = blank;
    blank.fill(Qt::white);
    QVERIFY(bound != blank);
    wanted.commands[1].caption.clear();
    QCOMPARE(sectorOf(wanted), blank);
}

// In the ring and in the table.
void SheetTest::iconsAreDrawn()
{
    const QColor green(0, 200, 0);
    QImage icon(16, 8, QImage::Format_RGB32);
    icon.fill(green);
    SheetContent wanted = content(4, text("Line"));
    QBuffer png(&wanted.commands[2].icon);
    QVERIFY(png.open(QIODevice::WriteOnly) && icon.save(&png, "PNG"));
    const auto area = [&](const auto &painted) { // of what is green, as wide as it is high
        QImage paper(800, 1200, QImage::Format_RGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        painted.paint(painter, QRectF(paper.rect()));
        painter.end();
        QRect found;
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x) {
                if (paper.pixelColor(x, y) == green)
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    };
    struct Ring
    {
        const SheetContent &content;
        void paint(QPainter &painter, const QRectF &page) const
        {
            sheet::RingPicture(content, QFont())
                .paint(painter, QRectF(0, 0, page.width(), page.width()));
        }
    };
    struct Page
    {
        const SheetContent &content;
        void paint(QPainter &painter, const QRectF &page) const
        {
            sheet::SheetPainter(content).paint(painter, page, 4.0);
        }
    };
    const QRect inRing = area(Ring{wanted});
    QVERIFY(inRing.height() > 5);
    // It keeps its shape, but for blurred edges.
    QVERIFY(qAbs(inRing.width() - 2 * inRing.height()) <= 4);
    const QRect onPage = area(Page{wanted});
    QVERIFY(onPage.bottom() > 1200 - 9 * 4 * 3); // the table's third row of four
    for (SheetContent::Command &command : wanted.commands)
        command.icon = "no picture";
    QCOMPARE(area(Page{wanted}), QRect());
}

void SheetTest::passesAsJson()
{
    SheetContent before = content(8, text("Line, \"straight\" \xfc"));
    before.trigger = text("ctrl+middle");
    before.enabled = false;
    before.commands[3].caption.clear();
    before.commands[4].icon = QByteArray("\0\x89PNG", 5);
    SheetContent after;
    QVERIFY(after.read(before.toJson()));
    QCOMPARE(after.toJson(), before.toJson());
    QCOMPARE(after.program, before.program);
    QCOMPARE(after.trigger, before.trigger);
    QCOMPARE(after.enabled, before.enabled);
    QCOMPARE(after.commands.size(), 8);
    QCOMPARE(after.commands.at(4).icon, before.commands.at(4).icon);
    QCOMPARE(after.commands.at(0).caption, before.commands.at(0).caption);
    QCOMPARE(after.commands.at(0).category, text("Draw"));
}

void SheetTest::whatIsNoContent_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a list") << QByteArray("[]");
    QTest::newRow("no commands") << QByteArray("{\"program\": \"drafter\"}");
    QTest::newRow("no program") << content(4, text("Line")).toJson().replace("drafter", "");
    SheetContent five = content(4, text("Line"));
    five.commands.append(five.commands.first());
    QTest::newRow("five") << five.toJson();
    QTest::newRow("no such direction") << content(4, text("Line")).toJson().replace("left", "north");
}

void SheetTest::whatIsNoContent()
{
    QFETCH(QByteArray, json);
    SheetContent content;
    QVERIFY(!content.read(json));
}

void SheetTest::triggersInWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("right") << text("the right button");
    QTest::newRow("middle") << text("the middle button");
    QTest::newRow("ctrl+right") << text("Ctrl and the right button");
    QTest::newRow("meta+back") << text("Meta and the back button");
    QTest::newRow("forward") << text("the forward button");
    QTest::newRow("fn+wheel") << text("fn and wheel"); // of a later version
    QTest::newRow("ctrl+shift+alt+left") << text("Ctrl, Shift, Alt and the left button");
}

void SheetTest::triggersInWords()
{
    QFETCH(QString, words);
    SheetContent content;
    content.trigger = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(content.triggerInWords(), words);
}

void SheetTest::everyButtonHasWords()
{
    SheetContent content;
    const QStringList names = gesturewidget::buttonNames();
    for (const QString &name : names) {
        content.trigger = name;
        QCOMPARE(content.triggerInWords(), QStringLiteral("the %1 button").arg(name));
    }
}

void SheetTest::theSchemeInUse()
{
    const KnownCommands known({{text("drawArc"), {}, text("Arc..."), {}, text("Draw"), "png", false}},
                              {});
    Bindings bindings = Bindings::initial();
    bindings.eight = QStringList{text("drawArc"),
                                 text("ID_ZOOM_BOUNDS"),
                                 text("File/Print..."),
                                 QString(),
                                 text("other"),
                                 QString(),
                                 QString(),
                                 QString()};
    const SheetContent eight = launcher::sheetContent(text("drafter"), bindings, known, text("middle"));
    QCOMPARE(eight.commands.size(), 8);
    QCOMPARE(eight.trigger, text("middle"));
    QCOMPARE(eight.commands.at(0).direction, text("up"));
    QCOMPARE(eight.commands.at(0).caption, text("Arc"));
    QCOMPARE(eight.commands.at(0).category, text("Draw"));
    QCOMPARE(eight.commands.at(0).icon, QByteArray("png"));
    QCOMPARE(eight.commands.at(1).caption, text("Zoom to Fit"));
    QCOMPARE(eight.commands.at(2).caption, text("Print"));
    QCOMPARE(eight.commands.at(3).caption, QString());
    QCOMPARE(eight.commands.at(4).caption, text("other"));

    bindings.scheme = 4;
    bindings.trigger = text("ctrl+right");
    const SheetContent four = launcher::sheetContent(text("drafter"), bindings, known, text("middle"));
    QCOMPARE(four.commands.size(), 4);
    QCOMPARE(four.trigger, text("ctrl+right"));
    QCOMPARE(four.commands.at(3).caption, text("Line"));
}

void SheetTest::printed_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("four") << 4;
    QTest::newRow("eight") << 8;
}

void SheetTest::printed()
{
    QFETCH(int, count);
    SheetContent wanted = content(count, {});
    for (int i = 0; i < count; ++i)
        wanted.commands[i].caption = QStringLiteral("Command%1").arg(i);
    const QString file = place("sheet.pdf");
    const launcher::Outcome outcome = launcher::printSheet(wanted, text(DRAWER), file);
    QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));

    QProcess reader;
    reader.start(text("pdftotext"), {text("-layout"), file, text("-")});
    QVERIFY2(reader.waitForFinished(), "pdftotext, of the package poppler-utils");
    const QByteArray read = reader.readAllStandardOutput();
    QVERIFY2(read.contains("Mouse gestures in drafter"), read.constData());
    for (int i = 0; i < count; ++i) // in the ring and in the table
        QCOMPARE(read.count("Command" + QByteArray::number(i)), 2);
    QCOMPARE(read.count("Draw"), count);
    QVERIFY(read.contains(count == 8 ? "down left" : "down"));
    QCOMPARE(read.count('\f'), 1); // one page
}

void SheetTest::anEmptyDirectionIsPrinted()
{
    SheetContent wanted = content(4, text("Line"));
    wanted.commands[1].caption.clear();
    const QString file = place("empty.pdf");
    QVERIFY(launcher::printSheet(wanted, text(DRAWER), file).isDone());
    QProcess reader;
    reader.start(text("pdftotext"), {text("-layout"), file, text("-")});
    QVERIFY2(reader.waitForFinished(), "pdftotext, of the package poppler-utils");
    const QByteArray read = reader.readAllStandardOutput();
    QVERIFY2(QRegularExpression(text("left +nothing\n")).match(QString::fromUtf8(read)).hasMatch(),
             read.constData());
    QCOMPARE(read.count("Draw"), 3); // no category without a command
}

void SheetTest::aPrinterThatFails_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("crashes") << QByteArray("echo %PDF; kill -9 $$");
    QTest::newRow("fails") << QByteArray("echo %PDF; exit 3");
    QTest::newRow("says nothing") << QByteArray("exit 0");
}

void SheetTest::aPrinterThatFails()
{
    QFETCH(QByteArray, script);
    QFile drawer(place("drawer"));
    QVERIFY(drawer.open(QIODevice::WriteOnly));
    QVERIFY(drawer.write("#!/bin/sh\ncat >/dev/null\necho why >&2\n" + script + '\n') > 0);
    QVERIFY(drawer.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    drawer.close();
    const launcher::Outcome outcome =
        launcher::printSheet(content(4, text("Line")), drawer.fileName(), place("failed.pdf"));
    QCOMPARE(outcome.complaint, text("the sheet could not be drawn: why"));
    QVERIFY(!QFile::exists(place("failed.pdf")));
}

void SheetTest::aFullOutputIsNoticed()
{
    QProcess drawer;
    drawer.setStandardOutputFile(text("/dev/full"));
    drawer.start(text(DRAWER), QStringList());
    drawer.write(content(4, text("Line")).toJson());
    drawer.closeWriteChannel();
    QVERIFY(drawer.waitForFinished());
    QCOMPARE(drawer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(drawer.exitCode(), 1);
}

void SheetTest::whatCannotBePrinted()
{
    const SheetContent wanted = content(8, text("Line"));
    const QString file = place("kept.pdf");
    QFile before(file);
    QVERIFY(before.open(QIODevice::WriteOnly));
    QVERIFY(before.write("as it was") > 0);
    before.close();
    const auto isKept = [&before] {
        return before.open(QIODevice::ReadOnly) && before.readAll() == "as it was"
            && (before.close(), true);
    };
    QCOMPARE(launcher::printSheet(wanted, place("nowhere"), file).complaint,
             place("nowhere") + text(" is not installed"));
    QVERIFY(isKept());
    QVERIFY(launcher::printSheet(wanted, text("/bin/false"), file)
                .complaint.startsWith(text("the sheet could not be drawn")));
    QVERIFY(isKept());
    QVERIFY(launcher::printSheet(wanted, text("/bin/echo"), file)
                .complaint.startsWith(text("the sheet could not be drawn")));
    QVERIFY(isKept());
    SheetContent wrong = wanted;
    wrong.commands.removeLast();
    QVERIFY(launcher::printSheet(wrong, text(DRAWER), file)
                .complaint.contains(text("this is started by mouse-gestures --print")));
    QVERIFY(isKept());
    QVERIFY(QDir(m_folder.path()).mkdir(text("folder.pdf")));
    for (const QString &path : {place("no/such/folder.pdf"), place("folder.pdf")})
        QCOMPARE(launcher::printSheet(wanted, text(DRAWER), path).complaint,
                 path + text(" cannot be written"));
    QCOMPARE(QDir(m_folder.path()).entryList({text("kept*")}, QDir::Files).size(), 1);
}

QTEST_MAIN(SheetTest)
#include "tst_sheet.moc"
