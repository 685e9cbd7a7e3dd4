// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Icons.h"
#include "host/commands/ContrastIcon.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/HighDpiPixmaps.h"

#include <QIconEngine>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

using gesturewidget::contrastIcon;
using gesturewidget::contrastOf;
using gesturewidget::kRingIconSide;
using gesturewidget::luminanceOf;

namespace {

// The colours that the ring shows under its icons: its plate over black, white and mid-grey, and
// the two colours of the highlight.
const QVector<QColor> &plates()
{
    static const QVector<QColor> colours{QColor(0x75, 0x76, 0x77), QColor(0xfd, 0xfe, 0xff),
                                         QColor(0xb9, 0xba, 0xbb), QColor(0xff, 0xce, 0x5c),
                                         QColor(0xff, 0xb0, 0x20)};
    return colours;
}

int alphaAt(const QImage &shape, int x, int y)
{
    return shape.valid(x, y) ? qAlpha(shape.pixel(x, y)) : 0;
}

// Returns how much of the shape's outline can be read, in per cent: where its contrast with what is
// next to it outside the shape is 3:1 or more, with the picture over the plate. A pixel between
// inside and outside belongs to the soft edge of the shape and does not count.
int readablePart(const QImage &shape, const QImage &picture, const QColor &plate)
{
    constexpr int kInside = 128;
    constexpr int kOutside = 64;
    QImage seen(picture.size(), QImage::Format_RGB32);
    seen.fill(plate);
    QImage unscaled = picture;
    unscaled.setDevicePixelRatio(1);
    QPainter(&seen).drawImage(0, 0, unscaled);
    int outline = 0;
    int readable = 0;
    for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x) {
            if (alphaAt(shape, x, y) < kInside)
                continue;
            const qreal own = luminanceOf(seen.pixel(x, y));
            qreal best = 0;
            for (int j = y - 2; j <= y + 2; ++j) {
                for (int i = x - 2; i <= x + 2; ++i) {
                    // Only if no part of the shape is between the two.
                    const bool isNear = alphaAt(shape, (x + i) / 2, (y + j) / 2) < kInside
                                     || (std::abs(x - i) <= 1 && std::abs(y - j) <= 1);
                    if (!isNear || alphaAt(shape, i, j) >= kOutside)
                        continue;
                    const QRgb beside = seen.valid(i, j) ? seen.pixel(i, j) : plate.rgb();
                    best = std::max(best, contrastOf(own, luminanceOf(beside)));
                }
            }
            outline += best > 0 ? 1 : 0;
            readable += best >= 3 ? 1 : 0;
        }
    }
    return outline == 0 ? 0 : 100 * readable / outline;
}

QImage emptyShape(int width, int height)
{
    QImage shape(width, height, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    return shape;
}

// One pixel of a halo of two colours.
struct HaloPixel
{
    qreal alpha = 0; // 0 to 1
    // How much speaks for either colour.
    qreal forLight = 0;
    qreal forDark = 0;
};

// The rule of the halo, straight from its description: each pixel of the shape gives a halo that falls
// from 1 to 0 over the last pixel of its width, and those in the shape vote for the colour, with their
// contrast up to 3:1 and less the further away they are.
HaloPixel haloPixelAt(const QImage &shape, qreal ratio, int x, int y)
{
    HaloPixel result;
    for (int j = 0; j < shape.height(); ++j) {
        for (int i = 0; i < shape.width(); ++i) {
            const qreal distance = std::hypot(x - i, y - j);
            const qreal weight = qBound(0.0, gesturewidget::kHaloWidth * ratio + 0.5 - distance, 1.0);
            const QRgb colour = shape.pixel(i, j);
            result.alpha = std::max(result.alpha, weight * std::min(1.0, 4 * qAlpha(colour) / 255.0));
            if (qAlpha(colour) < 128)
                continue;
            const qreal vote = weight / (1 + distance * distance);
            const qreal own = luminanceOf(colour);
            result.forLight += vote * std::min(3.0, contrastOf(own, 1));
            result.forDark += vote * std::min(3.0, contrastOf(own, 0));
        }
    }
    return result;
}

// An icon as a person draws it: one line for each colour.
QIcon strokes(const QVector<QColor> &colours)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    int place = 8;
    for (const QColor &colour : colours) {
        painter.setPen(QPen(colour, 6));
        painter.drawLine(8, place, 56, 56);
        painter.drawEllipse(place, 12, 24, 24);
        place += 24;
    }
    return QIcon(pixmap);
}

