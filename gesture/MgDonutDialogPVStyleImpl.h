// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgCompositorProbe.h"
#include "gesture/MgDonutDialog.h"
#include "gesture/MgRingImages.h"

#include <QCursor>
#include <QPixmap>
#include <QPoint>

class CHxDocument;
class QPainter;

// The ring as it appears in a drawing. It opens under the pointer, grabs mouse and keyboard,
// follows the pointer and ends by itself, with a sector chosen or not. It runs no command; its
// caller looks at how it ended.
//
//     overlay->origin = pressPoint;
//     overlay->WindUp(document);  // armed: has set the view's cursor and the host's mode
//     overlay->TryStart(point);   // shown, holds both grabs
//     ...                         // the pointer moves; the button is released
//     if (overlay->JustStopped() && overlay->accepted)
//         use(overlay->getActiveArc());
//
// The state is in `armed`, `gesturing`, `fading` and `justStopped`; all false is idle. A gesture
// also ends, not accepted, when somebody else hides the ring, when a modal window blocks it and
// when it is destroyed. Every end restores the view's cursor and the host's mode.
class MgDonutDialogPVStyleImpl : public MgDonutDialog
{
    Q_OBJECT

public:
    MgDonutDialogPVStyleImpl(QWidget *parent, Qt::WindowFlags flags);
    ~MgDonutDialogPVStyleImpl() override;

    // Arms the ring for a document. Does nothing for null, while armed and while gesturing.
    void WindUp(CHxDocument *doc);
    // Starts an armed gesture. Does nothing in any other state. If no drawing has a view to measure
    // in, the ring is idle again. Reads the system's pointer; `point` is not used.
    void TryStart(const QPoint &point);
    // Ends the gesture. `accepted` is true if the active sector was chosen.
    void StopGesturing(bool accepted);
    // True if a gesture has ended since the last call.
    [[nodiscard]] bool JustStopped();
    // Shows the chosen sector alone for 250 ms. No event is handled meanwhile.
    void doFading();

    [[nodiscard]] QSize getSize() const override { return donutSize; }
    // Also fades if the offset is more than 69 pixels long.
    void mousePositionChanged(double x, double y) override;

    void paint(QPaintEvent *event) override;
    // Paints the chosen sector alone.
    void doFadingPaint();
    // Moves the painter's origin from the ring's centre to a sector's label. Returns the label's
    // rotation in degrees, clockwise. `lowerHalf` becomes false for labels in the lower half;
    // nothing reads it, and it is kept.
    double setPainterOrigin(QPainter *painter, int sectorCount, int index, bool &lowerHalf) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    // The next paint shows the last frame.
    bool fading = false;
    // Shown and following the pointer.
    bool gesturing = false;
    // True if the last gesture ended with a sector chosen.
    bool accepted = false;
    // The document given to WindUp(); not owned. The host keeps every document until the program
    // ends.
    CHxDocument *document = nullptr;
    // The host's mode and the view's cursor before WindUp().
    qint16 savedHostMode = 0;
    QCursor savedCursor;
    // The centre, in pixels of the view. Set before WindUp().
    QPoint origin;
    // WindUp() was called, TryStart() has not started it yet.
    bool armed = false;
    // See JustStopped().
    bool justStopped = false;
    // The pointer's global position at WindUp(). Nothing reads it.
    QPoint windUpPos;

protected:
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    // Swallows the press.
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    // Tells the user what the lit sector would run, in the host's status bar and to assistive
    // programs; does nothing if that has not changed.
    void tellSector();
    // Takes back what was told.
    void tellNothing();
    void tell(const QString &text);
    // Makes the window one that the window manager leaves alone.
    void bypassWindowManager();
    // Paints the first frame now. Qt would do it later, in the event loop.
    void paintAtOnce();
    // Makes the native window belong to the window that shows the view.
    void followWindowOf(const QWidget &view);
    // Keeps what is on the screen where the ring will be, if nothing blends the ring with it.
    void takeBackdrop();
    // The document's view; null when there is no document or no view.
    [[nodiscard]] QWidget *documentView() const;
    // Keeps the host's mode and sets the one of a gesture. If the host cannot say its mode, it keeps it.
    void takeMode();
    // Ends the armed state without a gesture.
    void giveUp();
    // Restores the host's mode and the view's cursor, once for each WindUp(). If the host fails to take
    // its mode back, the end of the next gesture tries again.
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
    // The picture of the screen under the ring; null while a compositor runs.
    QPixmap m_backdrop;
    // WindUp() has set the host's mode, or the view's cursor, and it is not restored yet.
    bool m_holdsMode = false;
    bool m_holdsCursor = false;
    bool m_isWindingUp = false;
};
