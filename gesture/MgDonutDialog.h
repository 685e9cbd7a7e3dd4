// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QSize>
#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

// A ring of sectors around the press point, in a frameless translucent window. It knows its
// size, what each sector shows and which sector the pointer's direction chooses. A subclass
// paints it, opens it and closes it.
//
// Sectors are counted counter-clockwise from the top, from 0: of eight, 2 is left and 6 is
// right. Offsets are pixels from the ring's centre with y upward. Angles are degrees
// counter-clockwise from the right, so up is 90.
class MgDonutDialog : public QDialog
{
    Q_OBJECT

public:
    // Ignores `flags`: the window is always a frameless tool window.
    MgDonutDialog(QWidget *parent, Qt::WindowFlags flags);
    ~MgDonutDialog() override;

    // The index of the active sector, -1 for none. It can equal the number of sectors, see
    // setActiveArc().
    [[nodiscard]] qint16 getActiveArc() const { return activeArc; }

    // The direction of an offset: 0 or more, less than 360. The offset (0, 0) is up.
    [[nodiscard]] double getAngle(double x, double y) const;

    // Chooses the sector in the direction of an offset, at any distance. The active sector stays
    // active in a range wider than itself, so the choice does not flicker at a border. A
    // direction exactly on the border where counting begins (45 degrees for four sectors, 67.5
    // for eight) yields the number of sectors.
    void setActiveArc(double x, double y);

    // Chooses the sector for a pointer at this offset and schedules a repaint.
    virtual void mousePositionChanged(double x, double y);
    [[nodiscard]] virtual QSize getSize() const = 0;
    virtual void paint(QPaintEvent *event) = 0;

    [[nodiscard]] QSize sizeHint() const override { return donutSize; }

    // The ring's size in pixels; invalid until a subclass sets it.
    QSize donutSize;
    // By sector: DonutHelperData::kIcon with a QIcon or DonutHelperData::kText with a text.
    std::vector<std::pair<int, QVariant>> sectorVisuals;
    // By sector, empty for an unbound one.
    std::vector<QString> sectorTooltips;
    // Number of sectors of the running gesture, 4 or 8. Before the first gesture it is 0, and no
    // sector is chosen.
    quint16 arcCount = 0;
    // See getActiveArc().
    qint16 activeArc = -1;
    // Pixels in a straight line from the centre to the pointer, at its last move.
    double distance = 0.0;
    // The active sector stays active in this range around its middle: 130 degrees for four
    // sectors, 65 for eight.
    double keepSpan = 0.0;

Q_SIGNALS:
    // Part of the interface. Nothing emits it.
    void commandEnded();

protected:
    void paintEvent(QPaintEvent *event) override { paint(event); }

private:
    // True if the angle lies in the range in which the active sector stays active.
    [[nodiscard]] bool keepsActiveArc(double angle) const;
};
