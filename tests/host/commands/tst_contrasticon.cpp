// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Icons.h"
#include "host/commands/ContrastIcon.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/HighDpiPixmaps.h"

#include <QIconEngine>
#include <QPainter>
#include <QProcess>
#include <QTest>

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
    void allSidesOfAShapeCount_data();
    void allSidesOfAShapeCount();
    void theHaloIsReadable_data();
    void theHaloIsReadable();
    void aHaloOfTwoColoursFollowsTheNearest();
    void nearPixelsCountMore_data();
    void nearPixelsCountMore();
    void theLastPictureIsKept();
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
    QCoreApplication::setAttribute(tests::kUseHighDpiPixmaps);
    const QIcon plain = strokes({QColor(0x2b, 0x2b, 0x2b)});
    const QIcon icon = contrastIcon(plain);
    const QImage shown = icon.pixmap(kRingIconSide).toImage();
    QCOMPARE(shown.devicePixelRatio(), kScale);
    QCOMPARE(shown, gesturewidget::withHalo(gesturewidget::ringShape(plain, kScale), kScale));
    for (const int side : {16, 22, 32})
        QCOMPARE(icon.pixmap(side).toImage(), plain.pixmap(side).toImage());
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
    QImage shape(20, 20, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    for (int y = 4; y < 16; ++y) {
        for (int x = 4; x < 16; ++x)
            shape.setPixel(x, y, qRgba(0, 0, 0, x == 10 && y == 10 ? alpha : 255));
    }
    const QRgb seen = gesturewidget::withHalo(shape, 1).pixel(10, 10);
    QCOMPARE(qAlpha(seen), 255);
    QCOMPARE(qRed(seen), grey);
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
    QImage shape(20, 20, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    shape.setPixel(10, 10, qRgba(0, 0, 0, alpha));
    const QImage seen = gesturewidget::withHalo(shape, 1);
    for (const QPoint &beside : {QPoint(9, 10), QPoint(11, 10), QPoint(10, 9), QPoint(10, 11)})
        QCOMPARE(qAlpha(seen.pixel(beside)), halo);
}

// The halo of a long bar is chosen by its long sides: each pixel that has the outside on one side
// counts.
void ContrastIconTest::allSidesOfAShapeCount_data()
{
    QTest::addColumn<bool>("isUpright");
    QTest::newRow("upright") << true;
    QTest::newRow("lying") << false;
}

void ContrastIconTest::allSidesOfAShapeCount()
{
    QFETCH(bool, isUpright);
    constexpr int kLong = 104;
    constexpr int kEnd = 2;
    QImage shape(10, kLong, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    for (int y = kEnd; y < kLong - kEnd; ++y) {
        const bool isEnd = y == kEnd || y == kLong - kEnd - 1;
        for (int x = 2; x < 8; ++x)
            shape.setPixel(x, y, isEnd ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
    if (!isUpright)
        shape = shape.transformed(QTransform().rotate(90));
    const QImage seen = gesturewidget::withHalo(shape, 1);
    // Light all around, also beside the light ends.
    const QPoint besideTheEnd = isUpright ? QPoint(5, kEnd - 1) : QPoint(kEnd - 1, 5);
    const QPoint besideTheMiddle = isUpright ? QPoint(1, kLong / 2) : QPoint(kLong / 2, 1);
    for (const QPoint &place : {besideTheEnd, besideTheMiddle}) {
        QCOMPARE(qAlpha(seen.pixel(place)), 255);
        QCOMPARE(qRed(seen.pixel(place)), 255);
    }
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
    QImage shape(kRingIconSide, kRingIconSide, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    QPainter(&shape).fillRect(6, 6, 8, 8, QColor(grey, grey, grey));
    const QRgb beside = gesturewidget::withHalo(shape, 1).pixel(5, 10);
    QCOMPARE(qAlpha(beside), 255);
    QCOMPARE(qRed(beside), halo);
}

void ContrastIconTest::aHaloOfTwoColoursFollowsTheNearest()
{
    QImage shape(kRingIconSide, kRingIconSide, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
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
    QImage shape(60, 60, QImage::Format_ARGB32);
    shape.fill(Qt::transparent);
    const QPoint around[] = {{distance, 0}, {0, distance}, {0, -distance}, {-distance, 0}};
    for (int i = 0; i < count; ++i)
        shape.setPixelColor(place + around[i], Qt::white);
    shape.setPixelColor(place - QPoint(1, 0), Qt::black);
    QCOMPARE(gesturewidget::withHalo(shape, 3).pixelColor(place), halo);
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
}

void ContrastIconTest::nothingIsNothing()
{
    QVERIFY(contrastIcon(QIcon()).isNull());
}

QTEST_MAIN(ContrastIconTest)
#include "tst_contrasticon.moc"