// Draws a chessboard of small fields, scaled down.
class ChessboardEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &place, QIcon::Mode, QIcon::State) override
    {
        QImage board(64, 64, QImage::Format_RGB32);
        for (int y = 0; y < board.height(); ++y) {
            for (int x = 0; x < board.width(); ++x)
                board.setPixelColor(x, y, (x + y) % 2 ? Qt::white : Qt::black);
        }
        painter->drawImage(place, board);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new ChessboardEngine; }
};

// Counts how often it is drawn.
class CountingEngine : public QIconEngine
{
public:
    explicit CountingEngine(int &paints)
        : m_paints(paints)
    {
    }
    void paint(QPainter *painter, const QRect &place, QIcon::Mode, QIcon::State) override
    {
        ++m_paints;
        painter->fillRect(place.adjusted(4, 4, -4, -4), Qt::black);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new CountingEngine(m_paints); }

private:
    int &m_paints;
};

} // namespace

class ContrastIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void outlinesStandOut_data();
    void outlinesStandOut();
    void onlyTheRingsSizeHasAHalo();
    void onADenseScreen();
    void theHaloStaysInsideTheSquare();
    void softEdgesAreHardened_data();
    void softEdgesAreHardened();
    void softPixelsHaveAWholeHalo_data();
    void softPixelsHaveAWholeHalo();
    void theOutlineIsWhatHasTheOutsideBeside_data();
    void theOutlineIsWhatHasTheOutsideBeside();
    void oneColourIsForNearlyAll_data();
    void oneColourIsForNearlyAll();
    void pixelsAtTheBorderCount();
    void eachPixelOfTheHaloIsAsTheRuleSays_data();
    void eachPixelOfTheHaloIsAsTheRuleSays();
    void allSidesOfAShapeCount_data();
    void allSidesOfAShapeCount();
    void theHaloIsReadable_data();
    void theHaloIsReadable();
    void contrastIsThatOfTheGuidelines_data();
    void contrastIsThatOfTheGuidelines();
    void aHaloOfTwoColoursFollowsTheNearest();
    void nearPixelsCountMore_data();
    void nearPixelsCountMore();
    void bigPicturesAreScaledSmoothly();
    void theLastPictureIsKept();
    void aPainterWithoutAPictureGetsNothing();
    void nothingIsNothing();
};

