// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "gesture/MgRingImages.h"
#include "sdk/QtBridge.h"
#include "tests/gesture/GoldenImage.h"
#include "tests/gesture/PaintRecorder.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/HighDpiPixmaps.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QTest>

#include <cmath>
#include <utility>
#include <vector>

using tests::Painted;
using tests::PaintRecorder;

namespace {

// From Debian's fonts-wine.
const char kFontFile[] = "/usr/share/wine/fonts/tahoma.ttf";

QImage resource(const QString &name)
{
    return QImage(QStringLiteral(":/gesturewidgetimages/Resources/%1.png").arg(name));
}

bool same(const QImage &a, const QImage &b)
{
    return !a.isNull()
        && a.convertToFormat(QImage::Format_ARGB32) == b.convertToFormat(QImage::Format_ARGB32);
}

// An icon of one size. Its shape shows which way is up and has no smooth edges.
QIcon makeIcon(int hue, int size = 20)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(2, 2, size - 4, size - 4, QColor::fromHsv(hue, 170, 210));
    painter.fillRect(5, 5, size - 10, 4, Qt::white);
    painter.fillRect(5, 5, 4, size - 10, Qt::white);
    return QIcon(pixmap);
}

class PaintedDonut : public MgDonutDialogPVStyleImpl
{
public:
    PaintedDonut(int sectors, int active)
        : MgDonutDialogPVStyleImpl(nullptr, Qt::WindowFlags())
    {
        resize(250, 250);
        arcCount = static_cast<quint16>(sectors);
        activeArc = static_cast<qint16>(active);
    }

    void addText(const QString &text) { sectorVisuals.emplace_back(1, QVariant(text)); }
    void addIcon(const QIcon &icon) { sectorVisuals.emplace_back(0, QVariant(icon)); }
    void addTexts()
    {
        for (int i = 0; i < arcCount; ++i)
            addText(QStringLiteral("S%1").arg(i));
    }
    void addIcons()
    {
        for (int i = 0; i < arcCount; ++i)
            addIcon(makeIcon(i * 43));
    }

    std::vector<Painted> record(const QRegion &part = {}, qreal ratio = 1.0)
    {
        PaintRecorder recorder(size(), ratio);
        render(&recorder, part.boundingRect().topLeft(), part, DrawChildren);
        return recorder.painted;
    }
    QImage picture(qreal ratio = 1.0)
    {
        QImage image(size() * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        render(&image, QPoint(), QRegion(), DrawChildren);
        return image;
    }
};

// A label's origin, from the ring's centre, y downward.
QPointF labelPoint(const Painted &painted)
{
    return painted.transform.map(QPointF(0, 0)) - QPointF(125, 125);
}

double rotationOf(const Painted &painted)
{
    const double radians = std::atan2(painted.transform.m12(), painted.transform.m11());
    return radians * 180.0 / 3.14159265358979323846;
}

bool isNear(const QPointF &a, const QPointF &b)
{
    return std::abs(a.x() - b.x()) <= 0.00005001 && std::abs(a.y() - b.y()) <= 0.00005001;
}

// Where a centred text begins: whole pixels.
int leftOf(int width)
{
    return -(width / 2);
}

// The label points of a ring of 250 pixels, to four decimals.
const std::vector<QPointF> kFourPoints{
    {0.1764, -92.9998}, {-92.9999, -0.1176}, {-0.0588, 93.0}, {93.0, 0.0}};
const std::vector<QPointF> kEightPoints{{0.1764, -92.9998},  {-65.6569, -65.8648}, {-92.9999, -0.1176},
                                        {-65.8233, 65.6985}, {-0.0588, 93.0},      {65.7401, 65.7817},
                                        {93.0, 0.0},         {65.7401, -65.7817}};
const std::vector<double> kFourRotations{0, -90, 0, 90};
const std::vector<double> kEightRotations{0, -45, -90, 45, 0, -45, 90, 45};
const std::vector<QString> kFourRegions{
    QStringLiteral("gestureregion_top"), QStringLiteral("gestureregion_left"),
    QStringLiteral("gestureregion_bottom"), QStringLiteral("gestureregion_right")};
const std::vector<QString> kEightRegions{
    QStringLiteral("gestureregion3"), QStringLiteral("gestureregion4"), QStringLiteral("gestureregion5"),
    QStringLiteral("gestureregion6"), QStringLiteral("gestureregion7"), QStringLiteral("gestureregion8"),
    QStringLiteral("gestureregion1"), QStringLiteral("gestureregion2")};

// A text of at least `length` characters that is exactly `width` pixels wide; empty if there
// is none.
QString textOfWidth(int width, int length)
{
    const QFontMetrics metrics(QFont(QStringLiteral("TAHOMA"), 10));
    const QString letters = QStringLiteral("ilrtaemo");
    for (const QChar first : letters) {
        for (const QChar second : letters) {
            for (int n = 0; n < 30; ++n) {
                for (int m = 0; m < 30; ++m) {
                    QString text = QString(n, first) + QString(m, second);
                    if (text.size() >= length && metrics.horizontalAdvance(text) == width)
                        return text;
                }
            }
        }
    }
    return {};
}

} // namespace

class DonutPaintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void labelPointsAndRotations_data();
    void labelPointsAndRotations();
    void lowerHalfIsComputed();
    void labelPointFollowsTheWidth();
    void orderOfPainting_data();
    void orderOfPainting();
    void onlyTheRingWithoutSector();
    void onlyTheEventsRectangle();
    void fadingFrame_data();
    void fadingFrame();
    void indexPastTheLastSector_data();
    void indexPastTheLastSector();
    void otherSectorCountsAreDrawnLikeFour();
    void textStyle();
    void textIsCentred();
    void longTextIsCut_data();
    void longTextIsCut();
    void emptyTextDrawsNothing();
    void iconsAreNotRotated();
    void iconsOfOtherSizes();
    void iconsShowTheirOffState();
    void iconsAreOfTheDevicesRatio_data();
    void iconsAreOfTheDevicesRatio();
    void denseIconsArePaintedPixelByPixel();
    void imagesAreOfTheDevicesRatio_data();
    void imagesAreOfTheDevicesRatio();
    void imagesAreKeptReadyToPaint();
    void scaledImagesArePremultipliedOnce();
    void fiveLargeImagesAreKept();
    void imagesAreSharp_data();
    void imagesAreSharp();
    void wrongValuesDrawNothing();
    void missingEntriesDrawNothing();
    void goldenImage_data();
    void goldenImage();
    void goldenText_data();
    void goldenText();
};

void DonutPaintingTest::initTestCase()
{
    tests::failOnWarnings();
    QVERIFY2(QFontDatabase::addApplicationFont(QString::fromLatin1(kFontFile)) != -1,
             "Tahoma is missing: install fonts-wine");
    const QFontInfo info(QFont(QStringLiteral("TAHOMA"), 10));
    QCOMPARE(info.family(), QStringLiteral("Tahoma"));
    QVERIFY(tests::warnings().isEmpty());
}

void DonutPaintingTest::labelPointsAndRotations_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("index");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<double>("rotation");
    for (int i = 0; i < 4; ++i) {
        const auto at = static_cast<std::size_t>(i);
        QTest::addRow("four %d", i) << 4 << i << kFourPoints[at] << kFourRotations[at];
    }
    for (int i = 0; i < 8; ++i) {
        const auto at = static_cast<std::size_t>(i);
        QTest::addRow("eight %d", i) << 8 << i << kEightPoints[at] << kEightRotations[at];
    }
}

