#pragma once

#include <QDialog>
#include <QSize>
#include <QString>
#include <QVariant>

#include <utility>
#include <vector>

// A ring of sectors around the point where the pointer was pressed, as a frameless window
// that is seen through. It knows its size, what each sector shows and which sector the
// pointer's direction chooses; a subclass paints it and says when it comes and goes.
//
// Sectors are counted counter-clockwise from the top, from 0: of eight, 2 is left and 6 is
// right. Offsets are pixels from the ring's centre with y upward; angles are degrees
// counter-clockwise from the right, so that up is 90.
class MgDonutDialog : public QDialog
{
    Q_OBJECT

public:
    // The window is always a frameless tool window; `flags` is taken and replaced.
    MgDonutDialog(QWidget *parent, Qt::WindowFlags flags);
    ~MgDonutDialog() override;

    // The active sector: -1 for none, else an index. An index equal to the number of sectors
    // is possible, see setActiveArc().
    [[nodiscard]] qint16 getActiveArc() const { return activeArc; }

    // The direction of an offset, from 0 up to but without 360. The offset (0, 0) is up.
    [[nodiscard]] double getAngle(double x, double y) const;

    // Chooses the sector in the direction of an offset; the distance plays no part. The
    // active sector is kept inside a range that is wider than the sector, so that the choice
    // does not flicker at a border. A direction exactly on the border where counting begins
    // (45 degrees of four sectors, 67.5 of eight) yields the number of sectors itself.
    void setActiveArc(double x, double y);

    // The pointer is at this offset: chooses the sector and paints anew.
    virtual void mousePositionChanged(double x, double y);
    [[nodiscard]] virtual QSize getSize() const = 0;
    virtual void paint(QPaintEvent *event) = 0;

    [[nodiscard]] QSize sizeHint() const override { return donutSize; }

    // The ring's size in pixels; invalid until a subclass sets it.
    QSize donutSize;
    // By sector: DonutHelperData::kIcon with a QIcon or DonutHelperData::kText with a text.
    std::vector<std::pair<int, QVariant>> sectorVisuals;
    // By sector, empty for one that is unbound.
    std::vector<QString> sectorTooltips;
    // Number of sectors of the running gesture, 4 or 8; 0 before the first one, and then no
    // sector is ever chosen.
    quint16 arcCount = 0;
    // See getActiveArc().
    qint16 activeArc = -1;
    // Pixels from the centre to the pointer, straight, when it last moved.
    double distance = 0.0;
    // Degrees around the middle of the active sector in which it is kept: 130 for four
    // sectors, 65 for eight.
    double keepSpan = 0.0;

Q_SIGNALS:
    // Part of the interface; nothing emits it.
    void commandEnded();

protected:
    void paintEvent(QPaintEvent *event) override { paint(event); }

private:
    // Whether the active sector's wider range holds the angle.
    [[nodiscard]] bool keepsActiveArc(double angle) const;
};