void ContrastIconTest::outlinesStandOut_data()
{
    QTest::addColumn<QIcon>("icon");
    for (const char *name : {"document-new",
                             "document-open",
                             "document-print",
                             "document-save",
                             "edit-copy",
                             "edit-cut",
                             "edit-delete",
                             "edit-paste",
                             "edit-redo",
                             "edit-select-all",
                             "edit-undo",
                             "view-refresh",
                             "zoom-fit-best",
                             "zoom-in",
                             "zoom-out",
                             "go-home",
                             "draw-bezier-curves",
                             "draw-circle",
                             "draw-ellipse",
                             "draw-freehand",
                             "draw-line",
                             "draw-polygon",
                             "draw-polyline",
                             "draw-rectangle",
                             "draw-text",
                             "insert-image",
                             "insert-text",
                             "measure",
                             "object-group",
                             "object-ungroup",
                             "transform-move",
                             "transform-rotate",
                             "transform-scale",
                             "view-grid",
                             "layer-visible-on",
                             "snap-node",
                             "align-horizontal-left",
                             "configure",
                             "dialog-cancel",
                             "dialog-ok",
                             "help-contents"}) {
        for (const char *folder : {"breeze/actions/16", "breeze/actions/22", "breeze-dark/actions/16",
                                   "breeze-dark/actions/22"}) {
            const QString file = QStringLiteral("/usr/share/icons/%1/%2.svg")
                                     .arg(QLatin1String(folder), QLatin1String(name));
            QTest::newRow(qPrintable(file)) << QIcon(file);
        }
    }
    for (const char *name : {"fileNew", "fileOpen", "fileSave", "editUndo", "editErase", "drawLine",
                             "drawCircle", "drawText", "viewZoomBounds", "viewZoomIn", "viewGrid",
                             "modifyOffset", "modifyCopy", "modifyTrim", "toolsSnap", "helpAbout"})
        QTest::newRow(name) << icons::named(QLatin1String(name));
    // Icons of one colour are hard to see without a halo.
    for (const QColor &colour : {QColor(0x2b, 0x2b, 0x2b), QColor(0xe6, 0xe6, 0xe6), QColor(Qt::red),
                                 QColor(Qt::yellow), QColor(Qt::blue), QColor(0x75, 0x76, 0x77)})
        QTest::newRow(qPrintable(colour.name())) << strokes({colour});
    QTest::newRow("dark and light") << strokes({QColor(0x2b, 0x2b, 0x2b), QColor(0xe6, 0xe6, 0xe6)});
}

void ContrastIconTest::outlinesStandOut()
{
    QFETCH(QIcon, icon);
    QVERIFY(!icon.pixmap(kRingIconSide).isNull());
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage shape = gesturewidget::ringShape(icon, ratio);
        const QImage picture = gesturewidget::withHalo(shape, ratio);
        for (const QColor &plate : plates()) {
            const int part = readablePart(shape, picture, plate);
            QVERIFY2(
                part >= 90,
                qPrintable(QStringLiteral("%1 % at %2 on %3").arg(part).arg(ratio).arg(plate.name())));
        }
    }
}

void ContrastIconTest::onlyTheRingsSizeHasAHalo()
{
    const QIcon plain = strokes({QColor(0x2b, 0x2b, 0x2b)});
    const QIcon icon = contrastIcon(plain);
    const QSize ring(kRingIconSide, kRingIconSide);
    const QImage shown = icon.pixmap(ring).toImage();
    QCOMPARE(shown.size(), ring);
    QCOMPARE(shown.devicePixelRatio(), 1.0);
    QCOMPARE(shown, gesturewidget::withHalo(gesturewidget::ringShape(plain, 1), 1));
    for (const int side : {16, 22, 24, 32, 48}) {
        const QSize size(side, side);
        QCOMPARE(icon.pixmap(size).toImage(), plain.pixmap(size).toImage());
        QCOMPARE(icon.actualSize(size), plain.actualSize(size));
    }
    QPixmap small(8, 8);
    small.fill(Qt::black);
    QCOMPARE(contrastIcon(QIcon(small)).actualSize({24, 24}), small.size());
    QCOMPARE(contrastIcon(QIcon(small)).actualSize(ring), ring);
    QImage ofRing(ring, shown.format());
    ofRing.fill(Qt::transparent);
    QPainter ringPainter(&ofRing);
    icon.paint(&ringPainter, ofRing.rect());
    QCOMPARE(ofRing, shown);
    // Paint it as printing does.
    QImage painted(32, 32, QImage::Format_ARGB32_Premultiplied);
    painted.fill(Qt::white);
    QImage expected = painted;
    QPainter paintedPainter(&painted);
    icon.paint(&paintedPainter, painted.rect());
    QPainter expectedPainter(&expected);
    plain.paint(&expectedPainter, expected.rect());
    QCOMPARE(painted, expected);
}

