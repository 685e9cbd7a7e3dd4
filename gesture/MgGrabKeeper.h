#pragma once

#include <QObject>
#include <QPointer>

class MgDonutDialogPVStyleImpl;
class QWindow;

// Takes the ring's grabs a second time, once its window is really on the screen.
//
// A window manager maps a new window only after a while, and until then the X server
// refuses every grab for it without a word; Qt believes in the grab all the same. The first
// exposure says that the window is mapped. It may come after the button was let go, so the
// grabs are taken only while the gesture is still on: taken later they would stay for good.
class MgGrabKeeper : public QObject
{
    Q_OBJECT

public:
    // `overlay` owns the keeper.
    explicit MgGrabKeeper(MgDonutDialogPVStyleImpl *overlay);

    // Watches the overlay's window in place of the one watched before; null is ignored.
    void watch(QWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    MgDonutDialogPVStyleImpl *m_overlay;
    QPointer<QWindow> m_window;
};