void DonutPaintingTest::labelPointsAndRotations()
{
    QFETCH(int, sectors);
    QFETCH(int, index);
    QFETCH(QPointF, point);
    QFETCH(double, rotation);

    // Once asked directly ...
    PaintedDonut donut(sectors, -1);
    QImage image(250, 250, QImage::Format_ARGB32);
    QPainter painter(&image);
    bool lowerHalf = false;
    QCOMPARE(donut.setPainterOrigin(&painter, sectors, index, lowerHalf), rotation);
    QVERIFY(isNear(painter.transform().map(QPointF(0, 0)), point));
    QVERIFY(qFuzzyCompare(painter.transform().m11(), 1.0));

    // ... and once painted, both active and inactive.
    for (const int active : {index, (index + 1) % sectors}) {
        PaintedDonut shown(sectors, active);
        shown.addTexts();
        const QString name = QStringLiteral("S%1").arg(index);
        int found = 0;
        for (const Painted &painted : shown.record()) {
            if (painted.kind != Painted::Text || painted.text != name)
                continue;
            ++found;
            QVERIFY(isNear(labelPoint(painted), point));
            QVERIFY(std::abs(rotationOf(painted) - rotation) < 1e-9);
        }
        QCOMPARE(found, 1);
    }
}

void DonutPaintingTest::lowerHalfIsComputed()
{
    PaintedDonut donut(8, -1);
    QImage image(250, 250, QImage::Format_ARGB32);
    QPainter painter(&image);
    const auto lowerHalf = [&](int sectors, int index) {
        bool lower = false;
        donut.setPainterOrigin(&painter, sectors, index, lower);
        return lower;
    };
    for (int i = 0; i < 4; ++i)
        QCOMPARE(lowerHalf(4, i), i != 2);
    for (int i = 0; i < 8; ++i)
        QCOMPARE(lowerHalf(8, i), i < 3 || i > 5);
}

void DonutPaintingTest::labelPointFollowsTheWidth()
{
    PaintedDonut donut(4, -1);
    donut.resize(300, 250);
    QImage image(300, 250, QImage::Format_ARGB32);
    QPainter painter(&image);
    bool lowerHalf = false;
    donut.setPainterOrigin(&painter, 4, 3, lowerHalf);
    QVERIFY(isNear(painter.transform().map(QPointF(0, 0)), QPointF(118.0, 0.0)));
}

void DonutPaintingTest::orderOfPainting_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("active");
    for (int i = 0; i < 4; ++i)
        QTest::addRow("four %d", i) << 4 << i;
    for (int i = 0; i < 8; ++i)
        QTest::addRow("eight %d", i) << 8 << i;
}

void DonutPaintingTest::orderOfPainting()
{
    QFETCH(int, sectors);
    QFETCH(int, active);
    PaintedDonut donut(sectors, active);
    donut.addTexts();
    const std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), static_cast<std::size_t>(sectors) + 2);

    std::size_t at = 0;
    QCOMPARE(painted[at].kind, Painted::Image);
    QVERIFY(same(painted[at].image, resource(QStringLiteral("gesture_widget"))));
    QCOMPARE(painted[at].opacity, 0.47058823529411764);
    QCOMPARE(painted[at].transform.map(painted[at].at), QPointF(0, 0));
    for (int i = 0; i < sectors; ++i) {
        if (i == active)
            continue;
        ++at;
        QCOMPARE(painted[at].text, QStringLiteral("S%1").arg(i));
        QCOMPARE(painted[at].opacity, 1.0);
    }
    ++at;
    const auto &regions = sectors == 4 ? kFourRegions : kEightRegions;
    QCOMPARE(painted[at].kind, Painted::Image);
    QVERIFY(same(painted[at].image, resource(regions[static_cast<std::size_t>(active)])));
    QCOMPARE(painted[at].opacity, 1.0);
    QCOMPARE(painted[at].transform.map(painted[at].at), QPointF(0, 0));
    ++at;
    QCOMPARE(painted[at].text, QStringLiteral("S%1").arg(active));
    for (const Painted &each : painted)
        QVERIFY(each.antialiased);
}

void DonutPaintingTest::onlyTheRingWithoutSector()
{
    PaintedDonut donut(4, -1);
    donut.addTexts();
    const std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(1));
    QVERIFY(same(painted[0].image, resource(QStringLiteral("gesture_widget"))));
    QCOMPARE(painted[0].opacity, 120.0 / 255.0);
}

