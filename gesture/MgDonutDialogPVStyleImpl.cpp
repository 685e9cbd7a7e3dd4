// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"

#include "bindings/DonutHelperData.h"
#include "bindings/HostCall.h"
#include "bindings/MgDonutDataContainer.h"
#include "gesture/HostView.h"
#include "gesture/MgRingAccessible.h"
#include "sdk/chx/CHxApplication.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxTextOutput.h"
#include "sdk/OwnCode.h"
#include "sdk/QtBridge.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <cmath>

namespace {

// The pointer chooses its sector beyond this distance from the centre, in pixels.
constexpr double kAcceptDistance = 69.0;
// Shorter moves are ignored. In pixels across plus down.
constexpr int kLeastMove = 21;
// The last frame stays this long, in milliseconds.
constexpr int kFadeTime = 250;
// The host's mode while a gesture is armed or on.
constexpr qint16 kFollowsPointer = 1;

// Gives the host's application to `call`, if there is one. Returns false if the host threw.
template <class Call> bool withApplication(Call call)
{
    return hostCall([&call] {
        CHxSystemServices *services = GetHxSystemServices();
        if (CHxApplication *application = services ? services->GetApplication() : nullptr)
            call(*application);
    });
}

// Shows a line of text in the host's status bar, if it has one.
void showText(const QString &text, bool immediate)
{
    hostCall([&text, immediate] {
        CHxSystemServices *services = GetHxSystemServices();
        if (CHxTextOutput *output = services ? services->GetTextOutput() : nullptr)
            output->SetText(CHxString(text), immediate);
    });
}

// True if a command's tip says its name at the beginning, so that both together would say it twice.
bool beginsWithName(const QString &tip, const QString &name)
{
    return tip.startsWith(name, Qt::CaseInsensitive)
        && (tip.size() == name.size() || !tip.at(name.size()).isLetterOrNumber());
}

} // namespace

MgDonutDialogPVStyleImpl::MgDonutDialogPVStyleImpl(QWidget *parent, Qt::WindowFlags flags)
    : MgDonutDialog(parent, flags)
{
    donutSize =
        m_images.image(QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png"), 1.0).size();
    installEventFilter(this);
    bypassWindowManager();
    MgRingAccessible::install();
    setAccessibleName(tr("Mouse gesture"));
}

MgDonutDialogPVStyleImpl::~MgDonutDialogPVStyleImpl()
{
    // The main window may be destroyed during a gesture, and the ring with it.
    if (gesturing)
        StopGesturing(false);
    giveBackHost();

    showText(QString(), true);
}

void MgDonutDialogPVStyleImpl::WindUp(CHxDocument *doc)
{
    if (!doc || armed || gesturing)
        return;

    m_compositor.ask(); // the answer is here when the ring needs it
    windUpPos = QCursor::pos();
    document = doc;
    m_holdsHost = true;
    m_knowsHostMode = withApplication([this](CHxApplication &host) { savedHostMode = host.GetMode(); });
    if (m_knowsHostMode)
        withApplication([](CHxApplication &host) { host.SetMode(kFollowsPointer); });
    if (QWidget *view = documentView()) {
        savedCursor = view->cursor();
        view->setCursor(QCursor(Qt::ArrowCursor));
    }
    armed = true;
}

void MgDonutDialogPVStyleImpl::TryStart(const QPoint &)
{
    if (!armed || gesturing)
        return;
    const QWidget *view = activeView();
    if (!view)
        return;

    sectorVisuals.clear();
    sectorTooltips.clear();
    m_sectorNames.clear();
    activeArc = -1;
    const QPoint pointer = view->mapFromGlobal(QCursor::pos());

    const DonutHelperData shown = MgDonutDataContainer::instance()->getDonutHelperData();
    arcCount = static_cast<quint16>(shown.sectorCount);
    if (arcCount == 4)
        keepSpan = 130.0;
    else if (arcCount == 8)
        keepSpan = 65.0;
    for (int i = 0; i < arcCount; ++i) {
        const auto visual = shown.sectorVisuals.find(i);
        const auto tooltip = shown.sectorTooltips.find(i);
        sectorVisuals.push_back(visual != shown.sectorVisuals.end()
                                    ? visual->second
                                    : std::make_pair(DonutHelperData::kText, QVariant(QString())));
        sectorTooltips.push_back(tooltip != shown.sectorTooltips.end() ? tooltip->second : QString());
        const auto name = shown.sectorNames.find(i);
        m_sectorNames.push_back(name != shown.sectorNames.end() ? name->second : QString());
    }

    // The pointer may already be anywhere. If it is far out, the fading runs here, before the ring
    // is visible, and the next move ends the gesture.
    mousePositionChanged(pointer.x() - origin.x(), origin.y() - pointer.y());
    bypassWindowManager(); // Qt 6 makes a new window after somebody closed the ring
    followWindowOf(*view);
    takeBackdrop();
    setVisible(true);
    // The X server maps an unmanaged window at once, so it grants both grabs.
    if (isVisible()) {
        grabMouse();
        grabKeyboard();
    }
    gesturing = true;
    armed = false;
    paintAtOnce();
    tellSector();
}

void MgDonutDialogPVStyleImpl::StopGesturing(bool sectorChosen)
{
    gesturing = false;
    justStopped = true;
    fading = false;
    accepted = sectorChosen;
    giveBackHost();
    releaseMouse();
    releaseKeyboard();
    setVisible(false);
    tellNothing();
}

bool MgDonutDialogPVStyleImpl::JustStopped()
{
    const bool stopped = justStopped;
    justStopped = false;
    return stopped;
}

void MgDonutDialogPVStyleImpl::doFading()
{
    fading = true;
    // Qt paints at once and sends the result to the display.
    repaint();
    // The busy wait is meant: no event comes between the choice and the end of the gesture.
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < kFadeTime) { }
}

