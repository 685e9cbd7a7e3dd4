// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

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
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRegularExpression>
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

// Compares names, because we do not link the libraries of these classes.
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

// A widget that is painted with the graphics library of the machine, or that contains a window
// that is not a widget.
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

// For classes that never are views, and their subclasses: says what the widget is. Null for others.
const char *otherThanView(const QWidget *widget)
{
    if (isAnyOf<QTextEdit, QPlainTextEdit>(widget))
        return QT_TRANSLATE_NOOP("host", "it is a text editor");
    if (isAnyOf<QAbstractItemView>(widget))
        return QT_TRANSLATE_NOOP("host", "it is an item view");
    if (isAnyOf<QTabWidget, QTabBar, QStackedWidget, QSplitter, QMdiArea, QMdiSubWindow, QGroupBox>(
            widget))
        return QT_TRANSLATE_NOOP("host", "it is a frame for others");
    if (isControl(widget) || isAnyOf<QAbstractSlider, QMenuBar, QStatusBar, QToolBar>(widget))
        return QT_TRANSLATE_NOOP("host", "it is a control");
    return nullptr;
}

// Qt's own widgets that paint nothing of a program's. Compared by the real type: a class
// without Q_OBJECT bears its base's name.
bool isPlain(const QWidget *widget)
{
    const std::type_info &type = typeid(*widget);
    return type == typeid(QWidget) || type == typeid(QFrame) || type == typeid(QScrollArea)
        || type == typeid(QAbstractScrollArea) || type == typeid(QMainWindow) || type == typeid(QDialog);
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
    static const QRegularExpression startPage(QStringLiteral("welcome|start[a-z_]*(page|screen|view)"),
                                              QRegularExpression::CaseInsensitiveOption);
    return startPage.match(className(widget)).hasMatch()
        || startPage.match(widget->objectName()).hasMatch();
}

// The child of an MDI area, or the central widget of a main window, that `widget` is in or is;
// null when it is in neither or stands in a dock. Of several the innermost.
const QWidget *areaOf(const QWidget *widget)
{
    const QWidget *area = nullptr;
    const QWidget *below = nullptr;
    for (const QWidget *up = widget; up; below = up, up = up->parentWidget()) {
        if (isAnyOf<QDockWidget, QToolBar, QStatusBar>(up))
            return nullptr;
        if (const auto *child = qobject_cast<const QMdiSubWindow *>(up); child && !area) {
            if (child->widget() != below)
                return nullptr;
            area = below;
        }
        // A main window may stand inside another, as an MDI child or a page does.
        if (const auto *window = qobject_cast<const QMainWindow *>(up);
            window && !area && below && window->centralWidget() == below)
            area = below;
        if (up->isWindow())
            break;
    }
    return area;
}

