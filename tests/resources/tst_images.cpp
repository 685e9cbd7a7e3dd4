// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QImage>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

const QString kFolder = QStringLiteral(":/gesturewidgetimages/Resources/");
const QString kRoot = QStringLiteral(":/gesturewidgetimages/");

constexpr int kSize = 250;
constexpr double kCentre = 125.0;
constexpr double kLabelRadius = 93.0;
constexpr double kAcceptRadius = 69.0;
// The overlay paints the ring with this opacity.
constexpr double kRingOpacity = 120.0 / 255.0;

// An antialiased edge may reach this far to either side of a sector's border, in pixels: half
// a pixel's diagonal is 0.71. The band's own radii are read off the ring's pixels, which adds
// as much again.
constexpr double kEdge = 1.0;
constexpr double kRadialEdge = 1.5;
// Separators are quieter than this, of 255.
constexpr int kSeparatorAlpha = 90;
// The images for screens of higher density.
constexpr int kEnlarged[] = {2, 3};

const QStringList &fourNames()
{
    static const QStringList names{
        QStringLiteral("gestureregion_top"), QStringLiteral("gestureregion_left"),
        QStringLiteral("gestureregion_bottom"), QStringLiteral("gestureregion_right")};
    return names;
}

// By sector: 0 is up, the others follow counter-clockwise.
const QStringList &eightNames()
{
    static const QStringList names{QStringLiteral("gestureregion3"), QStringLiteral("gestureregion4"),
                                   QStringLiteral("gestureregion5"), QStringLiteral("gestureregion6"),
                                   QStringLiteral("gestureregion7"), QStringLiteral("gestureregion8"),
                                   QStringLiteral("gestureregion1"), QStringLiteral("gestureregion2")};
    return names;
}

const QStringList &regionNames()
{
    static const QStringList names = fourNames() + eightNames();
    return names;
}

const QStringList &arrowNames()
{
    static const QStringList names{QStringLiteral("up"),    QStringLiteral("up_left"),
                                   QStringLiteral("left"),  QStringLiteral("down_left"),
                                   QStringLiteral("down"),  QStringLiteral("down_right"),
                                   QStringLiteral("right"), QStringLiteral("up_right")};
    return names;
}

QStringList numbers()
{
    QStringList result;
    for (int i = 0; i < 4; ++i)
        result << QString::number(40 + i);
    for (int i = 0; i < 8; ++i)
        result << QString::number(80 + i);
    return result;
}

QImage load(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

struct Place
{
    double radius;
    double angle; // degrees in [0, 360), counter-clockwise from right
};

// The place of a pixel's middle.
Place placeOf(int x, int y)
{
    const double dx = x + 0.5 - kCentre;
    const double dy = kCentre - (y + 0.5);
    const double angle = std::atan2(dy, dx) * 180.0 / M_PI;
    return {std::hypot(dx, dy), angle < 0.0 ? angle + 360.0 : angle};
}

// The distance of a place from the nearer border of a sector, in pixels along the circle;
// positive inside.
double depthInSector(const Place &place, int count, int index)
{
    const double centre = 90.0 + index * 360.0 / count;
    const double off = std::abs(std::remainder(place.angle - centre, 360.0));
    return (180.0 / count - off) * M_PI / 180.0 * place.radius;
}

// The distance of a place from the nearest border between sectors, in pixels along the circle.
double distanceFromBorder(const Place &place, int count)
{
    const double width = 360.0 / count;
    const double off = std::abs(std::remainder(place.angle - 90.0 - width / 2.0, width));
    return off * M_PI / 180.0 * place.radius;
}

// The band's radii, as the ring's opaque pixels show them.
struct Band
{
    double inner = kSize;
    double outer = 0.0;
};

Band bandOf(const QImage &ring)
{
    Band band;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (qAlpha(ring.pixel(x, y)) < 255)
                continue;
            const double radius = placeOf(x, y).radius;
            band.inner = std::min(band.inner, radius);
            band.outer = std::max(band.outer, radius);
        }
    }
    return band;
}

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// Contrast of two luminances, 1 to 21.
double contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// `top` at `opacity` over an opaque ground.
QRgb blend(QRgb top, double opacity, QRgb ground)
{
    const double alpha = qAlpha(top) / 255.0 * opacity;
    const auto mix = [alpha](int a, int b) { return qRound(a * alpha + b * (1.0 - alpha)); };
    return qRgb(mix(qRed(top), qRed(ground)), mix(qGreen(top), qGreen(ground)),
                mix(qBlue(top), qBlue(ground)));
}

} // namespace