void DonutPaintingTest::onlyTheEventsRectangle()
{
    PaintedDonut donut(4, 1);
    donut.addTexts();
    const QRect part(20, 30, 100, 50);
    const std::vector<Painted> painted = donut.record(part);
    QVERIFY(!painted.empty());
    for (const Painted &each : painted)
        QCOMPARE(each.clip, part);
}

void DonutPaintingTest::fadingFrame_data()
{
    orderOfPainting_data();
}

void DonutPaintingTest::fadingFrame()
{
    QFETCH(int, sectors);
    QFETCH(int, active);
    PaintedDonut donut(sectors, active);
    donut.addTexts();
    donut.fading = true;
    const std::vector<Painted> painted = donut.record();
    const auto at = static_cast<std::size_t>(active);
    QCOMPARE(painted.size(), std::size_t(2));
    QCOMPARE(painted[0].kind, Painted::Image);
    QVERIFY(same(painted[0].image, resource((sectors == 4 ? kFourRegions : kEightRegions)[at])));
    QCOMPARE(painted[0].opacity, 1.0);
    QCOMPARE(painted[0].transform.map(painted[0].at), QPointF(0, 0));
    QCOMPARE(painted[1].text, QStringLiteral("S%1").arg(active));
    QVERIFY(isNear(labelPoint(painted[1]), (sectors == 4 ? kFourPoints : kEightPoints)[at]));
    QVERIFY(std::abs(rotationOf(painted[1]) - (sectors == 4 ? kFourRotations : kEightRotations)[at])
            < 1e-9);
    QVERIFY(painted[0].antialiased && painted[1].antialiased);
}

void DonutPaintingTest::indexPastTheLastSector_data()
{
    QTest::addColumn<int>("sectors");
    QTest::newRow("four") << 4;
    QTest::newRow("eight") << 8;
}

void DonutPaintingTest::indexPastTheLastSector()
{
    QFETCH(int, sectors);
    PaintedDonut donut(sectors, sectors);
    donut.addTexts();
    const std::vector<Painted> painted = donut.record();
    // The ring and every label, but no highlight.
    QCOMPARE(painted.size(), static_cast<std::size_t>(sectors) + 1);
    for (std::size_t i = 1; i < painted.size(); ++i)
        QCOMPARE(painted[i].text, QStringLiteral("S%1").arg(i - 1));
    donut.fading = true;
    QCOMPARE(donut.record().size(), std::size_t(0));
}

void DonutPaintingTest::otherSectorCountsAreDrawnLikeFour()
{
    // There are no highlights for such a count.
    PaintedDonut donut(5, 4);
    donut.addTexts();
    const std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(6));
    for (std::size_t i = 0; i < 4; ++i)
        QVERIFY(isNear(labelPoint(painted[i + 1]), kFourPoints[i]));
    QCOMPARE(rotationOf(painted[5]), -90.0);
}

void DonutPaintingTest::textStyle()
{
    PaintedDonut donut(4, 0);
    donut.addTexts();
    int texts = 0;
    for (const Painted &painted : donut.record()) {
        if (painted.kind != Painted::Text)
            continue;
        ++texts;
        QCOMPARE(painted.font.family(), QStringLiteral("TAHOMA"));
        QCOMPARE(painted.font.pointSize(), 10);
        QCOMPARE(static_cast<int>(painted.font.weight()), static_cast<int>(QFont::Normal));
        QVERIFY(!painted.font.italic());
        QCOMPARE(painted.pen.style(), Qt::SolidLine);
        QCOMPARE(painted.pen.color(), QColor(Qt::black));
    }
    QCOMPARE(texts, 4);
}

void DonutPaintingTest::textIsCentred()
{
    const QFontMetrics metrics(QFont(QStringLiteral("TAHOMA"), 10));
    for (const char *name : {"i", "Line", "Dtext", "Zoom"}) {
        const QString text = QString::fromLatin1(name);
        PaintedDonut donut(4, 0);
        for (int i = 0; i < 4; ++i)
            donut.addText(text);
        for (const Painted &painted : donut.record()) {
            if (painted.kind == Painted::Text)
                QCOMPARE(painted.at, QPointF(leftOf(metrics.horizontalAdvance(text)), 3.0));
        }
    }
}