void MgDonutDialogPVStyleImpl::mousePositionChanged(double x, double y)
{
    setActiveArc(x, y);
    distance = std::sqrt(x * x + y * y);
    if (gesturing)
        tellSector();
    if (distance > kAcceptDistance)
        doFading();
    else
        update();
}

void MgDonutDialogPVStyleImpl::mouseMoveEvent(QMouseEvent *)
{
    // Moves can arrive after the end of the gesture. They must not end it again, or the command
    // would run twice.
    const QWidget *view = activeView();
    if (!gesturing || !view)
        return;

    const QPoint offset = view->mapFromGlobal(QCursor::pos()) - origin;
    if (offset.manhattanLength() < kLeastMove)
        return;
    mousePositionChanged(offset.x(), -offset.y());
    if (fading)
        StopGesturing(true);
}

void MgDonutDialogPVStyleImpl::mouseReleaseEvent(QMouseEvent *event)
{
    // A release during the fading arrives after the end. The choice stands, and the view learns
    // where the pointer is.
    if (!gesturing) {
        postMoveToView(*event);
        return;
    }
    if (fading) {
        StopGesturing(true);
        return;
    }
    // StopGesturing() clears it again. Has no effect and is kept.
    fading = true;
    StopGesturing(false);
    postMoveToView(*event);
}

void MgDonutDialogPVStyleImpl::mousePressEvent(QMouseEvent *) { }

void MgDonutDialogPVStyleImpl::keyPressEvent(QKeyEvent *event)
{
    // No key ends a gesture, Escape included.
    event->accept();
}