// The embedded images are all there, have the right size, and each highlight lies in its own
// sector.
class ImagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void sizes_data();
    void sizes();
    void nothingElseIsEmbedded();

    void ringHasAHoleAndRoomForLabels();
    void ringIsTheSameInEverySector();
    void labelsAreReadable_data();
    void labelsAreReadable();
    void ringShowsOnEveryDrawing_data();
    void ringShowsOnEveryDrawing();

    void sectorKeepsToItself_data();
    void sectorKeepsToItself();
    void sectorsCoverTheRing_data();
    void sectorsCoverTheRing();
    void separatorsAreThoseOfTheScheme_data();
    void separatorsAreThoseOfTheScheme();
    void chevronsAreReadable_data();
    void chevronsAreReadable();
    void enlargedImagesAreTheSame_data();
    void enlargedImagesAreTheSame();
    void variantsDiffer_data();
    void variantsDiffer();

    void arrowsAreAllDifferent();
    void arrowPointsItsWay_data();
    void arrowPointsItsWay();
    void arrowsAreTurnsOfEachOther();
    void arrowShowsOnEveryRow_data();
    void arrowShowsOnEveryRow();
};

void ImagesTest::sizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");

    const QSize ring(250, 250);
    const QSize arrow(32, 32);
    const auto add = [](const QString &path, const QSize &size) {
        QTest::newRow(qPrintable(path)) << path << size;
    };
    const auto addEnlarged = [add](const QString &name, const QSize &plain) {
        add(kFolder + name + QStringLiteral(".png"), plain);
        for (const int ratio : kEnlarged)
            add(kFolder + QStringLiteral("%1@%2x.png").arg(name).arg(ratio), plain * ratio);
    };
    addEnlarged(QStringLiteral("gesture_widget"), ring);
    for (const QString &name : regionNames()) {
        addEnlarged(name, ring);
        add(kFolder + name + QStringLiteral("_text_checked.png"), ring);
    }
    for (const QString &name : arrowNames())
        addEnlarged(name, arrow);
    add(kRoot + QStringLiteral("backgroundDonut.png"), ring);
    const QStringList all = numbers();
    for (const QString &number : all) {
        add(kRoot + QStringLiteral("targetDonut_%1.png").arg(number), ring);
        add(kRoot + QStringLiteral("targetDonutOver_%1.png").arg(number), ring);
    }
}

void ImagesTest::sizes()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);

    const QImage image(path);
    QVERIFY(!image.isNull());
    QCOMPARE(image.size(), size);
    QVERIFY(image.hasAlphaChannel());
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
}

void ImagesTest::nothingElseIsEmbedded()
{
    // The ring, 12 regions and 8 arrows in three sizes, and 12 more variants.
    QCOMPARE(QDir(kFolder).entryList(QDir::Files).size(), 3 * 21 + 12);
    // The ring once more, 12 numbered sectors twice.
    QCOMPARE(QDir(kRoot).entryList(QDir::Files).size(), 25);
}

void ImagesTest::ringHasAHoleAndRoomForLabels()
{
    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    const Band band = bandOf(ring);

    // Entering the band runs the command. So its edge lies just within the accepting distance.
    QVERIFY2(band.inner < kAcceptRadius, qPrintable(QString::number(band.inner)));
    QVERIFY2(band.inner > kAcceptRadius - 8.0, qPrintable(QString::number(band.inner)));
    // An icon of 20 pixels fits into the band around radius 93 at any angle.
    QVERIFY(band.inner < kLabelRadius - 15.0);
    QVERIFY(band.outer > kLabelRadius + 15.0);
    // The labels lie in the band's middle.
    QVERIFY(std::abs((band.inner + band.outer) / 2.0 - kLabelRadius) < 1.0);

    QStringList offending;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double radius = placeOf(x, y).radius;
            const int alpha = qAlpha(ring.pixel(x, y));
            // The drawing shows in the hole, and the soft edge ends within the image.
            const bool outside = radius < 55.0 || radius > kCentre;
            const bool inside = radius > band.inner + kRadialEdge && radius < band.outer - kRadialEdge;
            if ((outside && alpha != 0) || (inside && alpha != 255))
                offending << QStringLiteral("(%1, %2): %3").arg(x).arg(y).arg(alpha);
        }
    }
    QVERIFY2(offending.isEmpty(), qPrintable(offending.mid(0, 5).join(QLatin1Char('\n'))));
}

