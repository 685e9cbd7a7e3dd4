// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Drawing.h"
#include "tests/support/FatalWarnings.h"

#include <QSignalSpy>
#include <QtTest>

class SketchDrawingTest : public QObject
{
    Q_OBJECT

    static Entity level(double y) { return Entity::line({0, y}, {10, y}); }
    static std::vector<double> levels(const Drawing &drawing)
    {
        std::vector<double> found;
        for (const Entity &entity : drawing.entities())
            found.push_back(entity.origin.y());
        return found;
    }

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void changesAreUndoneAndRedone()
    {
        Drawing drawing;
        QSignalSpy changed(&drawing, &Drawing::changed);
        for (int y = 0; y < 4; ++y)
            drawing.add(level(y));
        QCOMPARE(changed.count(), 4);
        drawing.change({1, 3}, {level(9)});
        QCOMPARE(levels(drawing), (std::vector<double>{0, 2, 9}));
        drawing.undo();
        QCOMPARE(levels(drawing), (std::vector<double>{0, 1, 2, 3}));
        drawing.undo();
        QCOMPARE(levels(drawing), (std::vector<double>{0, 1, 2}));
        drawing.redo();
        drawing.redo();
        QCOMPARE(levels(drawing), (std::vector<double>{0, 2, 9}));
        QVERIFY(!drawing.canRedo());
        QCOMPARE(changed.count(), 9);
    }

    void nothingToUndoIsNothing()
    {
        Drawing drawing;
        QSignalSpy changed(&drawing, &Drawing::changed);
        drawing.undo();
        drawing.redo();
        drawing.change({}, {});
        QCOMPARE(changed.count(), 0);
        QVERIFY(!drawing.isModified());
        QVERIFY(!drawing.canUndo());
    }

    void aNewChangeForgetsWhatWasUndone()
    {
        Drawing drawing;
        drawing.add(level(1));
        drawing.undo();
        QVERIFY(drawing.canRedo());
        drawing.add(level(2));
        QVERIFY(!drawing.canRedo());
        QCOMPARE(levels(drawing), (std::vector<double>{2}));
    }

    void knowsWhetherItIsModified()
    {
        Drawing drawing;
        drawing.add(level(1));
        QVERIFY(drawing.isModified());
        drawing.setSaved();
        QVERIFY(!drawing.isModified());
        drawing.undo();
        QVERIFY(drawing.isModified());
        drawing.setSheet({});
        QVERIFY(!drawing.isModified());
        QVERIFY(!drawing.canUndo() && !drawing.canRedo());
    }

    void savingForgetsWhatWasUnread()
    {
        Drawing drawing;
        Sheet sheet;
        sheet.unread[QStringLiteral("ELLIPSE")] = 2;
        drawing.setSheet(sheet);
        QCOMPARE(drawing.sheet().unread.size(), 1);
        drawing.setSaved();
        QVERIFY(drawing.sheet().unread.isEmpty());
    }

    void boundsCoverWhatIsVisible()
    {
        Drawing drawing;
        QVERIFY(!drawing.bounds());
        // A horizontal line has bounds too, of height 0.
        drawing.add(level(3));
        QCOMPARE(*drawing.bounds(), QRectF(0, 3, 10, 0));
        drawing.add(level(-1));
        drawing.add(Entity::circle({20, 0}, 5));
        QCOMPARE(*drawing.bounds(), QRectF(0, -5, 25, 10));
        Sheet sheet = drawing.sheet();
        Sheet::Layer off;
        off.off = true;
        Sheet::Layer frozen;
        frozen.flags = 1;
        sheet.layers[QStringLiteral("OFF")] = off;
        sheet.layers[QStringLiteral("FROZEN")] = frozen;
        sheet.entities[0].layer = QStringLiteral("OFF");
        sheet.entities[2].layer = QStringLiteral("FROZEN");
        drawing.setSheet(sheet);
        QCOMPARE(*drawing.bounds(), QRectF(0, -1, 10, 0));
        QVERIFY(!drawing.nearest({5, 3}, 1));
    }

    void findsTheNearestWithinReach()
    {
        Drawing drawing;
        drawing.add(level(0));
        drawing.add(level(4));
        drawing.add(level(4));
        QVERIFY(!drawing.nearest({5, 2}, 1.9));
        QCOMPARE(*drawing.nearest({5, 1.5}, 3), std::size_t(0));
        QCOMPARE(*drawing.nearest({5, 3.5}, 3), std::size_t(2));
        QCOMPARE(*drawing.nearest({5, 5}, 1), std::size_t(2));
    }
};

QTEST_MAIN(SketchDrawingTest)
#include "tst_sketchdrawing.moc"