void DonutPaintingTest::longTextIsCut_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isCut");
    QTest::newRow("49 pixels") << 49 << false;
    QTest::newRow("50 pixels") << 50 << false;
    QTest::newRow("51 pixels") << 51 << true;
    QTest::newRow("90 pixels") << 90 << true;
}

void DonutPaintingTest::longTextIsCut()
{
    QFETCH(int, width);
    QFETCH(bool, isCut);
    const QFontMetrics metrics(QFont(QStringLiteral("TAHOMA"), 10));
    const QString text = textOfWidth(width, 9);
    QVERIFY(!text.isEmpty());
    QCOMPARE(metrics.horizontalAdvance(text), width);

    const QString inactive = isCut ? text.left(8) + QStringLiteral("..") : text;
    const QString active = isCut ? text.left(7) + QStringLiteral("..") : text;
    for (const bool fading : {false, true}) {
        PaintedDonut donut(4, 2);
        for (int i = 0; i < 4; ++i)
            donut.addText(text);
        donut.fading = fading;
        std::vector<QString> texts;
        for (const Painted &painted : donut.record()) {
            if (painted.kind != Painted::Text)
                continue;
            texts.push_back(painted.text);
            // The cut text is centred.
            QCOMPARE(painted.at, QPointF(leftOf(metrics.horizontalAdvance(painted.text)), 3.0));
        }
        if (fading)
            QCOMPARE(texts, (std::vector<QString>{active}));
        else
            QCOMPARE(texts, (std::vector<QString>{inactive, inactive, inactive, active}));
    }
}

void DonutPaintingTest::emptyTextDrawsNothing()
{
    PaintedDonut donut(4, 1);
    donut.addText(QStringLiteral("up"));
    donut.addText(QString());
    donut.addText(QString());
    donut.addText(QStringLiteral("right"));
    const std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(4));
    QCOMPARE(painted[1].text, QStringLiteral("up"));
    QCOMPARE(painted[2].text, QStringLiteral("right"));
    QVERIFY(isNear(labelPoint(painted[2]), kFourPoints[3]));
    QVERIFY(same(painted[3].image, resource(QStringLiteral("gestureregion_left"))));
}

void DonutPaintingTest::iconsAreNotRotated()
{
    PaintedDonut donut(8, 5);
    donut.addIcons();
    int icons = 0;
    for (const Painted &painted : donut.record()) {
        if (painted.kind != Painted::Pixmap)
            continue;
        const std::size_t index =
            icons == 7 ? 5 : static_cast<std::size_t>(icons < 5 ? icons : icons + 1);
        QCOMPARE(painted.image.size(), QSize(20, 20));
        QVERIFY(same(painted.image, makeIcon(static_cast<int>(index) * 43).pixmap(20, 20).toImage()));
        QCOMPARE(painted.at, QPointF(-10, -10));
        QCOMPARE(rotationOf(painted), 0.0);
        QVERIFY(isNear(labelPoint(painted), kEightPoints[index]));
        ++icons;
    }
    QCOMPARE(icons, 8);
}

void DonutPaintingTest::iconsOfOtherSizes()
{
    PaintedDonut donut(4, 0);
    donut.addIcon(makeIcon(10, 20));
    donut.addIcon(makeIcon(10, 15)); // not enlarged
    donut.addIcon(makeIcon(10, 64));
    donut.addIcon(makeIcon(10, 20));
    std::vector<QPointF> corners;
    for (const Painted &painted : donut.record()) {
        if (painted.kind == Painted::Pixmap)
            corners.push_back(painted.at);
    }
    QCOMPARE(corners, (std::vector<QPointF>{{-7, -7}, {-10, -10}, {-10, -10}, {-10, -10}}));
}