void ImagesTest::ringIsTheSameInEverySector()
{
    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    const QImage turned = ring.transformed(QTransform().rotate(90.0)).convertToFormat(ring.format());
    int worst = 0;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const QRgb a = ring.pixel(x, y);
            const QRgb b = turned.pixel(x, y);
            worst = std::max(worst, std::abs(qAlpha(a) - qAlpha(b)));
            if (qAlpha(a) == 255 && qAlpha(b) == 255)
                worst = std::max(worst, std::abs(qGreen(a) - qGreen(b)));
        }
    }
    QVERIFY2(worst <= 12, qPrintable(QString::number(worst)));
}

void ImagesTest::labelsAreReadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("opacity");
    QTest::addColumn<double>("wanted");

    // Small text needs 4.5 to 1. A black drawing is the worst case.
    QTest::newRow("ring") << QStringLiteral("gesture_widget") << kRingOpacity << 4.5;
    for (const QString &name : regionNames()) {
        QTest::newRow(qPrintable(name)) << name << 1.0 << 7.0;
        const QString checked = name + QStringLiteral("_text_checked");
        QTest::newRow(qPrintable(checked)) << checked << 1.0 << 7.0;
    }
}

void ImagesTest::labelsAreReadable()
{
    QFETCH(QString, name);
    QFETCH(double, opacity);
    QFETCH(double, wanted);

    const QImage image = load(kFolder + name + QStringLiteral(".png"));
    int seen = 0;
    double worst = 21.0;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const Place place = placeOf(x, y);
            // Only the strip of texts and icons, away from the borders of sectors.
            const double border = std::abs(std::remainder(place.angle, 22.5));
            if (std::abs(place.radius - kLabelRadius) > 10.0 || border < 2.0
                || qAlpha(image.pixel(x, y)) < 255)
                continue;
            ++seen;
            worst = std::min(worst,
                             contrast(luminance(blend(image.pixel(x, y), opacity, qRgb(0, 0, 0))), 0.0));
        }
    }
    QVERIFY2(seen > 500, qPrintable(QString::number(seen)));
    QVERIFY2(worst >= wanted, qPrintable(QString::number(worst)));
}

void ImagesTest::ringShowsOnEveryDrawing_data()
{
    QTest::addColumn<int>("gray");
    for (const int gray : {0, 64, 128, 192, 255})
        QTest::newRow(qPrintable(QString::number(gray))) << gray;
}

void ImagesTest::ringShowsOnEveryDrawing()
{
    QFETCH(int, gray);
    const QRgb ground = qRgb(gray, gray, gray);
    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    // In every direction something in the ring stands out from the drawing.
    for (int degrees = 0; degrees < 360; degrees += 5) {
        double best = 1.0;
        for (double radius = 60.0; radius < kCentre; radius += 0.5) {
            const double angle = degrees * M_PI / 180.0;
            const int x = static_cast<int>(kCentre + std::cos(angle) * radius);
            const int y = static_cast<int>(kCentre - std::sin(angle) * radius);
            best = std::max(best, contrast(luminance(blend(ring.pixel(x, y), kRingOpacity, ground)),
                                           luminance(ground)));
        }
        QVERIFY2(best > 1.8, qPrintable(QStringLiteral("%1 at %2 degrees").arg(best).arg(degrees)));
    }
}

void ImagesTest::sectorKeepsToItself_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("hasSeparators");

    const auto add = [](const QString &path, int count, int index, bool hasSeparators = false) {
        QTest::newRow(qPrintable(path)) << path << count << index << hasSeparators;
    };
    for (const int count : {4, 8}) {
        const QStringList names = count == 4 ? fourNames() : eightNames();
        for (int i = 0; i < count; ++i) {
            add(kFolder + names.at(i) + QStringLiteral(".png"), count, i, true);
            add(kFolder + names.at(i) + QStringLiteral("_text_checked.png"), count, i);
            add(kRoot + QStringLiteral("targetDonut_%1%2.png").arg(count).arg(i), count, i);
            add(kRoot + QStringLiteral("targetDonutOver_%1%2.png").arg(count).arg(i), count, i);
        }
    }
}

