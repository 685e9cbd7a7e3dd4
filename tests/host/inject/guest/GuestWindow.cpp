// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/GuestWindow.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

GuestWindow::GuestWindow()
{
    resize(600, 500);
    openView();
    fillMenuBar();
}

GuestWindow::~GuestWindow() = default;

void GuestWindow::openView()
{
    view = new GuestView(this);
    setCentralWidget(view);
    view->show();
}

void GuestWindow::replaceMenuBar()
{
    setMenuBar(new QMenuBar);
    fillMenuBar();
    menuBar()->show();
}

void GuestWindow::fillMenuBar()
{
    QMenu *file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("&Open..."))->setObjectName(QStringLiteral("fileOpen"));
    QMenu *draw = menuBar()->addMenu(QStringLiteral("&Draw"));
    line = draw->addAction(QStringLiteral("&Line"));
    line->setObjectName(QStringLiteral("drawLine"));
    connect(line, &QAction::triggered, this, [this] { ++lines; });
    tools = menuBar()->addMenu(QStringLiteral("&Tools"));
    tools->setObjectName(QStringLiteral("toolsMenu"));
    tools->addAction(QStringLiteral("Options..."));
}

QAction *GuestWindow::entry() const
{
    const QList<QAction *> actions = tools->actions();
    for (QAction *action : actions) {
        if (action->text() == QLatin1String("Mouse Gestures..."))
            return action;
    }
    return nullptr;
}

bool GuestWindow::hasEntry() const
{
    return entry() != nullptr;
}

void GuestWindow::press()
{
    dragTo(0);
    QTest::mousePress(windowHandle(), Qt::RightButton, {}, view->mapTo(this, view->rect().center()));
}

void GuestWindow::dragTo(int distance)
{
    // Moves the real pointer too, because the ring asks for its position.
    QCursor::setPos(view->mapToGlobal(view->rect().center() + QPoint(distance, 0)));
    QCoreApplication::processEvents();
}

void GuestWindow::release(int distance)
{
    QTest::mouseRelease(windowHandle(), Qt::RightButton, {},
                        view->mapTo(this, view->rect().center() + QPoint(distance, 0)));
}
