// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

// The only place that knows Qt 5 from Qt 6. All other files include this header and never check
// the Qt version. It is not installed.

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QEnterEvent>
#include <QIcon>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QPixmap>
#include <QStyleOptionViewItem>
#include <QWidget>

#include <memory>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#    include <QDesktopWidget>
#else
#    include <QPointer>
#    include <QPointingDevice>
#endif

namespace qtbridge {

// The Qt major version that this file is compiled for: 5 or 6.
constexpr int kQtMajor = QT_VERSION_MAJOR;

// The parent for windows that belong to no main window. Qt 5: the desktop widget. Qt 6 has no
// such widget: null, which makes a window without a parent.
[[nodiscard]] inline QWidget *desktopWidget()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QApplication::desktop();
#else
    return nullptr;
#endif
}

// The folder of Qt's own translations.
[[nodiscard]] inline QString translationsFolder()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

// The menus, toolbars and other widgets that show an action.
[[nodiscard]] inline QWidgetList widgetsOf(const QAction &action)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return action.associatedWidgets();
#else
    QWidgetList widgets;
    const QList<QObject *> objects = action.associatedObjects();
    for (QObject *object : objects) {
        if (auto *widget = qobject_cast<QWidget *>(object))
            widgets.append(widget);
    }
    return widgets;
#endif
}

// Position of a mouse event in global pixels.
[[nodiscard]] inline QPoint globalPosition(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.globalPos();
#else
    return event.globalPosition().toPoint();
#endif
}

// Position of a mouse event in pixels of the widget or window that receives it.
[[nodiscard]] inline QPoint localPosition(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.pos();
#else
    return event.position().toPoint();
#endif
}

// Position of a pen's event in pixels of the widget or window that receives it.
[[nodiscard]] inline QPoint localPosition(const QTabletEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.pos();
#else
    return event.position().toPoint();
#endif
}

// An event of a pen that is held upright, at half of the maximum pressure. `position` is in pixels
// of the window that receives the event.
[[nodiscard]] inline std::unique_ptr<QTabletEvent>
tabletEvent(QEvent::Type type, const QPointF &position, const QPointF &globalPosition,
            Qt::MouseButton button, Qt::MouseButtons buttons)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return std::make_unique<QTabletEvent>(type, position, globalPosition, QTabletEvent::Stylus,
                                          QTabletEvent::Pen, 0.5, 0, 0, 0.0, 0.0, 0, Qt::NoModifier, 1,
                                          button, buttons);
#else
    return std::make_unique<QTabletEvent>(type, QPointingDevice::primaryPointingDevice(), position,
                                          globalPosition, 0.5, 0.0F, 0.0F, 0.0F, 0.0, 0.0F,
                                          Qt::NoModifier, button, buttons);
#endif
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
namespace detail {
// Copies the part of a mouse event that only Qt can set: a mark on the press of a double click.
// Qt's widgets use it to tell that press from an ordinary one.
class MouseEvent : public QMouseEvent
{
public:
    MouseEvent(const QMouseEvent &event, const QPointF &position, const QPointF &scenePosition,
               const QPointF &globalPosition, const QPointingDevice *device)
        : QMouseEvent(event.type(), position, scenePosition, globalPosition, event.button(),
                      event.buttons(), event.modifiers(), event.source(), device)
    {
        m_doubleClick = MouseEvent(event).m_doubleClick;
        setTimestamp(event.timestamp());
    }
    explicit MouseEvent(const QMouseEvent &event)
        : QMouseEvent(event)
    {
    }
};
} // namespace detail
#endif

// The same event at another local position, for a window or widget that it was not addressed to.
[[nodiscard]] inline std::unique_ptr<QMouseEvent> atPosition(const QMouseEvent &event,
                                                             const QPointF &position)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    auto moved = std::make_unique<QMouseEvent>(event.type(), position, position, event.screenPos(),
                                               event.button(), event.buttons(), event.modifiers(),
                                               event.source());
    moved->setTimestamp(event.timestamp());
    return moved;
#else
    return std::make_unique<detail::MouseEvent>(event, position, position, event.globalPosition(),
                                                event.pointingDevice());
#endif
}

// A mouse event that is stored and sent later.
class KeptMouseEvent
{
public:
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    explicit KeptMouseEvent(const QMouseEvent &event)
        : m_event(std::make_unique<QMouseEvent>(event))
    {
    }
    [[nodiscard]] std::unique_ptr<QMouseEvent> event() const
    {
        return std::make_unique<QMouseEvent>(*m_event);
    }
#else
    explicit KeptMouseEvent(const QMouseEvent &event)
        : m_event(std::make_unique<detail::MouseEvent>(event))
        , m_position(event.position())
        , m_scenePosition(event.scenePosition())
        , m_globalPosition(event.globalPosition())
        , m_device(event.pointingDevice())
    {
    }
    // Creates a new event. A plain copy would share its point with the pointing device, which
    // changes the point with every later event.
    [[nodiscard]] std::unique_ptr<QMouseEvent> event() const
    {
        const QPointingDevice *device =
            m_device ? m_device.data() : QPointingDevice::primaryPointingDevice();
        return std::make_unique<detail::MouseEvent>(*m_event, m_position, m_scenePosition,
                                                    m_globalPosition, device);
    }
#endif
    [[nodiscard]] QEvent::Type type() const
    {
        return m_event->type();
    }

private:
    std::unique_ptr<QMouseEvent> m_event;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QPointF m_position;
    QPointF m_scenePosition;
    QPointF m_globalPosition;
    QPointer<const QPointingDevice> m_device; // may be unplugged meanwhile
#endif
};

// A copy of an event that can be sent later.
template <class Event> [[nodiscard]] std::unique_ptr<Event> copyOf(const Event &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return std::make_unique<Event>(event);
#else
    return std::unique_ptr<Event>(event.clone());
#endif
}

// The icon's pixmap, Normal and Off, of at most `size` in pixels of a widget, for a device with
// `ratio` pixels for each of them. Its device pixel ratio is lower than `ratio` if the icon has
// no image that large.
[[nodiscard]] inline QPixmap pixmapOf(const QIcon &icon, const QSize &size, qreal ratio)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 5 multiplies by the application's ratio itself, but only where a program asks for it.
    const qreal factor = QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)
                           ? ratio / qApp->devicePixelRatio()
                           : ratio;
    QPixmap pixmap = icon.pixmap(size * factor, QIcon::Normal, QIcon::Off);
    const qreal across = qreal(pixmap.width()) / size.width();
    const qreal down = qreal(pixmap.height()) / size.height();
    pixmap.setDevicePixelRatio(qMax(qreal(1), qMin(ratio, qMax(across, down))));
    return pixmap;
#else
    return icon.pixmap(size, ratio, QIcon::Normal, QIcon::Off);
#endif
}

namespace detail {
// Gives access to a protected function. No object of this class ever exists.
class ItemViewAccess : public QAbstractItemView
{
public:
    static QStyleOptionViewItem optionsOf(const QAbstractItemView &view)
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        return (view.*(&ItemViewAccess::viewOptions))();
#else
        QStyleOptionViewItem option;
        (view.*(&ItemViewAccess::initViewItemOption))(&option);
        return option;
#endif
    }
};
} // namespace detail

// The style options that an item view passes to its delegates for every item.
[[nodiscard]] inline QStyleOptionViewItem viewOptions(const QAbstractItemView &view)
{
    return detail::ItemViewAccess::optionsOf(view);
}

} // namespace qtbridge
