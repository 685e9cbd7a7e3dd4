// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/ring/RingView.h"

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace settings {

// A command that the mouse drags, from the list or from a direction of the ring. It follows the
// pointer as a small tag until the button is let go. Escape or another button gives it up.
//
// Qt's own drag and drop does not tell a drop beside every window from one that was given up, and a
// command that is dropped there leaves the ring.
class CommandDrag : public QObject
{
    Q_OBJECT

public:
    // The tag is drawn in `page`, which holds the ring.
    CommandDrag(RingView *ring, QWidget *page);

    // `source` holds the mouse. `from` is a direction of the ring, or -1 for the list.
    void begin(const ShownCommand &command, int from, QWidget *source);
    [[nodiscard]] bool isUnderWay() const { return m_hasBegun && m_source; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    // A command of the list was dropped on a direction.
    void bound(const QString &identifier, int direction);
    void exchanged(int from, int direction);
    // A command of the ring was dropped off the ring.
    void takenOff(int from);

private:
    void moveTo(const QPoint &global);
    void drop(const QPoint &global);
    void end();
    // The direction under a point, -1 if it is not on the ring's band.
    [[nodiscard]] int directionAt(const QPoint &global) const;
    [[nodiscard]] bool isOffRing(const QPoint &global) const;

    RingView *m_ring;
    QWidget *m_page;
    QLabel *m_tag;
    QPointer<QWidget> m_source;
    ShownCommand m_command;
    int m_from = -1;
    bool m_hasBegun = false;
};

} // namespace settings
