// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/spy/ActionSpy.h"

#include "sdk/QtBridge.h"

#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHash>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <typeinfo>
#include <utility>

#include <cxxabi.h>

namespace {

QString className(const QObject *object)
{
    return QString::fromLatin1(object->metaObject()->className());
}

// The name in the source, also of a class without Q_OBJECT.
QString typeName(const QObject &object)
{
    static QHash<const std::type_info *, QString> known;
    QString &type = known[&typeid(object)];
    if (type.isEmpty()) {
        int status = 0;
        char *name = abi::__cxa_demangle(typeid(object).name(), nullptr, nullptr, &status);
        type = QString::fromLatin1(status == 0 ? name : typeid(object).name());
        std::free(name);
    }
    return type;
}

QString text(const QRect &rect)
{
    return QStringLiteral("%1,%2,%3,%4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

// A caption without mnemonics and line breaks.
QString plain(QString caption)
{
    caption.remove(QLatin1Char('&'));
    return caption.simplified();
}

// The name of a key, such as "Escape".
QString keyName(int key)
{
    return QString::fromLatin1(QMetaEnum::fromType<Qt::Key>().valueToKey(key)).mid(4);
}

QRect globalGeometry(const QWidget *widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

} // namespace

ActionSpy::ActionSpy()
    : m_log(qEnvironmentVariable("ACTIONSPY_LOG"))
    , m_viewClasses(qEnvironmentVariable("ACTIONSPY_VIEW").split(QLatin1Char(',')))
    , m_widgetNames(qEnvironmentVariable("ACTIONSPY_WIDGETS").split(QLatin1Char(',')))
    , m_entry(qEnvironmentVariable("ACTIONSPY_ENTRY"))
{
    if (!m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        std::fprintf(stderr, "actionspy: cannot write \"%s\"\n", qPrintable(m_log.fileName()));
        return;
    }
    write({QStringLiteral("started"), QString::number(QCoreApplication::applicationPid())});
    m_lookAround.setSingleShot(true);
    m_lookAround.setInterval(0);
    connect(&m_lookAround, &QTimer::timeout, this, &ActionSpy::lookAround);
    qApp->installEventFilter(this);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { write({QStringLiteral("quit")}); });
}

bool ActionSpy::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
        watchAction(static_cast<QActionEvent *>(event)->action());
        m_lookAround.start();
        break;
    case QEvent::ChildAdded:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ParentChange:
        m_lookAround.start();
        break;
    case QEvent::Expose:
        if (watched->isWindowType())
            watchExposure(static_cast<QWindow *>(watched));
        break;
    default:
        break;
    }
    if (watched->isWidgetType())
        watchWidgetEvent(static_cast<QWidget *>(watched), event);
    return false;
}

void ActionSpy::watchExposure(QWindow *window)
{
    const QPointer<QWidget> widget = window->isExposed() ? QWidget::find(window->winId()) : nullptr;
    if (!widget)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, widget] {
            if (widget)
                write({QStringLiteral("exposed"), className(widget)});
        },
        Qt::QueuedConnection);
}

void ActionSpy::watchWidgetEvent(QWidget *widget, QEvent *event)
{
    const auto mouse = [&](const char *what) {
        const auto *mouseEvent = static_cast<QMouseEvent *>(event);
        const QPoint at = qtbridge::globalPosition(*mouseEvent);
        write({QLatin1String(what), QString::number(mouseEvent->button()), className(widget),
               QStringLiteral("%1,%2").arg(at.x()).arg(at.y())});
    };
    switch (event->type()) {
    case QEvent::Show:
        if (qobject_cast<QMenu *>(widget)) {
            write({QStringLiteral("menu"), className(widget), widget->objectName()});
            writeEntries(*widget);
        } else if (widget->isWindow()) {
            write({widget->isModal() ? QStringLiteral("dialog") : QStringLiteral("window"),
                   className(widget), text(globalGeometry(widget)), plain(widget->windowTitle())});
            writeChoices(*widget);
        }
        m_lookAround.start();
        break;
    case QEvent::Hide:
        if (widget->isWindow())
            write({QStringLiteral("gone"), className(widget)});
        m_lookAround.start();
        break;
    case QEvent::MouseButtonPress:
        mouse("press");
        break;
    case QEvent::MouseButtonRelease:
        mouse("release");
        break;
    case QEvent::MouseButtonDblClick:
        mouse("doubleclick");
        break;
    case QEvent::ContextMenu:
        write({QStringLiteral("contextmenu"), className(widget),
               QString::number(static_cast<QContextMenuEvent *>(event)->reason())});
        break;
    case QEvent::KeyPress:
        noteKey(*widget, *static_cast<QKeyEvent *>(event));
        break;
    default:
        break;
    }
}

