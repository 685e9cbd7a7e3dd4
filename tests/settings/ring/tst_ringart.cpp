// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The places of the ring's directions.

#include "settings/ring/RingArt.h"

#include <QtTest>

using namespace settings;

class RingArtTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directions_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<int>("four");
        QTest::addColumn<int>("eight");
        QTest::newRow("up") << QPointF(250, 60) << 0 << 0;
        QTest::newRow("up-left") << QPointF(120, 121) << 1 << 1;
        QTest::newRow("left") << QPointF(60, 250) << 1 << 2;
        QTest::newRow("down-left") << QPointF(121, 380) << 2 << 3;
        QTest::newRow("down") << QPointF(250, 440) << 2 << 4;
        QTest::newRow("down-right") << QPointF(380, 379) << 3 << 5;
        QTest::newRow("right") << QPointF(440, 250) << 3 << 6;
        QTest::newRow("up-right") << QPointF(379, 120) << 0 << 7;
        QTest::newRow("far away") << QPointF(250, -4000) << 0 << 0;
    }
    void directions()
    {
        QFETCH(QPointF, point);
        QTEST(ringart::directionAt(point, 500.0, 4), "four");
        QTEST(ringart::directionAt(point, 500.0, 8), "eight");
    }

    void parts()
    {
        using ringart::Part;
        QCOMPARE(ringart::partAt({250, 250}, 500.0), Part::Middle);
        QCOMPARE(ringart::partAt({250, 250 - 131}, 500.0), Part::Middle);
        QCOMPARE(ringart::partAt({250, 250 - 133}, 500.0), Part::Band);
        QCOMPARE(ringart::partAt({250, 250 - 239}, 500.0), Part::Band);
        QCOMPARE(ringart::partAt({250, 250 - 241}, 500.0), Part::Outside);
    }

    void labelsLieInTheirDirections()
    {
        for (const int count : {4, 8}) {
            for (int i = 0; i < count; ++i) {
                const QRectF box = ringart::labelBox(500.0, count, i);
                for (const QPointF &corner :
                     {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
                    QCOMPARE(ringart::directionAt(corner, 500.0, count), i);
                    QCOMPARE(ringart::partAt(corner, 500.0), ringart::Part::Band);
                }
            }
        }
    }

    void imagesHaveThePixelsOfTheScreen()
    {
        const QPixmap ring = ringart::ring(400, 2.0);
        QCOMPARE(ring.size(), QSize(800, 800));
        QCOMPARE(ring.devicePixelRatio(), 2.0);
        // A highlight is brightest in its own direction.
        for (const int count : {4, 8}) {
            for (int i = 0; i < count; ++i) {
                const QImage image = ringart::highlight(count, i, 400, 1.0).toImage();
                for (int j = 0; j < count; ++j) {
                    const QPoint middle = ringart::labelBox(400.0, count, j).center().toPoint();
                    QCOMPARE(image.pixelColor(middle).alpha() > 200, i == j);
                }
            }
        }
    }
};

QTEST_MAIN(RingArtTest)
#include "tst_ringart.moc"