// The scale of the screen is the same for a whole process, so this runs in one of its own.
void ContrastIconTest::onADenseScreen()
{
    constexpr qreal kScale = 2;
    if (!qFuzzyCompare(qApp->devicePixelRatio(), kScale)) {
        const QString variable = QStringLiteral("QT_SCALE_FACTOR");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        QVERIFY(environment.value(variable)
                != QString::number(kScale)); // or it would start itself for ever
        environment.insert(variable, QString::number(kScale));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("onADenseScreen")});
        QVERIFY(process.waitForFinished());
        const QByteArray said = process.readAllStandardOutput();
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 said.constData());
        return;
    }
    const QIcon plain = strokes({QColor(0x2b, 0x2b, 0x2b)});
    const QIcon icon = contrastIcon(plain);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Programs of Qt 5 ask for device pixels unless they set the attribute.
    const int side = qRound(kScale * kRingIconSide);
    QImage expected = gesturewidget::withHalo(gesturewidget::ringShape(plain, kScale), kScale);
    expected.setDevicePixelRatio(1);
    QCOMPARE(contrastIcon(plain).pixmap(side).toImage(), expected);
#endif
    QCoreApplication::setAttribute(tests::kUseHighDpiPixmaps);
    const QImage shown = icon.pixmap(kRingIconSide).toImage();
    QCOMPARE(shown.devicePixelRatio(), kScale);
    QCOMPARE(shown, gesturewidget::withHalo(gesturewidget::ringShape(plain, kScale), kScale));
    for (const int other : {16, 22, 32})
        QCOMPARE(icon.pixmap(other).toImage(), plain.pixmap(other).toImage());
}

void ContrastIconTest::theHaloStaysInsideTheSquare()
{
    QPixmap full(64, 64);
    full.fill(Qt::black);
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage picture =
            gesturewidget::withHalo(gesturewidget::ringShape(QIcon(full), ratio), ratio);
        const int side = qRound(kRingIconSide * ratio);
        QCOMPARE(picture.size(), QSize(side, side));
        QCOMPARE(picture.devicePixelRatio(), ratio);
        // The halo has enough room: first comes the black shape, then white, then nothing.
        const int middle = side / 2;
        QCOMPARE(QColor(picture.pixel(middle, middle)), QColor(Qt::black));
        const int edge = qRound(2 * ratio);
        QVERIFY(qAlpha(picture.pixel(edge - 1, middle)) > 200);
        QVERIFY(qGray(picture.pixel(edge - 1, middle)) > 200);
        QVERIFY(qAlpha(picture.pixel(0, middle)) < 200);
    }
}

// A soft pixel over its own halo: from the halo's colour alone to the shape's colour alone.
void ContrastIconTest::softEdgesAreHardened_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<int>("grey"); // of black over white
    QTest::newRow("hardly there") << 51 << 255;
    QTest::newRow("a little") << 71 << 205;
    QTest::newRow("the middle") << 102 << 128;
    QTest::newRow("nearly whole") << 152 << 3;
    QTest::newRow("whole") << 153 << 0;
    QTest::newRow("opaque") << 255 << 0;
}

void ContrastIconTest::softEdgesAreHardened()
{
    QFETCH(int, alpha);
    QFETCH(int, grey);
    constexpr int kEnd = kRingIconSide - 1;
    for (const QPoint &place : {QPoint(10, 10), QPoint(0, 10), QPoint(10, 0), QPoint(kEnd, kEnd)}) {
        QImage shape(kRingIconSide, kRingIconSide, QImage::Format_ARGB32);
        shape.fill(Qt::black);
        shape.setPixel(place, qRgba(0, 0, 0, alpha));
        const QRgb seen = gesturewidget::withHalo(shape, 1).pixel(place);
        QCOMPARE(qAlpha(seen), 255);
        QCOMPARE(qRed(seen), grey);
    }
}

