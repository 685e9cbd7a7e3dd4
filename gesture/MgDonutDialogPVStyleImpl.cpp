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
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <cmath>
#include <optional>
#include <utility>

namespace {

// The pointer chooses its sector beyond this distance from the centre, in pixels.
constexpr double kAcceptDistance = 69.0;
// Shorter moves are ignored. In pixels across plus down.
constexpr int kLeastMove = 21;
// The last frame stays this long, in milliseconds.
constexpr int kFadeTime = 250;
// The host's mode while a gesture is armed or on.
constexpr qint16 kFollowsPointer = 1;

// Any call into the host may handle events, and may destroy the main window and the ring with it. What
// comes after such a call looks at a QPointer first.

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
    if (!doc || armed || gesturing || m_isWindingUp)
        return;

    m_compositor.ask(); // the answer is here when the ring needs it
    windUpPos = QCursor::pos();
    document = doc;
    m_isWindingUp = true;
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    takeMode();
    QWidget *view = self ? documentView() : nullptr;
    if (!self)
        return;
    if (view) {
        savedCursor = view->cursor();
        m_holdsCursor = true;
        view->setCursor(QCursor(Qt::ArrowCursor));
    }
    m_isWindingUp = false;
    armed = true;
}

void MgDonutDialogPVStyleImpl::TryStart(const QPoint &)
{
    if (!armed || gesturing)
        return;
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    const QPointer<QWidget> view = activeView();
    if (!self)
        return;
    if (!view) {
        giveUp();
        return;
    }

    const QPoint pointer = view->mapFromGlobal(QCursor::pos());
    const DonutHelperData shown = MgDonutDataContainer::instance()->getDonutHelperData();
    // This asks the host a lot. If the host handled events meanwhile, they may have started it.
    if (!self || !armed || gesturing)
        return;
    if (!view) {
        giveUp();
        return;
    }
    sectorVisuals.clear();
    sectorTooltips.clear();
    m_sectorNames.clear();
    activeArc = -1;
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
    bypassWindowManager(); // somebody may have closed the window, and Qt makes a new one
    followWindowOf(*view);
    setEnabled(true); // the main window of the first gesture may be disabled, and the ring with it
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
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    giveBackHost();
    if (!self)
        return;
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
    if (gesturing) {
        const QPointer<MgDonutDialogPVStyleImpl> self = this;
        tellSector();
        if (!self || !gesturing)
            return;
    }
    if (distance > kAcceptDistance)
        doFading();
    else
        update();
}

void MgDonutDialogPVStyleImpl::mouseMoveEvent(QMouseEvent *)
{
    // Moves can arrive after the end of the gesture. They must not end it again, or the command
    // would run twice.
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    const QWidget *view = activeView();
    if (!self || !gesturing || !view)
        return;

    const QPoint offset = view->mapFromGlobal(QCursor::pos()) - origin;
    if (offset.manhattanLength() < kLeastMove)
        return;
    mousePositionChanged(offset.x(), -offset.y());
    if (self && fading)
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
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    StopGesturing(false);
    if (self)
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
    // A blocked or disabled ring would never see the release, and its grab would keep the mouse from
    // the modal window.
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    if (gesturing && (event->type() == QEvent::WindowBlocked || !isEnabled()))
        StopGesturing(false);
    return self ? MgDonutDialog::event(event) : true;
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
    tell(text);
}

void MgDonutDialogPVStyleImpl::tellNothing()
{
    if (m_toldArc == -1)
        return;
    m_toldArc = -1;
    tell(QString());
}

void MgDonutDialogPVStyleImpl::tell(const QString &text)
{
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    showText(text, false);
    if (self)
        setAccessibleDescription(text); // sends the accessibility event
}

void MgDonutDialogPVStyleImpl::bypassWindowManager()
{
    if (internalWinId() && windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint))
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

void MgDonutDialogPVStyleImpl::takeMode()
{
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    std::optional<qint16> mode;
    // If the last gesture could not give it back, it is still the one to give back.
    if (m_holdsMode)
        mode = savedHostMode;
    else
        withApplication([&mode](CHxApplication &host) { mode = host.GetMode(); });
    if (!self || !mode)
        return;
    savedHostMode = *mode;
    withApplication([this, &self](CHxApplication &host) {
        if (!self)
            return;
        m_holdsMode = true;
        host.SetMode(kFollowsPointer);
    });
}

void MgDonutDialogPVStyleImpl::giveUp()
{
    // A ring that waited for a view would open at some later movement, with no button down.
    armed = false;
    giveBackHost();
}

void MgDonutDialogPVStyleImpl::giveBackHost()
{
    const QPointer<MgDonutDialogPVStyleImpl> self = this;
    if (m_holdsMode) {
        bool isGivenBack = false;
        withApplication([&isGivenBack, mode = savedHostMode](CHxApplication &host) {
            host.SetMode(mode);
            isGivenBack = true;
        });
        if (self)
            m_holdsMode = !isGivenBack;
    }
    if (!self || !std::exchange(m_holdsCursor, false))
        return;
    const QCursor cursor = savedCursor;
    if (QWidget *view = documentView())
        view->setCursor(cursor);
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
