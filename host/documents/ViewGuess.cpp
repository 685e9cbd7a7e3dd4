#include "host/documents/ViewGuess.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFrame>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>

#include <algorithm>
#include <array>
#include <typeinfo>

namespace gesturewidget {
namespace {

template <class... Classes> bool isAnyOf(const QWidget *widget)
{
    return ((qobject_cast<const Classes *>(widget) != nullptr) || ...);
}

QString className(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className());
}

// By name, because these classes come from libraries that are not linked here.
template <std::size_t Count>
bool inheritsAny(const QWidget *widget, const std::array<const char *, Count> &names)
{
    for (const char *name : names) {
        if (widget->inherits(name))
            return true;
    }
    return false;
}

bool isWebView(const QWidget *widget)
{
    return inheritsAny(widget, std::array{"QWebEngineView", "QWebView",
                                          "QtWebEngineCore::RenderWidgetHostViewQtDelegateWidget"});
}

// A widget that a drawing program draws on with the machine's graphics library, or that
// stands for a window which is no widget.
bool isSurface(const QWidget *widget)
{
    return inheritsAny(widget,
                       std::array{"QOpenGLWidget", "QGLWidget", "QWindowContainer", "QQuickWidget"});
}

bool isControl(const QWidget *widget)
{
    return isAnyOf<QAbstractButton, QAbstractSpinBox, QComboBox, QLabel, QLineEdit, QProgressBar>(
        widget);
}

// True for widgets that are never views, including derived ones.
bool isOther(const QWidget *widget, QString *what)
{
    if (isAnyOf<QTextEdit, QPlainTextEdit>(widget))
        *what = QStringLiteral("a text editor");
    else if (isAnyOf<QAbstractItemView>(widget))
        *what = QStringLiteral("an item view");
    else if (isAnyOf<QTabWidget, QTabBar, QStackedWidget, QSplitter, QMdiArea, QMdiSubWindow, QGroupBox>(
                 widget))
        *what = QStringLiteral("a frame for others");
    else if (isControl(widget) || isAnyOf<QAbstractSlider, QMenuBar, QStatusBar, QToolBar>(widget))
        *what = QStringLiteral("a control");
    else
        return false;
    return true;
}

// Qt's own widgets that paint nothing of a program's. Compared by the real type: a class
// without Q_OBJECT bears its base's name.
bool isPlain(const QWidget *widget)
{
    const std::type_info &type = typeid(*widget);
    return type == typeid(QWidget) || type == typeid(QFrame) || type == typeid(QScrollArea)
        || type == typeid(QAbstractScrollArea) || type == typeid(QMainWindow);
}

// An editor for text of some other library than Qt, or a terminal: it tells input methods
// what is written around the cursor.
bool takesText(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_InputMethodEnabled)
        && widget->inputMethodQuery(Qt::ImSurroundingText).isValid();
}

bool isStartPage(const QWidget *widget)
{
    for (const QString &name : {className(widget), widget->objectName()}) {
        const QString lower = name.toLower();
        for (const char *word : {"startpage", "start_page", "startscreen", "startview", "welcome"}) {
            if (lower.contains(QLatin1String(word)))
                return true;
        }
    }
    return false;
}

// Returns the content of the MDI child, or the main window's central widget, that `widget` is or
// is in; null if there is none.
const QWidget *areaOf(const QWidget *widget)
{
    const QWidget *below = nullptr;
    for (const QWidget *up = widget; up; below = up, up = up->parentWidget()) {
        if (isAnyOf<QDockWidget, QToolBar, QStatusBar>(up))
            return nullptr;
        // A dialog that is no window is one that is being designed, or a page.
        if (isAnyOf<QDialog>(up) && up->isWindow())
            return nullptr;
        if (const auto *child = qobject_cast<const QMdiSubWindow *>(up))
            return child->widget() == below ? below : nullptr;
        if (const auto *window = qobject_cast<const QMainWindow *>(up)) {
            if (below && window->centralWidget() == below)
                return below;
            // A main window may stand inside another, as an MDI child or a page does.
        }
        if (up->isWindow())
            return nullptr;
    }
    return nullptr;
}

int percentOf(const QWidget *part, const QWidget *whole)
{
    const QRect all = whole->rect();
    const QRect covered(part->mapTo(const_cast<QWidget *>(whole), QPoint(0, 0)), part->size());
    const QRect common = covered & all;
    const qint64 wholeSize = qint64(all.width()) * all.height();
    return wholeSize <= 0 ? 0
                          : static_cast<int>(100 * qint64(common.width()) * common.height() / wholeSize);
}

bool isSmall(const QWidget *widget)
{
    return widget->width() < ViewGuess::kSmallest || widget->height() < ViewGuess::kSmallest;
}

bool isGraphicsViewOrSurface(const QWidget *widget)
{
    return isAnyOf<QGraphicsView>(widget) || isSurface(widget);
}

// True if the middle of a main window holds no drawing, or does not exist.
bool hasNoViewInside(const QWidget *middle)
{
    if (!middle || !middle->isVisible() || isSmall(middle))
        return true;
    if (ViewGuess::of(middle).isView)
        return false;
    const auto children = middle->findChildren<QWidget *>();
    return std::none_of(children.begin(), children.end(),
                        [](const QWidget *child) { return ViewGuess::of(child).isView; });
}