void ActionSpy::noteKey(const QWidget &widget, const QKeyEvent &event)
{
    const QString name = keyName(event.key());
    const Typed typed{event.timestamp(), event.key()};
    if (typed != m_lastTyped)
        write({QStringLiteral("typed"), name, className(&widget)});
    m_lastTyped = typed;
    write({QStringLiteral("key"), name, className(&widget)});
}

void ActionSpy::writeEntries(const QWidget &menu)
{
    QStringList line{QStringLiteral("entries")};
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions) {
        if (action->isVisible() && !action->isSeparator())
            line.append(plain(action->text()));
    }
    write(line);
}

void ActionSpy::writeChoices(const QWidget &dialog)
{
    if (!dialog.isModal())
        return;
    const QList<QComboBox *> boxes = dialog.findChildren<QComboBox *>();
    for (const QComboBox *box : boxes) {
        QStringList line{QStringLiteral("choices")};
        for (int i = 0; i < box->count(); ++i)
            line.append(plain(box->itemText(i)));
        write(line);
    }
}

void ActionSpy::watchAction(QAction *action)
{
    if (m_actions.contains(action))
        return;
    m_actions.insert(action);
    connect(action, &QObject::destroyed, this, [this, action] { m_actions.remove(action); });
    connect(action, &QAction::triggered, this, [this, action] {
        write({QStringLiteral("triggered"), action->objectName(), plain(action->text())});
        const QWidget *active = QApplication::activeWindow();
        const char *name = active ? active->metaObject()->className() : "none";
        write({QStringLiteral("active"), QString::fromLatin1(name)});
        if (const auto *owner = qobject_cast<QWidget *>(action->parent()))
            write({QStringLiteral("where"), action->objectName(), owner->window()->windowTitle()});
    });
}

void ActionSpy::lookAround()
{
    // An action may be in no menu and send no event, so all objects are searched as well.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        const QList<QAction *> actions = window->findChildren<QAction *>();
        for (QAction *action : actions)
            watchAction(action);
    }
    const QList<QAction *> own = qApp->findChildren<QAction *>();
    for (QAction *action : own)
        watchAction(action);

    reportPlaces();
    const int entries = countEntries();
    if (entries != m_entries)
        write({QStringLiteral("hasentry"), QString::number(entries)});
    m_entries = entries;
    if (!m_isReady && !m_views.empty() && (m_entry.isEmpty() || entries > 0)) {
        m_isReady = true;
        write({QStringLiteral("ready")});
    }
}

void ActionSpy::reportPlaces()
{
    Places views;
    Places named;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        for (const QString &name : std::as_const(m_viewClasses)) {
            if (!name.isEmpty()
                && (widget->inherits(name.toLatin1().constData()) || typeName(*widget) == name))
                views[widget] = globalGeometry(widget);
        }
        if (!widget->objectName().isEmpty() && m_widgetNames.contains(widget->objectName()))
            named[widget] = globalGeometry(widget);
    }
    const auto isNew = [](const Places &known, const Places::value_type &place) {
        const auto found = known.find(place.first);
        return found == known.end() || found->second != place.second;
    };
    for (const auto &place : views) {
        if (isNew(m_views, place))
            write({QStringLiteral("view"), className(place.first), text(place.second)});
    }
    for (const auto &place : named) {
        if (isNew(m_widgets, place))
            write({QStringLiteral("widget"), place.first->objectName(), text(place.second),
                   text(QRect(place.first->mapTo(place.first->window(), QPoint(0, 0)),
                              place.second.size()))});
    }
    m_views = std::move(views);
    m_widgets = std::move(named);
}

int ActionSpy::countEntries() const
{
    return static_cast<int>(
        std::count_if(m_actions.begin(), m_actions.end(), [this](const QAction *action) {
            return !m_entry.isEmpty() && plain(action->text()) == m_entry;
        }));
}

void ActionSpy::write(const QStringList &fields)
{
    m_log.write(fields.join(QLatin1Char('\t')).toUtf8() + '\n');
}