// The halo of a thin line must not be as faint as the line itself.
void ContrastIconTest::softPixelsHaveAWholeHalo_data()
{
    QTest::addColumn<int>("alpha"); // of the pixel
    QTest::addColumn<int>("halo"); // alpha beside it
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("hardly there") << 1 << 4;
    QTest::newRow("nearly a quarter") << 63 << 252;
    QTest::newRow("a quarter") << 64 << 255;
    QTest::newRow("opaque") << 255 << 255;
}

void ContrastIconTest::softPixelsHaveAWholeHalo()
{
    QFETCH(int, alpha);
    QFETCH(int, halo);
    QImage shape = emptyShape(20, 20);
    shape.setPixel(10, 10, qRgba(0, 0, 0, alpha));
    const QImage seen = gesturewidget::withHalo(shape, 1);
    for (const QPoint &beside : {QPoint(9, 10), QPoint(11, 10), QPoint(10, 9), QPoint(10, 11)})
        QCOMPARE(qAlpha(seen.pixel(beside)), halo);
}

// A white pixel inside a grey square, which suits both colours: if the pixel belongs to the outline, too
// little of it suits a light halo.
void ContrastIconTest::theOutlineIsWhatHasTheOutsideBeside_data()
{
    QTest::addColumn<QPoint>("side");
    QTest::addColumn<int>("beside"); // alpha there
    QTest::addColumn<int>("own"); // alpha of the white pixel
    QTest::addColumn<bool>("isOutline");
    const QPair<const char *, QPoint> sides[] = {
        {"left", {-1, 0}}, {"right", {1, 0}}, {"above", {0, -1}}, {"below", {0, 1}}};
    for (const auto &[name, side] : sides) {
        const auto row = [&, side = side, name = name](const char *what, int beside, int own,
                                                       bool isOutline) {
            QTest::addRow("%s, %s", name, what) << side << beside << own << isOutline;
        };
        row("nothing", 0, 255, true);
        row("the soft edge", 127, 255, true);
        row("just the shape", 128, 255, false);
        row("the shape", 255, 255, false);
        row("itself just the shape", 0, 128, true);
        row("itself the soft edge", 0, 127, false);
    }
}

void ContrastIconTest::theOutlineIsWhatHasTheOutsideBeside()
{
    QFETCH(QPoint, side);
    QFETCH(int, beside);
    QFETCH(int, own);
    QFETCH(bool, isOutline);
    const QPoint middle(10, 10);
    QImage shape = emptyShape(20, 20);
    QPainter(&shape).fillRect(QRect(middle - QPoint(1, 1), QSize(3, 3)), QColor(0x80, 0x80, 0x80));
    shape.setPixel(middle, qRgba(255, 255, 255, own));
    shape.setPixel(middle + side, qRgba(0x80, 0x80, 0x80, beside));
    const QRgb corner = gesturewidget::withHalo(shape, 1).pixel(middle - QPoint(2, 1));
    QCOMPARE(qAlpha(corner), 255);
    QCOMPARE(qRed(corner), isOutline ? 0 : 255);
}

// Some pixels of one colour, far from each other, and fewer of the other colour.
void ContrastIconTest::oneColourIsForNearlyAll_data()
{
    QTest::addColumn<QColor>("colour"); // of the others
    QTest::addColumn<int>("others"); // beside one pixel of the opposite colour
    QTest::addColumn<bool>("isForAll");
    QTest::newRow("black, 9 of 10") << QColor(Qt::black) << 9 << true;
    QTest::newRow("black, 8 of 9") << QColor(Qt::black) << 8 << false;
    QTest::newRow("white, 9 of 10") << QColor(Qt::white) << 9 << true;
    QTest::newRow("white, 8 of 9") << QColor(Qt::white) << 8 << false;
}

void ContrastIconTest::oneColourIsForNearlyAll()
{
    QFETCH(QColor, colour);
    QFETCH(int, others);
    QFETCH(bool, isForAll);
    constexpr int kApart = 10;
    const QColor opposite = colour == Qt::black ? Qt::white : Qt::black;
    QImage shape = emptyShape((others + 1) * kApart, kApart);
    for (int i = 0; i <= others; ++i)
        shape.setPixelColor(kApart * i + 5, 5, i == 0 ? opposite : colour);
    const QImage seen = gesturewidget::withHalo(shape, 1);
    QCOMPARE(seen.pixelColor(kApart + 4, 5), opposite);
    QCOMPARE(seen.pixelColor(4, 5), isForAll ? opposite : colour);
}

