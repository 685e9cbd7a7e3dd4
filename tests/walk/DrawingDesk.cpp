// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "tests/walk/DrawingDesk.h"

#include "bindings/MgDonutDataContainer.h"
#include "tests/host/support/LoggingView.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>
#include <QWheelEvent>

namespace tests {
namespace {

constexpr QPoint kViewCorner(10, 10); // in the window

const QStringList kFourCommands{QStringLiteral("zoom_bounds"), QStringLiteral("open"),
                                QStringLiteral("save"), QStringLiteral("line")};
// The fourth direction has none.
const QStringList kEightCommands{QStringLiteral("zoom_bounds"), QStringLiteral("offset"),
                                 QStringLiteral("open"),        QString(),
                                 QStringLiteral("save"),        QStringLiteral("dtext"),
                                 QStringLiteral("line"),        QStringLiteral("trim")};

QString identifierOf(const QString &command)
{
    return command.isEmpty() ? QString() : QStringLiteral("ID_") + command.toUpper();
}

// A view that leaves out of the log what depends on the windows around it.
class View : public LoggingView
{
public:
    View(QWidget *parent, QStringList &kept)
        : LoggingView(parent)
        , m_kept(kept)
    {
    }

protected:
    bool event(QEvent *event) override
    {
        const bool result = LoggingView::event(event);
        switch (event->type()) {
        case QEvent::Enter:
        case QEvent::Leave:
        case QEvent::FocusIn:
            break;
        default:
            m_kept += log;
        }
        log.clear();
        return result;
    }

private:
    QStringList &m_kept;
};

// Keeps all input from the program's windows.
class Blindfold : public QObject
{
public:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        return receiver->isWindowType() && LoggingView::isInput(*event);
    }
};

// Until nothing follows any more.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

template <class Event> void sendFromOutside(QObject *receiver, Event &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(receiver, &event);
}

} // namespace

QRect DrawingDesk::viewArea()
{
    return {0, 0, 480, 480};
}

QRect DrawingDesk::controlArea()
{
    return {0, 450, 100, 30};
}

QRect DrawingDesk::reach()
{
    return QRect(1, 1, 498, 498).translated(-kViewCorner); // QTest takes 0, 0 for the middle
}

DrawingDesk::DrawingDesk()
{
    m_window.setGeometry(60, 60, 500, 500);
    makeView();
    m_window.show();
    settle();
    if (!m_window.windowHandle()->isExposed())
        qFatal("the window does not appear");
    // Every desk begins alike, also after one that was left in the middle of something: no button is
    // down, and the pointer is outside the view.
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton, Qt::MiddleButton}) {
        if (QGuiApplication::mouseButtons() & button)
            QTest::mouseRelease(m_window.windowHandle(), button);
    }
    QCursor::setPos(m_window.mapToGlobal(QPoint(1, 1)));
    settle();
    m_log.clear();
}

DrawingDesk::~DrawingDesk() = default;

void DrawingDesk::makeView()
{
    m_view = new View(&m_window, m_log);
    m_view->setGeometry(viewArea().translated(kViewCorner));
    m_view->setCursor(GestureDesk::kOwnCursor);
    auto *control = new QLineEdit(m_view);
    control->setContextMenuPolicy(Qt::NoContextMenu);
    // All keys are the view's. The offscreen platform leaves the window inactive after a ring, and a
    // line edit in an inactive window passes keys on in another way.
    control->setFocusPolicy(Qt::NoFocus);
    control->setGeometry(controlArea());
    if (m_window.isVisible())
        m_view->show();
    m_view->setFocus();
}