void DonutPaintingTest::iconsShowTheirOffState()
{
    QPixmap off(20, 20);
    off.fill(Qt::darkGreen);
    QPixmap on(20, 20);
    on.fill(Qt::red);
    QPixmap disabled(20, 20);
    disabled.fill(Qt::gray);
    QIcon icon;
    icon.addPixmap(off, QIcon::Normal, QIcon::Off);
    icon.addPixmap(on, QIcon::Normal, QIcon::On);
    icon.addPixmap(disabled, QIcon::Disabled, QIcon::Off);
    PaintedDonut donut(4, 0);
    for (int i = 0; i < 4; ++i)
        donut.addIcon(icon);
    int icons = 0;
    for (const Painted &painted : donut.record()) {
        if (painted.kind != Painted::Pixmap)
            continue;
        ++icons;
        QCOMPARE(QColor(painted.image.pixel(10, 10)), QColor(Qt::darkGreen));
    }
    QCOMPARE(icons, 4);
}

void DonutPaintingTest::iconsAreOfTheDevicesRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("pixels");
    QTest::newRow("1") << 1.0 << 20;
    QTest::newRow("1.25") << 1.25 << 25;
    QTest::newRow("1.5") << 1.5 << 30;
    QTest::newRow("2") << 2.0 << 40;
    QTest::newRow("3") << 3.0 << 60;
}

void DonutPaintingTest::iconsAreOfTheDevicesRatio()
{
    QFETCH(double, ratio);
    QFETCH(int, pixels);
    for (const bool programAsks : {false, true}) {
        QCoreApplication::setAttribute(tests::kUseHighDpiPixmaps, programAsks);
        PaintedDonut donut(4, 0);
        donut.addIcon(makeIcon(10, 128));
        donut.addIcon(makeIcon(10, 128));
        donut.addIcon(makeIcon(10, 16)); // too small: not enlarged, and still in the middle
        donut.addIcon(makeIcon(10, 128));
        std::vector<QSize> sizes;
        std::vector<QPointF> corners;
        for (const Painted &painted : donut.record({}, ratio)) {
            if (painted.kind != Painted::Pixmap)
                continue;
            sizes.push_back(painted.image.size());
            corners.push_back(painted.at);
        }
        QCoreApplication::setAttribute(tests::kUseHighDpiPixmaps, false);
        const QSize whole(pixels, pixels);
        QCOMPARE(sizes, (std::vector<QSize>{whole, QSize(16, 16), whole, whole}));
        QCOMPARE(corners, (std::vector<QPointF>{{-10, -10}, {-8, -8}, {-10, -10}, {-10, -10}}));
    }
}

void DonutPaintingTest::denseIconsArePaintedPixelByPixel()
{
    QImage checks(40, 40, QImage::Format_RGB32);
    for (int y = 0; y < checks.height(); ++y) {
        for (int x = 0; x < checks.width(); ++x)
            checks.setPixel(x, y, (x + y) % 2 ? 0xff000000 : 0xffffffff);
    }
    PaintedDonut donut(8, 0);
    for (int sector = 0; sector < 8; ++sector)
        donut.addIcon(QIcon(QPixmap::fromImage(checks)));
    std::vector<QPointF> places;
    for (const Painted &painted : donut.record({}, 2.0)) {
        if (painted.kind == Painted::Pixmap)
            places.push_back(painted.transform.map(QPointF(0, 0)));
    }
    QCOMPARE(places.size(), std::size_t(8));
    const QImage picture = donut.picture(2.0);
    for (const QPointF &place : places) {
        const QPoint middle = (place * 2).toPoint();
        for (int y = -15; y < 15; ++y) {
            for (int x = -15; x < 15; ++x) {
                const QRgb pixel = picture.pixel(middle + QPoint(x, y));
                QVERIFY2(pixel == 0xff000000 || pixel == 0xffffffff,
                         qPrintable(QString::number(pixel, 16)));
            }
        }
    }
}

