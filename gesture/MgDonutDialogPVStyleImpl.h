#pragma once

#include "gesture/MgCompositorProbe.h"
#include "gesture/MgDonutDialog.h"
#include "gesture/MgRingImages.h"

#include <QCursor>
#include <QPixmap>
#include <QPoint>

class CHxDocument;
class QPainter;

// The ring as it appears in a drawing: comes under the pointer, holds mouse and keyboard,
// follows the pointer, and ends by itself with a sector chosen or not. It runs no command;
// who opened it looks at how it ended.
//
//     overlay->origin = pressPoint;
//     overlay->WindUp(document);  // armed: the view's cursor and the host's mode are taken
//     overlay->TryStart(point);   // shown, both grabs held
//     ...                         // the pointer moves; the button is let go
//     if (overlay->JustStopped() && overlay->accepted)
//         use(overlay->getActiveArc());
//
// The state is in `armed`, `gesturing`, `fading` and `justStopped`; all false is idle. A
// gesture also ends, not accepted, when the ring is hidden by somebody else, when a modal
// window blocks it and when it is destroyed: whatever was taken is then given back.
class MgDonutDialogPVStyleImpl : public MgDonutDialog
{
    Q_OBJECT

public:
    MgDonutDialogPVStyleImpl(QWidget *parent, Qt::WindowFlags flags);
    ~MgDonutDialogPVStyleImpl() override;

    // Arms the ring for a document. Ignored for null, while armed and while gesturing.
    void WindUp(CHxDocument *doc);
    // Starts the gesture that was wound up; ignored in any other state, and while there is
    // no view to measure in. The pointer's place is the system's; `point` is not used.
    void TryStart(const QPoint &point);
    // Ends the gesture; `accepted` is whether the active sector was chosen.
    void StopGesturing(bool accepted);
    // Whether a gesture has ended since the last call.
    [[nodiscard]] bool JustStopped();
    // Shows the chosen sector alone for a quarter of a second; nothing else happens
    // meanwhile.
    void doFading();

    [[nodiscard]] QSize getSize() const override { return donutSize; }
    // Also fades when the offset is more than 69 pixels from the centre, straight.
    void mousePositionChanged(double x, double y) override;

    void paint(QPaintEvent *event) override;
    // Paints the chosen sector alone.
    void doFadingPaint();
    // Moves the painter's origin, which must be the ring's centre, to where a sector's label
    // goes. Returns the label's rotation in degrees, clockwise. `lowerHalf` says whether the
    // label is not one of the lower half; nobody reads it, and it is kept.
    double setPainterOrigin(QPainter *painter, int sectorCount, int index, bool &lowerHalf) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    // The last frame is shown, or will be at the next paint.
    bool fading = false;
    // Shown and following the pointer.
    bool gesturing = false;
    // How the last gesture ended: with a sector chosen.
    bool accepted = false;
    // What was wound up; not owned. The host keeps every document until the program ends.
    CHxDocument *document = nullptr;
    // The host's mode and the view's cursor from before winding up.
    qint16 savedHostMode = 0;
    QCursor savedCursor;
    // The centre, in pixels of the view. Set before WindUp().
    QPoint origin;
    // Wound up and not started yet.
    bool armed = false;
    // See JustStopped().
    bool justStopped = false;
    // The pointer's global place when wound up; written down, read by nobody.
    QPoint windUpPos;

protected:
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    // Presses are swallowed.
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    // Tells the user what the lit sector would run, in the host's status bar and to assistive
    // programs; does nothing if that has not changed.
    void tellSector();
    // Takes back what was told.
    void tellNothing();
    // Makes the window one that the window manager leaves alone.
    void bypassWindowManager();
    // Keeps what is on the screen where the ring will be, if nothing blends the ring with it.
    void takeBackdrop();
    // The document's view; null when there is no document or no view.
    [[nodiscard]] QWidget *documentView() const;
    // Gives the host its mode and the view its cursor back, once for each winding up.
    void giveBackHost();
    void postMoveToView(const QMouseEvent &release);

    // The active sector's highlight, if there is such a sector. The painter's origin is the
    // window's corner.
    void drawHighlight(QPainter *painter);
    // The label of a sector, if it has one. The painter's origin is the ring's centre.
    void drawLabelOf(QPainter *painter, int index, int cutLength) const;

    // By sector, the captions of the commands.
    std::vector<QString> m_sectorNames;
    // The sector that was told; -1 for none.
    qint16 m_toldArc = -1;
    MgRingImages m_images;
    MgCompositorProbe m_compositor;
    // What the ring is painted on; null while a compositor runs.
    QPixmap m_backdrop;
    // The host's mode and the view's cursor are ours at the moment.
    bool m_holdsHost = false;
};