// One of nine pixels is white, so each part gets its own colour.
void ContrastIconTest::pixelsAtTheBorderCount()
{
    constexpr int kSide = 40;
    constexpr int kEnd = kSide - 1;
    for (const QPoint &place : {QPoint(0, 20), QPoint(20, 0), QPoint(kEnd, 20), QPoint(20, kEnd)}) {
        QImage shape = emptyShape(kSide, kSide);
        for (int i = 0; i < 8; ++i)
            shape.setPixelColor(4 + 4 * i, 4 + 4 * i, Qt::black);
        shape.setPixelColor(place, Qt::white);
        const QPoint inwards(place.x() == 0      ? 1
                             : place.x() == kEnd ? -1
                                                 : 0,
                             place.y() == 0      ? 1
                             : place.y() == kEnd ? -1
                                                 : 0);
        QCOMPARE(gesturewidget::withHalo(shape, 1).pixelColor(place + inwards), QColor(Qt::black));
    }
}

void ContrastIconTest::eachPixelOfTheHaloIsAsTheRuleSays_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

// Random shapes up to the border, half of them black and half white, so that each part gets its own
// colour.
void ContrastIconTest::eachPixelOfTheHaloIsAsTheRuleSays()
{
    QFETCH(qreal, ratio);
    constexpr int kShapes = 100;
    constexpr int kSide = 9;
    constexpr qreal kAlike = 1e-4; // sums that choose neither colour
    constexpr std::array<int, 6> kAlphas{1, 40, 127, 128, 255, 255};
    QRandomGenerator random(1);
    int choices = 0;
    for (int i = 0; i < kShapes; ++i) {
        QImage shape = emptyShape(kSide, kSide);
        for (int pixel = 0; pixel < 12; ++pixel) {
            const int alpha = kAlphas.at(random.bounded(quint32(kAlphas.size())));
            const int grey = pixel % 2 ? 255 : 0;
            shape.setPixel(random.bounded(kSide), random.bounded(kSide), qRgba(grey, grey, grey, alpha));
        }
        // At least two of at most sixteen pixels have the other colour.
        for (const QPoint &corner : {QPoint(0, 0), QPoint(kSide - 1, kSide - 1)}) {
            shape.setPixelColor(corner, Qt::black);
            shape.setPixelColor(corner.x(), kSide - 1 - corner.y(), Qt::white);
        }
        const QImage seen = gesturewidget::withHalo(shape, ratio);
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                if (qAlpha(shape.pixel(x, y)) > 51) // the shape hides it
                    continue;
                const HaloPixel expected = haloPixelAt(shape, ratio, x, y);
                const QColor pixel = seen.pixelColor(x, y);
                QVERIFY(std::abs(pixel.alpha() - 255 * expected.alpha) <= 1);
                if (pixel.alpha() < 8 || std::abs(expected.forLight - expected.forDark) < kAlike)
                    continue;
                ++choices;
                QCOMPARE(pixel.red() > 128, expected.forLight > expected.forDark);
            }
        }
    }
    QVERIFY2(choices > 10 * kShapes, qPrintable(QString::number(choices)));
}

// The halo of a long bar is chosen by its long sides: each pixel that has the outside on one side
// counts.
void ContrastIconTest::allSidesOfAShapeCount_data()
{
    QTest::addColumn<bool>("isUpright");
    QTest::addColumn<QColor>("colour"); // of the long sides
    QTest::newRow("upright, black") << true << QColor(Qt::black);
    QTest::newRow("lying, black") << false << QColor(Qt::black);
    QTest::newRow("upright, white") << true << QColor(Qt::white);
    QTest::newRow("lying, white") << false << QColor(Qt::white);
}