void DonutPaintingTest::imagesAreOfTheDevicesRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QString>("suffix"); // of the file that is painted as it is; "" for none
    QTest::newRow("1") << 1.0 << 250 << QString();
    QTest::newRow("1.25") << 1.25 << 313 << QString();
    QTest::newRow("1.5") << 1.5 << 375 << QString();
    QTest::newRow("2") << 2.0 << 500 << QStringLiteral("@2x");
    QTest::newRow("3") << 3.0 << 750 << QStringLiteral("@3x");
    QTest::newRow("4") << 4.0 << 1000 << QString();
}

void DonutPaintingTest::imagesAreOfTheDevicesRatio()
{
    QFETCH(double, ratio);
    QFETCH(int, pixels);
    QFETCH(QString, suffix);
    PaintedDonut donut(8, 6);
    std::vector<QImage> images;
    for (const Painted &painted : donut.record({}, ratio)) {
        QCOMPARE(painted.at, QPointF(0, 0));
        images.push_back(painted.image);
    }
    QCOMPARE(images.size(), std::size_t(2));
    for (const QImage &image : images)
        QCOMPARE(image.size(), QSize(pixels, pixels));
    if (!suffix.isEmpty()) {
        QVERIFY(same(images[0].copy(), resource(QLatin1String("gesture_widget") + suffix)));
        QVERIFY(same(images[1].copy(), resource(QLatin1String("gestureregion1") + suffix)));
    }
}

void DonutPaintingTest::imagesAreKeptReadyToPaint()
{
    const QString path = QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png");
    MgRingImages images;
    const QImage image = images.image(path, 1.0);
    QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied); // no other is painted as fast
    QCOMPARE(image, resource(QStringLiteral("gesture_widget")).convertToFormat(image.format()));
    QCOMPARE(images.image(path, 1.0).cacheKey(), image.cacheKey());
}

void DonutPaintingTest::scaledImagesArePremultipliedOnce()
{
    const QString path = QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png");
    const QImage image = MgRingImages().image(path, 1.5);
    QImage wanted = resource(QStringLiteral("gesture_widget@2x"))
                        .scaled(375, 375, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    wanted.setDevicePixelRatio(1.5);
    QCOMPARE(image, wanted);
}

void DonutPaintingTest::fiveLargeImagesAreKept()
{
    const auto pathOf = [](const char *name) {
        return QStringLiteral(":/gesturewidgetimages/Resources/%1.png").arg(QLatin1String(name));
    };
    MgRingImages images;
    const auto ask = [&](const char *name) { return images.image(pathOf(name), 3.0).cacheKey(); };
    const qint64 background = ask("gesture_widget");
    for (const char *name : {"gestureregion1", "gestureregion2", "gestureregion3", "gestureregion4"})
        ask(name);
    QCOMPARE(ask("gesture_widget"), background);
    // The one that was not needed for longest goes.
    const qint64 first = ask("gestureregion1");
    for (const char *name : {"gestureregion5", "gestureregion6", "gestureregion7"})
        ask(name);
    QCOMPARE(ask("gestureregion1"), first);
    ask("gestureregion8");
    QVERIFY(ask("gesture_widget") != background);
}

void DonutPaintingTest::imagesAreSharp_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

void DonutPaintingTest::imagesAreSharp()
{
    QFETCH(double, ratio);
    PaintedDonut donut(8, 6);
    const QImage picture = donut.picture(ratio);
    // Looks to the right from the hole into the lit sector. Between bare and opaque lie only the
    // soft shadow and one edge.
    const int middle = static_cast<int>(125 * ratio);
    const auto at = [&](double x) { return qAlpha(picture.pixel(static_cast<int>(x * ratio), middle)); };
    QCOMPARE(at(125 + 55), 0);
    QCOMPARE(at(125 + 80), 255);
    int edge = 0;
    for (int x = static_cast<int>((125 + 62) * ratio); x < static_cast<int>((125 + 70) * ratio); ++x) {
        const int alpha = qAlpha(picture.pixel(x, middle));
        edge += alpha > 100 && alpha < 250 ? 1 : 0;
    }
    QVERIFY2(edge <= 2, qPrintable(QString::number(edge)));
}

void DonutPaintingTest::wrongValuesDrawNothing()
{
    PaintedDonut donut(4, 0);
    donut.sectorVisuals = {{0, QVariant(QStringLiteral("no icon"))},
                           {1, QVariant(makeIcon(10))},
                           {0, QVariant()},
                           {1, QVariant()}};
    QCOMPARE(donut.record().size(), std::size_t(2)); // ring and highlight

    // Every other kind is a text.
    donut.sectorVisuals = {{7, QVariant(42)}, {-1, QVariant(QStringLiteral("text"))}};
    const std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(4));
    QCOMPARE(painted[1].text, QStringLiteral("text"));
    QCOMPARE(painted[3].text, QStringLiteral("42"));
}