void DrawingDesk::perform(const Step &step)
{
    QWindow *window = m_window.windowHandle();
    const QPoint place = step.position + kViewCorner;
    const QPoint global = m_window.mapToGlobal(place);
    switch (step.kind) {
    case Step::Move:
        QCursor::setPos(global); // the offscreen platform reports the movement
        break;
    case Step::Press:
        QTest::mousePress(window, step.button, step.modifiers, place);
        break;
    case Step::Release:
        QTest::mouseRelease(window, step.button, step.modifiers, place);
        break;
    case Step::DoubleClick:
        QTest::mouseDClick(window, step.button, step.modifiers, place);
        break;
    case Step::KeyPress:
        QTest::keyPress(window, Qt::Key(step.key), step.modifiers);
        break;
    case Step::KeyRelease:
        // QTest would add the release of each modifier.
        qt_handleKeyEvent(window, QEvent::KeyRelease, step.key, step.modifiers, QString(), false, 1);
        break;
    case Step::KeyRepeat: {
        QKeyEvent event(QEvent::KeyPress, step.key, step.modifiers, QString(), true);
        sendFromOutside(window, event);
        break;
    }
    case Step::Wheel: {
        QWheelEvent event(place, global, {}, QPoint(0, 120), step.buttons, step.modifiers,
                          Qt::NoScrollPhase, false);
        sendFromOutside(windowUnderPointer(), event);
        break;
    }
    case Step::ShowDialog: {
        QDialog dialog(&m_window);
        dialog.setModal(true);
        dialog.show();
        settle();
        break;
    }
    case Step::ShowPopup: {
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        menu.popup(m_window.mapToGlobal(QPoint(0, 0)));
        settle();
        break;
    }
    case Step::ReplaceView:
        delete m_view;
        makeView();
        viewWasReplaced();
        break;
    case Step::PostedMove:
        QCoreApplication::postEvent(m_view, new QMouseEvent(QEvent::MouseMove, step.position, global,
                                                            Qt::NoButton, step.buttons, step.modifiers));
        break;
    case Step::SwitchGestures:
    case Step::SwitchScheme:
    case Step::HideRing:
    case Step::DestroyRing:
    case Step::Cancel:
        break;
    }
    settle();
}

void BareDesk::performUnseen(const Step &step)
{
    Blindfold blindfold;
    qApp->installEventFilter(&blindfold);
    perform(step);
}

GestureDesk::GestureDesk()
{
    m_host.log.isOn = false;
    m_host.mode = kOwnMode;
    m_host.mainWindow = &m_window;
    for (const auto &[keys, names] : {std::pair{40, kFourCommands}, std::pair{80, kEightCommands}}) {
        for (int sector = 0; sector < names.size(); ++sector) {
            const QString &name = names.at(sector);
            m_host.store.values.insert(QString::number(keys + sector + 1), identifierOf(name));
            if (keys == 80 && !name.isEmpty()) // has those of four directions too
                m_host.commands.addCommand(identifierOf(name), name, name.toUpper());
        }
    }
    readSettings();
    m_filter = std::make_unique<gesturewidget::PointerFilter>(
        m_host.openDocuments, m_trigger,
        [this](const QWidget *) { return m_areGesturesOn; }); // from the store, as the host does it
    qApp->installEventFilter(m_filter.get());
    viewWasReplaced();
}

GestureDesk::~GestureDesk()
{
    m_filter.reset();
    delete ring(); // it may be open, and needs its document
}

CHxCommandResultPtr GestureDesk::Host::RunCommand(const CHxString &command, bool wait)
{
    ran.push_back(command.toQString());
    return FakeHost::RunCommand(command, wait);
}

void GestureDesk::readSettings()
{
    m_host.store.values.insert(QStringLiteral("EnableMouseGesture"),
                               QString::number(m_areGesturesOn ? 1 : 0));
    m_host.store.values.insert(QStringLiteral("ActiveScheme"), QString::number(m_sectors));
    // Nobody tells the module that another program has switched gestures on. It sees that at the next
    // press, so not in the middle of a drag.
    const bool isDragging = m_filter && m_filter->state() != gesturewidget::PointerFilter::State::Idle;
    if (!m_areGesturesOn || isDragging)
        MgDonutDataContainer::instance()->init();
}

void GestureDesk::viewWasReplaced()
{
    m_host.openDocuments.open(view())->inputPoints().AddTracker(&m_tracker, 0);
}

MgDonutDialogPVStyleImpl *GestureDesk::ring() const
{
    return qobject_cast<MgDonutDialogPVStyleImpl *>(m_tracker.donut.data());
}

QWindow *GestureDesk::windowUnderPointer()
{
    return ring() && ring()->isVisible() ? ring()->windowHandle() : m_window.windowHandle();
}

void GestureDesk::perform(const Step &step)
{
    switch (step.kind) {
    case Step::SwitchGestures:
        m_areGesturesOn = !m_areGesturesOn;
        readSettings();
        break;
    case Step::SwitchScheme:
        m_sectors = m_sectors == 4 ? 8 : 4;
        readSettings();
        break;
    case Step::HideRing:
        ring()->hide();
        break;
    case Step::DestroyRing:
        delete ring();
        break;
    case Step::Cancel:
        m_filter->cancel();
        break;
    case Step::PostedMove: // the ring does it
        return;
    default:
        break;
    }
    DrawingDesk::perform(step);
}

} // namespace tests