void ContrastIconTest::allSidesOfAShapeCount()
{
    QFETCH(bool, isUpright);
    QFETCH(QColor, colour);
    const QColor opposite = colour == Qt::black ? Qt::white : Qt::black;
    constexpr int kLong = 104;
    constexpr int kEnd = 2;
    QImage shape = emptyShape(10, kLong);
    for (int y = kEnd; y < kLong - kEnd; ++y) {
        const bool isEnd = y == kEnd || y == kLong - kEnd - 1;
        for (int x = 2; x < 8; ++x)
            shape.setPixelColor(x, y, isEnd ? opposite : colour);
    }
    if (!isUpright)
        shape = shape.transformed(QTransform().rotate(90));
    const QImage seen = gesturewidget::withHalo(shape, 1);
    // One colour all around, also beside the ends.
    const QPoint besideTheEnd = isUpright ? QPoint(5, kEnd - 1) : QPoint(kEnd - 1, 5);
    const QPoint besideTheMiddle = isUpright ? QPoint(1, kLong / 2) : QPoint(kLong / 2, 1);
    for (const QPoint &place : {besideTheEnd, besideTheMiddle})
        QCOMPARE(seen.pixelColor(place), opposite);
}

void ContrastIconTest::theHaloIsReadable_data()
{
    QTest::addColumn<int>("grey");
    QTest::addColumn<int>("halo");
    // Their contrasts with white are 3.03 and 2.96.
    QTest::newRow("light") << 0x94 << 255;
    QTest::newRow("dark") << 0x96 << 0;
}

void ContrastIconTest::theHaloIsReadable()
{
    QFETCH(int, grey);
    QFETCH(int, halo);
    QImage shape = emptyShape(kRingIconSide, kRingIconSide);
    QPainter(&shape).fillRect(6, 6, 8, 8, QColor(grey, grey, grey));
    const QRgb beside = gesturewidget::withHalo(shape, 1).pixel(5, 10);
    QCOMPARE(qAlpha(beside), 255);
    QCOMPARE(qRed(beside), halo);
}

// Well-known contrasts with white.
void ContrastIconTest::contrastIsThatOfTheGuidelines_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<double>("contrast"); // rounded to hundredths
    QTest::newRow("white") << QColor(Qt::white) << 1.00;
    QTest::newRow("just enough for text") << QColor(0x76, 0x76, 0x76) << 4.54;
    QTest::newRow("not quite") << QColor(0x77, 0x77, 0x77) << 4.48;
    QTest::newRow("red") << QColor(255, 0, 0) << 4.00;
    QTest::newRow("green") << QColor(0, 128, 0) << 5.14;
    QTest::newRow("blue") << QColor(0, 0, 255) << 8.59;
    QTest::newRow("nearly black") << QColor(10, 10, 10) << 19.80;
    QTest::newRow("black") << QColor(Qt::black) << 21.00;
}

void ContrastIconTest::contrastIsThatOfTheGuidelines()
{
    QFETCH(QColor, colour);
    QFETCH(double, contrast);
    const qreal luminance = luminanceOf(colour.rgb());
    QCOMPARE(std::round(100 * contrastOf(luminance, 1)) / 100, contrast);
    QCOMPARE(contrastOf(1, luminance), contrastOf(luminance, 1));
    QCOMPARE(luminanceOf(qRgb(255, 255, 255)), 1.0);
}

void ContrastIconTest::aHaloOfTwoColoursFollowsTheNearest()
{
    QImage shape = emptyShape(kRingIconSide, kRingIconSide);
    QPainter painter(&shape);
    painter.fillRect(6, 6, 4, 8, QColor(0x4d, 0x4d, 0x4d)); // a little better with white than with black
    painter.fillRect(10, 6, 4, 8, QColor(0xe6, 0xe6, 0xe6));
    painter.end();
    const QImage picture = gesturewidget::withHalo(shape, 1);
    for (int y = 6; y < 14; ++y) {
        QCOMPARE(picture.pixel(5, y), qRgb(255, 255, 255));
        QCOMPARE(picture.pixel(14, y), qRgb(0, 0, 0));
    }
}