void ImagesTest::sectorKeepsToItself()
{
    QFETCH(QString, path);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(bool, hasSeparators);

    const QImage image = load(path);
    const Band band = bandOf(load(kFolder + QStringLiteral("gesture_widget.png")));
    int covered = 0;
    QStringList offending;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const Place place = placeOf(x, y);
            const double depth = depthInSector(place, count, index);
            const int alpha = qAlpha(image.pixel(x, y));
            const bool inBand =
                place.radius > band.inner - kRadialEdge && place.radius < band.outer + kRadialEdge;
            const bool onSeparator = hasSeparators && inBand && alpha < kSeparatorAlpha
                                  && distanceFromBorder(place, count) < 2.0 * kEdge;
            const bool outside = (depth < -kEdge || !inBand) && !onSeparator;
            const bool inside = depth > kEdge && place.radius > band.inner + kRadialEdge
                             && place.radius < band.outer - kRadialEdge;
            if ((outside && alpha != 0) || (inside && alpha != 255)) {
                offending << QStringLiteral("(%1, %2): radius %3, depth %4, alpha %5")
                                 .arg(x)
                                 .arg(y)
                                 .arg(place.radius)
                                 .arg(depth)
                                 .arg(alpha);
            }
            covered += alpha == 255 ? 1 : 0;
        }
    }
    QVERIFY2(offending.isEmpty(), qPrintable(offending.mid(0, 5).join(QLatin1Char('\n'))));
    // It covers its share of the ring, without the pixels of edges.
    const double share = M_PI * (band.outer * band.outer - band.inner * band.inner) / count;
    QVERIFY2(covered > share * 0.9 && covered < share * 1.02,
             qPrintable(QString::number(covered / share)));
}

void ImagesTest::sectorsCoverTheRing_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("four") << fourNames();
    QTest::newRow("eight") << eightNames();
}

void ImagesTest::sectorsCoverTheRing()
{
    QFETCH(QStringList, names);

    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    const Band band = bandOf(ring);
    QStringList offending;
    QVector<QImage> images;
    for (const QString &name : names)
        images << load(kFolder + name + QStringLiteral(".png"));
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double radius = placeOf(x, y).radius;
            if (radius < band.inner + kRadialEdge || radius > band.outer - kRadialEdge)
                continue;
            // A pixel on a border belongs to two sectors, a share to each. Other sectors may
            // show a separator there.
            int sum = 0;
            const int count = static_cast<int>(images.size());
            for (int i = 0; i < count; ++i) {
                if (depthInSector(placeOf(x, y), count, i) > -2.0 * kEdge)
                    sum += qAlpha(images.at(i).pixel(x, y));
            }
            if (sum < 250 || sum > 262)
                offending << QStringLiteral("(%1, %2): %3").arg(x).arg(y).arg(sum);
        }
    }
    QVERIFY2(offending.isEmpty(), qPrintable(offending.mid(0, 5).join(QLatin1Char('\n'))));
}

void ImagesTest::separatorsAreThoseOfTheScheme_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    for (const int count : {4, 8}) {
        const QStringList names = count == 4 ? fourNames() : eightNames();
        for (int i = 0; i < count; ++i)
            QTest::newRow(qPrintable(names.at(i))) << names.at(i) << count << i;
    }
}

