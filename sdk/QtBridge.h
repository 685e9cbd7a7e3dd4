#pragma once

// The one place where Qt 5 and Qt 6 differ: everything else includes this header and
// never asks for a Qt version.

#include <QAbstractItemView>
#include <QApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QStyleOptionViewItem>
#include <QWidget>

#include <memory>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#    include <QDesktopWidget>
#endif

namespace qtbridge {

// The Qt major version this file is compiled for: 5 or 6.
constexpr int kQtMajor = QT_VERSION_MAJOR;

// The desktop as a parent for windows that belong to no main window. Qt 6 has no such
// widget any more; null, which it means there, makes a window without a parent.
[[nodiscard]] inline QWidget *desktopWidget()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QApplication::desktop();
#else
    return nullptr;
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

// A copy of a mouse event that can be sent later.
[[nodiscard]] inline std::unique_ptr<QMouseEvent> copyOf(const QMouseEvent &event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return std::make_unique<QMouseEvent>(event);
#else
    return std::unique_ptr<QMouseEvent>(event.clone());
#endif
}

namespace detail {
// Only names the protected function below; there is never an object of it.
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

// What a view tells its delegates of every item alike.
[[nodiscard]] inline QStyleOptionViewItem viewOptions(const QAbstractItemView &view)
{
    return detail::ItemViewAccess::optionsOf(view);
}

} // namespace qtbridge
