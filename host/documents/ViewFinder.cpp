// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/ViewFinder.h"

#include "host/documents/ViewGuess.h"
#include "sdk/OwnCode.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPointer>

#include <algorithm>

namespace gesturewidget {
namespace {

// Milliseconds.
constexpr int kQuietTime = 200;

} // namespace

ViewFinder::ViewFinder(const QStringList &viewClasses, bool mayGuess)
    : m_guesses(mayGuess && viewClasses.isEmpty())
    , m_wait(kQuietTime)
{
    connect(&m_wait, &QuietWait::over, this, &ViewFinder::lookAround);
    for (const QString &name : viewClasses)
        m_viewClasses.append(name.toLatin1());
}

ViewFinder::~ViewFinder() = default;

void ViewFinder::start()
{
    if (m_guesses)
        m_wait.note();
    else if (!m_viewClasses.isEmpty())
        lookAround();
    else
        return;
    qApp->installEventFilter(this);
}

void ViewFinder::lookAround()
{
    const QWidgetList widgets = QApplication::allWidgets();
    QVector<QPointer<QWidget>> present;
    present.reserve(static_cast<int>(widgets.size()));
    for (QWidget *widget : widgets)
        present.append(widget);
    for (const QPointer<QWidget> &widget : present) {
        if (widget) // a listener may close one that comes later
            look(widget);
    }
}

void ViewFinder::stop()
{
    m_wait.stop();
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

void ViewFinder::stopGuessing()
{
    if (m_guesses)
        stop();
}

QWidget *ViewFinder::pointerWidget(QWidget *widget)
{
    const auto *area = qobject_cast<QAbstractScrollArea *>(widget);
    return area && area->viewport() ? area->viewport() : widget;
}

bool ViewFinder::eventFilter(QObject *receiver, QEvent *event)
{
    // When a widget is first polished or shown, it has its final class. A guess looks at the size.
    const QEvent::Type other = m_guesses ? QEvent::Resize : QEvent::Polish;
    if ((event->type() != QEvent::Show && event->type() != other) || !receiver->isWidgetType())
        return false;
    const OwnCode ours;
    auto *widget = static_cast<QWidget *>(receiver);
    if (!m_guesses)
        look(widget);
    else if (qobject_cast<const QMainWindow *>(widget->window()))
        m_wait.note(); // menus, tips and dialogs come and go all the time
    return false;
}

void ViewFinder::look(QWidget *widget)
{
    if (isView(widget)) {
        Q_EMIT viewFound(pointerWidget(widget));
        return;
    }
    // A scroll area may be given another viewport at any time.
    auto *area = qobject_cast<QAbstractScrollArea *>(widget->parentWidget());
    if (area && area->viewport() == widget && isView(area))
        Q_EMIT viewFound(widget);
}

bool ViewFinder::isView(const QWidget *widget) const
{
    if (m_guesses)
        return ViewGuess::of(widget).isView;
    return std::any_of(m_viewClasses.begin(), m_viewClasses.end(),
                       [widget](const QByteArray &name) { return widget->inherits(name.constData()); });
}

} // namespace gesturewidget