void ImagesTest::separatorsAreThoseOfTheScheme()
{
    QFETCH(QString, name);
    QFETCH(int, count);
    QFETCH(int, index);

    const QImage image = load(kFolder + name + QStringLiteral(".png"));
    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    const double width = 360.0 / count;
    for (int i = 0; i < count; ++i) {
        // The border after sector i; the highlight's own borders are drawn in its own colour.
        if (i == index || (i + 1) % count == index)
            continue;
        const double angle = (90.0 + i * width + width / 2.0) * M_PI / 180.0;
        const auto at = [&](double radius, double aside) {
            const double turned = angle + aside / radius;
            return QPoint(static_cast<int>(kCentre + std::cos(turned) * radius),
                          static_cast<int>(kCentre - std::sin(turned) * radius));
        };
        for (double radius = 80.0; radius < 110.0; radius += 5.0) {
            for (const QRgb ground : {qRgb(0, 0, 0), qRgb(128, 128, 128), qRgb(255, 255, 255)}) {
                const auto shown = [&](const QPoint &place) {
                    const QRgb plate = blend(ring.pixel(place), kRingOpacity, ground);
                    return luminance(blend(image.pixel(place), 1.0, plate));
                };
                const double beside = shown(at(radius, 5.0));
                double best = 1.0;
                for (double aside = -1.0; aside <= 1.0; aside += 0.5)
                    best = std::max(best, contrast(shown(at(radius, aside)), beside));
                // It can be seen, but less than a label.
                QVERIFY2(best > 1.1 && best < 2.0, qPrintable(QString::number(best)));
            }
        }
    }
}

void ImagesTest::chevronsAreReadable_data()
{
    QTest::addColumn<int>("gray");
    for (const int gray : {0, 64, 128, 192, 255})
        QTest::newRow(qPrintable(QString::number(gray))) << gray;
}

void ImagesTest::chevronsAreReadable()
{
    QFETCH(int, gray);
    const QRgb ground = qRgb(gray, gray, gray);
    const QImage ring = load(kFolder + QStringLiteral("gesture_widget.png"));
    const auto shown = [&](int x, int y) {
        return luminance(blend(ring.pixel(x, y), kRingOpacity, ground));
    };
    // Chevrons point along the axes, just outside the inner edge.
    for (const QPoint &direction : {QPoint(0, -1), QPoint(-1, 0), QPoint(0, 1), QPoint(1, 0)}) {
        const QPoint centre = QPoint(125, 125) + direction * 73;
        const QPoint beside = centre + QPoint(direction.y(), direction.x()) * 9;
        const double plate = shown(beside.x(), beside.y());
        int readable = 0;
        for (int y = centre.y() - 6; y <= centre.y() + 6; ++y) {
            for (int x = centre.x() - 6; x <= centre.x() + 6; ++x)
                readable += contrast(shown(x, y), plate) >= 3.0 ? 1 : 0;
        }
        QVERIFY2(readable >= 8, qPrintable(QString::number(readable)));
    }
}

void ImagesTest::enlargedImagesAreTheSame_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("ratio");
    const QStringList names =
        regionNames() + arrowNames() + QStringList(QStringLiteral("gesture_widget"));
    for (const QString &name : names) {
        for (const int ratio : kEnlarged)
            QTest::addRow("%s %d", qPrintable(name), ratio) << name << ratio;
    }
}

void ImagesTest::enlargedImagesAreTheSame()
{
    QFETCH(QString, name);
    QFETCH(int, ratio);

    const QImage plain = load(kFolder + name + QStringLiteral(".png"));
    const QImage enlarged =
        load(kFolder + QStringLiteral("%1@%2x.png").arg(name).arg(ratio)).copy(); // without a ratio
    const QImage reduced = enlarged.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_ARGB32);
    double difference = 0.0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x)
            difference += std::abs(qAlpha(plain.pixel(x, y)) - qAlpha(reduced.pixel(x, y)));
    }
    difference /= plain.width() * plain.height();
    QVERIFY2(difference < 1.0, qPrintable(QString::number(difference)));

    // It is drawn for this density: its edges are sharper than those of the enlarged small one.
    const QImage blownUp = plain.scaled(enlarged.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_ARGB32);
    const auto halfOpaque = [](const QImage &image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int alpha = qAlpha(image.pixel(x, y));
                count += alpha > 100 && alpha < 250 ? 1 : 0;
            }
        }
        return count;
    };
    if (name != QLatin1String("gesture_widget")) // its soft edge is as wide as before
        QVERIFY(halfOpaque(enlarged) < halfOpaque(blownUp));
}

void ImagesTest::variantsDiffer_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : regionNames())
        QTest::newRow(qPrintable(name)) << name;
}

void ImagesTest::variantsDiffer()
{
    QFETCH(QString, name);
    QVERIFY(load(kFolder + name + QStringLiteral(".png"))
            != load(kFolder + name + QStringLiteral("_text_checked.png")));
}