// Returns the content of the large dock that `widget` is in, if the drawing is in a dock and not
// in the middle: beside the text that describes it, or in a window of docks only. Returns null for
// any other dock, where a picture is a preview, a map or a chooser of colours.
const QWidget *dockAreaOf(const QWidget *widget)
{
    if (!isGraphicsViewOrSurface(widget))
        return nullptr;
    const QWidget *up = widget;
    while (up && !up->isWindow() && !isAnyOf<QDockWidget>(up))
        up = up->parentWidget();
    const auto *dock = qobject_cast<const QDockWidget *>(up);
    const auto *window = dock ? qobject_cast<const QMainWindow *>(dock->parentWidget()) : nullptr;
    if (!window || dock->isWindow() || percentOf(widget, window) < ViewGuess::kDockShare)
        return nullptr;
    return hasNoViewInside(window->centralWidget()) ? dock->widget() : nullptr;
}

const QWidget *viewportOf(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
    return area ? area->viewport() : nullptr;
}

// Returns a visible child that fills most of `widget` and takes its input, or null. For a scroll
// area it is the content, whatever its size.
const QWidget *contentOf(const QWidget *widget)
{
    if (const auto *area = qobject_cast<const QScrollArea *>(widget))
        return area->widget();
    const QWidget *viewport = viewportOf(widget);
    const QObjectList &children = (viewport ? viewport : widget)->children();
    for (const QObject *object : children) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (child && !child->isWindow() && child->isVisible()
            && !child->testAttribute(Qt::WA_TransparentForMouseEvents)
            && percentOf(child, widget) >= ViewGuess::kShare)
            return child;
    }
    return nullptr;
}

// More controls than this in one widget make it a page of them. A drawing may have a label
// that shows a coordinate.
constexpr int kMostControls = 3;
// Per cent of a widget. Buttons that all stand in so small a part of it do not count: drawings
// have them in a corner, to zoom for example.
constexpr int kCornerShare = 10;

bool isPageOfControls(const QWidget *widget)
{
    int buttons = 0;
    int others = 0;
    QRect aroundButtons;
    const auto all = widget->findChildren<QWidget *>();
    for (const QWidget *child : all) {
        if (!isControl(child) || !child->isVisible())
            continue;
        if (!isAnyOf<QAbstractButton>(child)) {
            ++others;
            continue;
        }
        ++buttons;
        const QPoint corner = child->mapTo(const_cast<QWidget *>(widget), QPoint(0, 0));
        aroundButtons |= QRect(corner, child->size());
    }
    const qint64 size = qint64(widget->width()) * widget->height();
    const bool isCorner =
        100 * qint64(aroundButtons.width()) * aroundButtons.height() <= kCornerShare * size;
    return others + (isCorner ? 0 : buttons) > kMostControls;
}

// The scroll area whose content is `widget`, or only holds it: programs put a plain widget
// between the two, to centre a small picture. Null if there is none.
const QScrollArea *scrollAreaOf(const QWidget *widget)
{
    const QWidget *content = widget;
    while (content->parentWidget() && !content->isWindow()) {
        const auto *area = qobject_cast<const QScrollArea *>(content->parentWidget()->parentWidget());
        if (area && area->widget() == content)
            return area;
        content = content->parentWidget();
        if (!isPlain(content))
            return nullptr;
    }
    return nullptr;
}

ViewGuess no(const QString &reason)
{
    return {false, reason};
}

ViewGuess yes(const QString &reason)
{
    return {true, reason};
}

ViewGuess judgeOwn(const QWidget *widget, const QWidget *area)
{
    if (const QWidget *content = contentOf(widget))
        return no(QStringLiteral("it is filled by another, %1").arg(className(content)));
    const QWidget *viewport = viewportOf(widget);
    if (takesText(widget) || (viewport && takesText(viewport)))
        return no(QStringLiteral("it is a text editor by the way it takes text"));
    if (isPageOfControls(widget))
        return no(QStringLiteral("it is a page of controls"));
    const QScrollArea *scrolled = scrollAreaOf(widget);
    if (scrolled && percentOf(scrolled, area) >= ViewGuess::kShare)
        return yes(QStringLiteral("it is the content of a scroll area that fills %1 % of %2")
                       .arg(percentOf(scrolled, area))
                       .arg(className(area)));
    const int share = percentOf(widget, area);
    if (share < ViewGuess::kShare)
        return no(QStringLiteral("it fills %1 % of the area only").arg(share));
    return yes(QStringLiteral("it paints itself and fills %1 % of the area").arg(share));
}

} // namespace

ViewGuess ViewGuess::of(const QWidget *widget)
{
    const QWidget *area = areaOf(widget);
    if (!area)
        area = dockAreaOf(widget);
    if (!area)
        return no(QStringLiteral("it is not in the middle of a main window"));
    QString what;
    if (isOther(widget, &what))
        return no(QStringLiteral("it is ") + what);
    for (const QWidget *up = widget; up && up != area->parentWidget(); up = up->parentWidget()) {
        if (isWebView(up))
            return no(QStringLiteral("it shows web pages"));
        if (isStartPage(up))
            return no(QStringLiteral("it is a start page by its name"));
        if (up != widget && viewportOf(up) == widget)
            return no(QStringLiteral("it is the viewport of %1").arg(className(up)));
        if (up != widget && isAnyOf<QAbstractItemView, QTextEdit, QPlainTextEdit>(up))
            return no(QStringLiteral("it is inside %1").arg(className(up)));
    }
    if (!widget->isVisible())
        return no(QStringLiteral("it is not visible"));
    if (isSmall(widget))
        return no(QStringLiteral("it is too small"));
    if (isAnyOf<QGraphicsView>(widget))
        return yes(QStringLiteral("it is a graphics view"));
    if (isSurface(widget))
        return yes(QStringLiteral("it is a surface of the graphics library or of a window"));
    if (isPlain(widget))
        return no(QStringLiteral("it is a plain %1, which paints nothing").arg(className(widget)));
    return judgeOwn(widget, area);
}

} // namespace gesturewidget