// Beside a black pixel are white ones, further away.
void ContrastIconTest::nearPixelsCountMore_data()
{
    QTest::addColumn<int>("distance"); // of the white ones
    QTest::addColumn<int>("count");
    QTest::addColumn<QColor>("halo");
    QTest::newRow("two at twice the distance") << 2 << 2 << QColor(Qt::white);
    QTest::newRow("three at twice the distance") << 2 << 3 << QColor(Qt::black);
    QTest::newRow("four at three times the distance") << 3 << 4 << QColor(Qt::white);
}

void ContrastIconTest::nearPixelsCountMore()
{
    QFETCH(int, distance);
    QFETCH(int, count);
    QFETCH(QColor, halo);
    const QPoint place(30, 30);
    QImage shape = emptyShape(60, 60);
    const QPoint around[] = {{distance, 0}, {0, distance}, {0, -distance}, {-distance, 0}};
    for (int i = 0; i < count; ++i)
        shape.setPixelColor(place + around[i], Qt::white);
    shape.setPixelColor(place - QPoint(1, 0), Qt::black);
    QCOMPARE(gesturewidget::withHalo(shape, 3).pixelColor(place), halo);
}

void ContrastIconTest::bigPicturesAreScaledSmoothly()
{
    const QImage shape = gesturewidget::ringShape(QIcon(new ChessboardEngine), 1);
    for (int place = 6; place < 14; ++place)
        QVERIFY(std::abs(qGray(shape.pixel(place, 10)) - 127) < 40);
}

void ContrastIconTest::theLastPictureIsKept()
{
    int paints = 0;
    const QIcon icon = contrastIcon(QIcon(new CountingEngine(paints)));
    QCOMPARE(paints, 0); // nothing is drawn before it is asked for
    const QIcon copy = icon; // NOLINT(performance-unnecessary-copy-initialization): it is tested
    QVERIFY(!icon.pixmap(kRingIconSide).isNull());
    QVERIFY(!copy.pixmap(kRingIconSide).isNull());
    QCOMPARE(paints, 1);
    const QSize ring(kRingIconSide, kRingIconSide);
    QVERIFY(!icon.pixmap(ring, QIcon::Disabled).isNull());
    QCOMPARE(paints, 2);
    QVERIFY(!icon.pixmap(ring, QIcon::Disabled, QIcon::On).isNull());
    QCOMPARE(paints, 3);
    QVERIFY(!icon.pixmap(ring, QIcon::Disabled, QIcon::On).isNull());
    QCOMPARE(paints, 3);
    for (const qreal ratio : {1.0, 2.0, 2.0}) { // as screens of different density ask
        QImage screen(2 * ring, QImage::Format_ARGB32_Premultiplied);
        screen.setDevicePixelRatio(ratio);
        QPainter painter(&screen);
        icon.paint(&painter, QRect(QPoint(), ring), Qt::AlignCenter, QIcon::Disabled, QIcon::On);
    }
    QCOMPARE(paints, 4);
}

void ContrastIconTest::aPainterWithoutAPictureGetsNothing()
{
    int paints = 0;
    const QIcon icon = contrastIcon(QIcon(new CountingEngine(paints)));
    QPainter painter;
    for (const int side : {kRingIconSide, 32})
        icon.paint(&painter, 0, 0, side, side);
    QCOMPARE(paints, 0);
}

void ContrastIconTest::nothingIsNothing()
{
    QVERIFY(contrastIcon(QIcon()).isNull());
    QCOMPARE(contrastIcon(QIcon()).cacheKey(), QIcon().cacheKey()); // without a lookup
}

QTEST_MAIN(ContrastIconTest)
#include "tst_contrasticon.moc"