void ImagesTest::arrowsAreAllDifferent()
{
    for (int i = 0; i < 8; ++i) {
        const QImage a = load(kFolder + arrowNames().at(i) + QStringLiteral(".png"));
        int opaque = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x)
                opaque += qAlpha(a.pixel(x, y)) == 255 ? 1 : 0;
        }
        QVERIFY2(opaque > 200, qPrintable(QString::number(opaque)));
        for (int j = i + 1; j < 8; ++j)
            QVERIFY(a != load(kFolder + arrowNames().at(j) + QStringLiteral(".png")));
    }
}

void ImagesTest::arrowPointsItsWay_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 8; ++i)
        QTest::newRow(qPrintable(arrowNames().at(i))) << i;
}

void ImagesTest::arrowPointsItsWay()
{
    QFETCH(int, index);

    // Along its direction an arrow is symmetrical, broad at its head and narrow behind.
    const QImage image = load(kFolder + arrowNames().at(index) + QStringLiteral(".png"));
    const double angle = (90.0 + 45.0 * index) * M_PI / 180.0;
    const auto coverage = [&](double along, double across) {
        const int x = static_cast<int>(16.0 + along * std::cos(angle) - across * std::sin(angle));
        const int y = static_cast<int>(16.0 - along * std::sin(angle) - across * std::cos(angle));
        return image.valid(x, y) ? qAlpha(image.pixel(x, y)) / 255.0 : 0.0;
    };
    double front = 0.0;
    double behind = 0.0;
    double both = 0.0;
    double unequal = 0.0;
    for (double along = -15.75; along < 16.0; along += 0.5) {
        double breadth = 0.0;
        for (double across = 0.25; across < 16.0; across += 0.5) {
            breadth += 0.5 * (coverage(along, across) + coverage(along, -across));
            both += coverage(along, across) + coverage(along, -across);
            unequal += std::abs(coverage(along, across) - coverage(along, -across));
        }
        if (along > 0.0)
            front = std::max(front, breadth);
        else if (along < -4.0) // the head's back lies a little behind the middle
            behind = std::max(behind, breadth);
    }
    QVERIFY2(front > 1.5 * behind, qPrintable(QStringLiteral("%1, %2").arg(front).arg(behind)));
    QVERIFY2(unequal < 0.08 * both, qPrintable(QString::number(unequal / both)));
}

void ImagesTest::arrowsAreTurnsOfEachOther()
{
    for (int i = 0; i < 8; ++i) {
        const QImage arrow = load(kFolder + arrowNames().at(i) + QStringLiteral(".png"));
        const QImage next = load(kFolder + arrowNames().at((i + 2) % 8) + QStringLiteral(".png"));
        const QImage turned =
            arrow.transformed(QTransform().rotate(-90.0)).convertToFormat(next.format());
        int worst = 0;
        for (int y = 0; y < next.height(); ++y) {
            for (int x = 0; x < next.width(); ++x)
                worst = std::max(worst, std::abs(qAlpha(next.pixel(x, y)) - qAlpha(turned.pixel(x, y))));
        }
        QVERIFY2(worst <= 24, qPrintable(QStringLiteral("%1: %2").arg(arrowNames().at(i)).arg(worst)));
    }
}

void ImagesTest::arrowShowsOnEveryRow_data()
{
    QTest::addColumn<QRgb>("row");
    QTest::newRow("white") << qRgb(255, 255, 255);
    QTest::newRow("selected") << qRgb(220, 220, 220);
    QTest::newRow("under the pointer") << qRgb(48, 140, 198);
    QTest::newRow("dark") << qRgb(43, 43, 43);
    QTest::newRow("black") << qRgb(0, 0, 0);
}

void ImagesTest::arrowShowsOnEveryRow()
{
    QFETCH(QRgb, row);
    for (const QString &name : arrowNames()) {
        // The size in an ordinary table row.
        const QImage image = load(kFolder + name + QStringLiteral(".png"))
                                 .scaled(16, 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_ARGB32);
        int standingOut = 0;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                if (contrast(luminance(blend(image.pixel(x, y), 1.0, row)), luminance(row)) >= 3.0)
                    ++standingOut;
            }
        }
        QVERIFY2(standingOut >= 24, qPrintable(QStringLiteral("%1: %2").arg(name).arg(standingOut)));
    }
}

QTEST_MAIN(ImagesTest)
#include "tst_images.moc"