void DonutPaintingTest::missingEntriesDrawNothing()
{
    PaintedDonut donut(8, 6);
    donut.addText(QStringLiteral("only one"));
    std::vector<Painted> painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(3));
    QVERIFY(same(painted[2].image, resource(QStringLiteral("gestureregion1"))));
    donut.fading = true;
    painted = donut.record();
    QCOMPARE(painted.size(), std::size_t(1));
}

void DonutPaintingTest::goldenImage_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("active");
    QTest::addColumn<bool>("fading");
    QTest::newRow("four-none") << 4 << -1 << false;
    QTest::newRow("four-left") << 4 << 1 << false;
    QTest::newRow("four-past-the-last") << 4 << 4 << false;
    QTest::newRow("four-left-fading") << 4 << 1 << true;
    QTest::newRow("eight-right") << 8 << 6 << false;
    QTest::newRow("eight-up") << 8 << 0 << false;
    QTest::newRow("eight-past-the-last") << 8 << 8 << false;
    QTest::newRow("eight-right-fading") << 8 << 6 << true;
    QTest::newRow("four-left@2x") << 4 << 1 << false;
    QTest::newRow("eight-right@2x") << 8 << 6 << false;
    QTest::newRow("eight-right-fading@2x") << 8 << 6 << true;
}

void DonutPaintingTest::goldenImage()
{
    QFETCH(int, sectors);
    QFETCH(int, active);
    QFETCH(bool, fading);
    PaintedDonut donut(sectors, active);
    donut.addIcons();
    donut.fading = fading;
    // The images are drawn while building, and processors round differently. A few pixels at
    // the edges come out 1 of 255 lighter or darker; none may be farther off.
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString wrong = tests::compareWithGolden(
        donut.picture(name.endsWith(QLatin1String("@2x")) ? 2.0 : 1.0), name, {2, 0.0});
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void DonutPaintingTest::goldenText_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("active");
    QTest::addColumn<bool>("fading");
    QTest::newRow("four-text") << 4 << 1 << false;
    QTest::newRow("eight-text") << 8 << 3 << false;
    QTest::newRow("eight-text-fading") << 8 << 3 << true;
}

void DonutPaintingTest::goldenText()
{
    QFETCH(int, sectors);
    QFETCH(int, active);
    QFETCH(bool, fading);
    PaintedDonut donut(sectors, active);
    const char *const names[] = {"Zoom Bounds", "Offset", "Open", "Copy Objects",
                                 "Save",        "Text",   "Line", "Trim"};
    for (int i = 0; i < sectors; ++i)
        donut.addText(QString::fromLatin1(names[i]));
    donut.fading = fading;
    const QString name = QStringLiteral("%1-qt%2")
                             .arg(QString::fromLatin1(QTest::currentDataTag()))
                             .arg(qtbridge::kQtMajor);
    const QString wrong = tests::compareWithGolden(donut.picture(), name, {2, 0.001});
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

int main(int argc, char **argv)
{
    // The first font reads it.
    qputenv("FONTCONFIG_FILE", TESTS_SOURCE_DIR "/gesture/fonts.conf");
    const QApplication application(argc, argv);
    DonutPaintingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_donutpainting.moc"
