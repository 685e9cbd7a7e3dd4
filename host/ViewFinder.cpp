#include "host/ViewFinder.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPointer>

#include <algorithm>

namespace host {

ViewFinder::ViewFinder(const QStringList &viewClasses)
{
    for (const QString &name : viewClasses)
        m_viewClasses.append(name.toLatin1());
}

ViewFinder::~ViewFinder() = default;

void ViewFinder::start()
{
    if (m_viewClasses.isEmpty())
        return;
    const QWidgetList widgets = QApplication::allWidgets();
    QVector<QPointer<QWidget>> present;
    present.reserve(static_cast<int>(widgets.size()));
    for (QWidget *widget : widgets)
        present.append(widget);
    for (const QPointer<QWidget> &widget : present) {
        if (widget) // a listener may close one that comes later
            look(widget);
    }
    qApp->installEventFilter(this);
}

void ViewFinder::stop()
{
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

QWidget *ViewFinder::pointerWidget(QWidget *widget)
{
    const auto *area = qobject_cast<QAbstractScrollArea *>(widget);
    return area && area->viewport() ? area->viewport() : widget;
}

bool ViewFinder::eventFilter(QObject *receiver, QEvent *event)
{
    // A widget has its final class from the first time that it is polished or shown on.
    if ((event->type() == QEvent::Show || event->type() == QEvent::Polish) && receiver->isWidgetType())
        look(static_cast<QWidget *>(receiver));
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
    return std::any_of(m_viewClasses.begin(), m_viewClasses.end(),
                       [widget](const QByteArray &name) { return widget->inherits(name.constData()); });
}

} // namespace host
