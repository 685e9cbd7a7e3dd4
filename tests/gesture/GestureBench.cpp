// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/GestureBench.h"

#include "bindings/MgDonutDataContainer.h"
#include "sdk/QtBridge.h"

#include <QCoreApplication>
#include <QCursor>
#include <QTest>
#include <QWindow>

namespace tests {

void NotingView::mouseMoveEvent(QMouseEvent *event)
{
    moves.push_back({qtbridge::localPosition(*event), qtbridge::globalPosition(*event), event->button(),
                     event->buttons(), event->modifiers()});
}

void NotingView::mousePressEvent(QMouseEvent *)
{
    ++presses;
}

void NotingView::mouseReleaseEvent(QMouseEvent *)
{
    ++releases;
}

void CountingDonut::paint(QPaintEvent *event)
{
    ++paints;
    if (fading)
        ++fadingPaints;
    MgDonutDialogPVStyleImpl::paint(event);
}

GestureBench::GestureBench()
{
    for (const char *name : {"ZOOM_BOUNDS", "OPEN", "SAVE", "LINE", "OFFSET", "COPY", "DTEXT", "TRIM"}) {
        const QString upper = QString::fromLatin1(name);
        host.commands.addCommand(QStringLiteral("ID_") + upper, upper.toLower(), upper,
                                 QStringLiteral("Tip of ") + upper);
    }
    document = host.documents.open();
    makeView();
    setScheme(4);
    setEnabled(true);
}

GestureBench::~GestureBench()
{
    // Qt counts pressed buttons across all tests.
    releaseIfPressed();
}

void GestureBench::makeView(const QPoint &corner)
{
    delete document->view;
    view = new NotingView;
    // Views of programs have it on. Otherwise Qt drops moves without a button.
    view->setMouseTracking(true);
    document->view = view;
    view->setGeometry(QRect(corner, QSize(400, 400)));
    view->show();
    QCoreApplication::processEvents();
    if (!view->windowHandle()->isExposed() && !QTest::qWaitForWindowExposed(view))
        qFatal("the view does not appear");
}

void GestureBench::setScheme(int sectors)
{
    host.store.values.insert(QStringLiteral("ActiveScheme"), QString::number(sectors));
    MgDonutDataContainer::instance()->init();
    host.log.clear();
}

void GestureBench::setEnabled(bool enabled)
{
    host.store.values.insert(QStringLiteral("EnableMouseGesture"), QString::number(enabled ? 1 : 0));
    MgDonutDataContainer::instance()->init();
    host.log.clear();
}

FakeDocument *GestureBench::openDocument()
{
    FakeDocument *another = host.documents.open();
    another->view->setGeometry(20, 40, 400, 400);
    return another;
}

void GestureBench::pointTo(const QPoint &viewPosition)
{
    QCursor::setPos(view ? view->mapToGlobal(viewPosition) : viewPosition);
    QCoreApplication::processEvents();
}

void GestureBench::pointTo(const MgDonutDialogPVStyleImpl &donut, int x, int y)
{
    pointTo(donut.origin + QPoint(x, -y));
}

void GestureBench::releaseIfPressed()
{
    if (m_pressed)
        release(QPoint(200, 200));
}

void GestureBench::press(const QPoint &viewPosition)
{
    m_pressed = true;
    if (view)
        QTest::mousePress(view->windowHandle(), Qt::RightButton, Qt::KeyboardModifiers(), viewPosition);
}

void GestureBench::release(const QPoint &viewPosition, Qt::KeyboardModifiers modifiers)
{
    m_pressed = false;
    // The window system sends it to who holds the mouse, or to nobody's window.
    QWindow nobody;
    nobody.resize(400, 400);
    const QWidget *receiver = view ? view.data() : QWidget::mouseGrabber();
    QTest::mouseRelease(receiver ? receiver->windowHandle() : &nobody, Qt::RightButton, modifiers,
                        viewPosition);
}

void GestureBench::start(MgDonutDialogPVStyleImpl &donut, const QPoint &centre)
{
    pointTo(centre);
    press(centre);
    donut.origin = centre;
    donut.move(view->mapToGlobal(centre) - QPoint(125, 125));
    donut.WindUp(document);
    donut.TryStart(QCursor::pos());
}

} // namespace tests