bool MgDonutDialogPVStyleImpl::eventFilter(QObject *watched, QEvent *event)
{
    // An accepted key does not become a shortcut of the host.
    if (watched == this && event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    // Skips the dialog's own filter, which looks for keys of its default button.
    return QObject::eventFilter(watched, event); // NOLINT(bugprone-parent-virtual-call)
}

bool MgDonutDialogPVStyleImpl::event(QEvent *event)
{
    const gesturewidget::OwnCode ours;
    // A blocked ring would never see the release, and its grab would keep the mouse from the
    // modal window.
    if (event->type() == QEvent::WindowBlocked && gesturing)
        StopGesturing(false);
    return MgDonutDialog::event(event);
}

void MgDonutDialogPVStyleImpl::hideEvent(QHideEvent *event)
{
    MgDonutDialog::hideEvent(event);
    // If somebody else hid or closed the ring, nothing may stay grabbed.
    if (gesturing)
        StopGesturing(false);
}

void MgDonutDialogPVStyleImpl::tellSector()
{
    if (activeArc == m_toldArc)
        return;
    m_toldArc = activeArc;
    const auto sector = static_cast<std::size_t>(activeArc);
    QString text;
    if (sector < m_sectorNames.size()) { // -1 is not, nor is one past the last sector
        text = m_sectorNames[sector];
        const QString &tip = sectorTooltips[sector];
        if (text.isEmpty() || beginsWithName(tip, text))
            text = tip;
        else if (!tip.isEmpty())
            text = tr("%1: %2", "name of a command, what it does").arg(text, tip);
    }
    showText(text, false);
    setAccessibleDescription(text); // sends the accessibility event
}

void MgDonutDialogPVStyleImpl::tellNothing()
{
    if (m_toldArc == -1)
        return;
    m_toldArc = -1;
    showText(QString(), false);
    setAccessibleDescription(QString());
}

void MgDonutDialogPVStyleImpl::bypassWindowManager()
{
    if (windowHandle() && windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint))
        return;
    // A window manager would give the ring the focus and a task-bar entry, push it away from
    // the edges of the screen or hide it as a tool of an inactive program. It learns of a
    // window when it is mapped, so the flag comes before. QWidget's own flags stay as they are.
    resize(donutSize); // first, so that the window has this size from the start
    // Without OpenGL, which the ring never uses, the window is made a millisecond sooner. Qt has
    // no such switch for one window.
    const bool isForced = QCoreApplication::testAttribute(Qt::AA_ForceRasterWidgets);
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    const Qt::WindowFlags own = windowFlags();
    overrideWindowFlags(own | Qt::BypassWindowManagerHint); // only tells create()
    // Makes the window. winId() would also make one for each widget of the main window.
    create();
    overrideWindowFlags(own);
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, isForced);
}

void MgDonutDialogPVStyleImpl::paintAtOnce()
{
    // Qt paints a window when the server says that it is on the screen. That word lies behind all
    // other events of the program, and handling those can take long. The server maps an unmanaged
    // window at once, so there is nothing to wait for. Other platforms need Qt's order.
    if (!isVisible() || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    setAttribute(Qt::WA_Mapped); // as Qt does it then
    repaint();
}

void MgDonutDialogPVStyleImpl::followWindowOf(const QWidget &view)
{
    // The ring's parent is the main window of the first gesture. Qt blocks what belongs to a window
    // with that window's dialogs, and a desktop may hide it when the window is minimised. So the
    // native window belongs to the one that the gesture is made in.
    QWindow *below = view.window()->windowHandle();
    if (below && windowHandle()->transientParent() != below)
        windowHandle()->setTransientParent(below);
}

void MgDonutDialogPVStyleImpl::takeBackdrop()
{
    m_backdrop = QPixmap();
    if (m_compositor.isCompositing())
        return;
    QScreen *below = QGuiApplication::screenAt(geometry().center());
    if (!below)
        below = windowHandle()->screen();
    const QPoint corner = pos() - below->geometry().topLeft();
    m_backdrop = below->grabWindow(0, corner.x(), corner.y(), width(), height());
}

QWidget *MgDonutDialogPVStyleImpl::documentView() const
{
    return viewOf(document);
}

void MgDonutDialogPVStyleImpl::giveBackHost()
{
    if (!m_holdsHost)
        return;
    m_holdsHost = false;
    if (m_knowsHostMode)
        withApplication([this](CHxApplication &host) { host.SetMode(savedHostMode); });
    if (QWidget *view = documentView())
        view->setCursor(savedCursor);
}

void MgDonutDialogPVStyleImpl::postMoveToView(const QMouseEvent &release)
{
    QWidget *view = documentView();
    if (!view)
        return;
    const QPoint global = qtbridge::globalPosition(release);
    QCoreApplication::postEvent(view,
                                new QMouseEvent(QEvent::MouseMove, view->mapFromGlobal(global), global,
                                                Qt::NoButton, release.buttons(), release.modifiers()));
}