// The form that a designer of forms shows, and that `widget` is a part of; null if none.
const QWidget *formOf(const QWidget *widget)
{
    for (const QWidget *up = widget->parentWidget(); up; up = up->parentWidget()) {
        if (up->inherits("QDesignerFormWindowInterface"))
            return up;
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

// True if the middle of a main window shows no drawing or does not exist.
bool hasNoViewInside(const QWidget *middle)
{
    if (!middle || isSmall(middle))
        return true;
    if (ViewGuess::of(middle).isView)
        return false;
    const auto children = middle->findChildren<QWidget *>();
    return std::none_of(children.begin(), children.end(),
                        [](const QWidget *child) { return ViewGuess::of(child).isView; });
}

// The content of the large dock around `widget`, if the drawing is in a dock: beside the text that
// describes it, or in a window that has only docks. Null for any other dock: a picture there is a
// preview, an overview or a colour chooser.
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

// True if a child keeps a distance from all edges that is larger than a layout's margin. Then it is
// something like a note over a picture.
bool liesOver(const QWidget &child, const QWidget &widget)
{
    constexpr int kMargin = 16; // pixels
    return widget.rect().marginsRemoved({kMargin, kMargin, kMargin, kMargin}).contains(child.geometry());
}

// A visible child that fills most of `widget` and takes its input; null if none. Of a
// scroll area the content, however large it is.
const QWidget *contentOf(const QWidget *widget)
{
    if (const auto *area = qobject_cast<const QScrollArea *>(widget))
        return area->widget();
    const QWidget *viewport = viewportOf(widget);
    const QObjectList &children = (viewport ? viewport : widget)->children();
    for (const QObject *object : children) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (child && !child->isWindow() && child->isVisible()
            && !child->testAttribute(Qt::WA_TransparentForMouseEvents) && !liesOver(*child, *widget)
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
// Pixels between those buttons and the nearest corner, in both directions, at most.
constexpr int kCornerMargin = 32;

bool isInCorner(const QRect &rect, const QRect &whole)
{
    const QRect inner =
        whole.marginsRemoved({kCornerMargin, kCornerMargin, kCornerMargin, kCornerMargin});
    const bool isNearSide = rect.left() < inner.left() || rect.right() > inner.right();
    const bool isNearEnd = rect.top() < inner.top() || rect.bottom() > inner.bottom();
    return isNearSide && isNearEnd;
}

// Controls at scroll bars and in the corner between them do not count.
bool isPageOfControls(const QWidget *widget)
{
    const QWidget *viewport = viewportOf(widget);
    const QWidget *picture = viewport ? viewport : widget;
    int buttons = 0;
    int others = 0;
    QRect aroundButtons;
    const auto all = picture->findChildren<QWidget *>();
    for (const QWidget *child : all) {
        if (!isControl(child) || !child->isVisible())
            continue;
        if (!isAnyOf<QAbstractButton>(child)) {
            ++others;
            continue;
        }
        ++buttons;
        const QPoint corner = child->mapTo(const_cast<QWidget *>(picture), QPoint(0, 0));
        aroundButtons |= QRect(corner, child->size());
    }
    const qint64 size = qint64(picture->width()) * picture->height();
    const bool isCorner =
        isInCorner(aroundButtons, picture->rect())
        && 100 * qint64(aroundButtons.width()) * aroundButtons.height() <= kCornerShare * size;
    return others + (isCorner ? 0 : buttons) > kMostControls;
}

bool hasTableHeader(const QWidget *widget)
{
    const auto headers = widget->findChildren<QHeaderView *>();
    return std::any_of(headers.begin(), headers.end(),
                       [](const QWidget *header) { return header->isVisible(); });
}

ViewGuess no(const Phrase &reason)
{
    return {false, reason};
}

ViewGuess yes(const Phrase &reason)
{
    return {true, reason};
}

// Says why a program cannot paint a drawing on this widget, at any place and size; empty if it can.
Phrase whyNoCanvas(const QWidget *widget, const QWidget *area)
{
    if (const char *what = otherThanView(widget))
        return Phrase(what);
    for (const QWidget *up = widget; up && up != area->parentWidget(); up = up->parentWidget()) {
        if (isWebView(up))
            return Phrase(QT_TRANSLATE_NOOP("host", "it shows web pages"));
        if (isStartPage(up))
            return Phrase(QT_TRANSLATE_NOOP("host", "it is a start page by its name"));
        if (up != widget && viewportOf(up) == widget)
            return Phrase(QT_TRANSLATE_NOOP("host", "it is the viewport of %1"),
                          {Phrase::verbatim(className(up))});
        if (up != widget && isAnyOf<QAbstractItemView, QTextEdit, QPlainTextEdit>(up))
            return Phrase(QT_TRANSLATE_NOOP("host", "it is inside %1"),
                          {Phrase::verbatim(className(up))});
    }
    if (!widget->isVisible())
        return Phrase(QT_TRANSLATE_NOOP("host", "it is not visible"));
    if (isSmall(widget))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is too small"));
    if (isGraphicsViewOrSurface(widget))
        return {};
    if (isPlain(widget))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is a plain %1, which paints nothing"),
                      {Phrase::verbatim(className(widget))});
    if (const QWidget *content = contentOf(widget))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is filled by another, %1"),
                      {Phrase::verbatim(className(content))});
    const QWidget *viewport = viewportOf(widget);
    if (takesText(widget) || (viewport && takesText(viewport)))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is a text editor by the way it takes text"));
    if (hasTableHeader(widget))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is a table by its header"));
    if (isPageOfControls(widget))
        return Phrase(QT_TRANSLATE_NOOP("host", "it is a page of controls"));
    return {};
}

// The scroll area whose content `widget` is, or only holds it: programs put a plain widget
// between the two, to centre a small picture. Null if there is none.
const QScrollArea *scrollAreaOf(const QWidget *widget)
{
    const QWidget *content = widget;
    while (content->parentWidget() && !content->isWindow()) {
        const auto *area = qobject_cast<const QScrollArea *>(content->parentWidget()->parentWidget());
        if (area && area->widget() == content)
            return content == widget || !isPageOfControls(content) ? area : nullptr;
        content = content->parentWidget();
        if (!isPlain(content))
            return nullptr;
    }
    return nullptr;
}

// True if the area has no other widget that could show a drawing. Widgets of one class are
// panes of one view.
bool isAlone(const QWidget *widget, const QWidget *area)
{
    const auto others = area->findChildren<QWidget *>();
    return std::all_of(others.begin(), others.end(), [&](const QWidget *other) {
        return typeid(*other) == typeid(*widget) || other->isAncestorOf(widget)
            || widget->isAncestorOf(other) || !whyNoCanvas(other, area).isEmpty();
    });
}

ViewGuess judgeShare(const QWidget *widget, const QWidget *area)
{
    const QScrollArea *scrolled = scrollAreaOf(widget);
    const int share = percentOf(scrolled ? static_cast<const QWidget *>(scrolled) : widget, area);
    const std::vector<Phrase> percent{Phrase::verbatim(QString::number(share))};
    if (share >= ViewGuess::kShare) {
        return yes(
            Phrase(scrolled ? QT_TRANSLATE_NOOP(
                       "host", "it is the content of a scroll area that fills %1 % of the area")
                            : QT_TRANSLATE_NOOP("host", "it paints itself and fills %1 % of the area"),
                   percent));
    }
    // In a window of another size, its neighbours may be larger than it.
    if (share >= ViewGuess::kLeastShare && isAlone(widget, area)) {
        return yes(Phrase(
            scrolled ? QT_TRANSLATE_NOOP("host", "it is the content of a scroll area that fills %1 % of "
                                                 "the area, where nothing else could show a drawing")
                     : QT_TRANSLATE_NOOP("host", "it paints itself and fills %1 % of the area, where "
                                                 "nothing else could show a drawing"),
            percent));
    }
    return no(Phrase(QT_TRANSLATE_NOOP("host", "it fills %1 % of the area only"), percent));
}

} // namespace

ViewGuess ViewGuess::of(const QWidget *widget)
{
    const QWidget *area = areaOf(widget);
    if (!area)
        area = dockAreaOf(widget);
    if (!area)
        return no(Phrase(QT_TRANSLATE_NOOP("host", "it is not in the middle of a main window")));
    // In a form the widgets are the drawing.
    const QWidget *form = formOf(widget);
    if (form && widget->parentWidget() != form)
        return widget->isVisible()
                 ? yes(Phrase(QT_TRANSLATE_NOOP("host", "it is part of a form that is being designed")))
                 : no(Phrase(QT_TRANSLATE_NOOP("host", "it is not visible")));
    const Phrase obstacle = whyNoCanvas(widget, area);
    if (!obstacle.isEmpty())
        return no(obstacle);
    if (isAnyOf<QGraphicsView>(widget))
        return yes(Phrase(QT_TRANSLATE_NOOP("host", "it is a graphics view")));
    if (isSurface(widget))
        return yes(
            Phrase(QT_TRANSLATE_NOOP("host", "it is a surface of the graphics library or of a window")));
    return judgeShare(widget, area);
}

} // namespace gesturewidget
