// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/ViewFinder.h"
#include "host/documents/ViewGuess.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QDockWidget>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QWindow>

#include <functional>
#include <memory>

using gesturewidget::ViewGuess;

namespace {

// The widget that a drafting program paints on. Like many, it has no Q_OBJECT, so its class name is
// QWidget.
class Canvas : public QWidget
{
public:
    using QWidget::QWidget;
};

void addButton(QWidget *parent, const QRect &place)
{
    auto *button = new QPushButton(QStringLiteral("+"), parent);
    button->setGeometry(place);
}

class ScrollingCanvas : public QAbstractScrollArea
{
public:
    using QAbstractScrollArea::QAbstractScrollArea;
};

class Editor : public QTextEdit
{
public:
    using QTextEdit::QTextEdit;
};

// A text editor that is not one of Qt's, or a canvas on which a person can type text.
class TypedInto : public QWidget
{
public:
    explicit TypedInto(const QVariant &surrounding)
        : m_surrounding(surrounding)
    {
        setAttribute(Qt::WA_InputMethodEnabled);
    }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        return query == Qt::ImSurroundingText ? m_surrounding : QWidget::inputMethodQuery(query);
    }

private:
    QVariant m_surrounding;
};

// These have the names of widgets from libraries that are not linked here.
class QWebEngineView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class QGLWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class QDesignerFormWindowInterface : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

class DrafterStartPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

// Puts something into a main window and returns the widget to judge.
using Build = std::function<QWidget *(QMainWindow &)>;

template <class Widget> QWidget *central(QMainWindow &window)
{
    auto *widget = new Widget;
    window.setCentralWidget(widget);
    return widget;
}

template <class Widget> QWidget *docked(QMainWindow &window)
{
    window.setCentralWidget(new Canvas);
    auto *dock = new QDockWidget;
    auto *widget = new Widget;
    widget->setMinimumSize(200, 200);
    dock->setWidget(widget);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    return widget;
}

template <class Widget> QWidget *mdiChild(QMainWindow &window)
{
    auto *area = new QMdiArea;
    window.setCentralWidget(area);
    auto *widget = new Widget;
    area->addSubWindow(widget)->resize(300, 250);
    return widget;
}

// Puts a widget into a dock of this width, in pixels, beside `middle`, which may be null.
template <class Widget> QWidget *dockedBeside(QMainWindow &window, QWidget *middle, int width)
{
    window.setCentralWidget(middle);
    auto *dock = new QDockWidget;
    auto *widget = new Widget;
    dock->setWidget(widget);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    widget->setFixedWidth(width);
    return widget;
}

// Puts `widget` beside another one into a plain widget. `share`: its part of the width in per cent.
QWidget *beside(QMainWindow &window, int share, QWidget *widget, QWidget *other = new QWidget)
{
    auto *frame = new QWidget;
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(widget, share);
    layout->addWidget(other, 100 - share);
    window.setCentralWidget(frame);
    return widget;
}

QWidget *filledBy(QWidget *frame, QWidget *content)
{
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    return frame;
}

QWidget *canvasWithLabels(int labels)
{
    auto *canvas = new Canvas;
    for (int i = 0; i < labels; ++i)
        (new QLabel(QStringLiteral("x"), canvas))->move(20 * i, 0);
    return canvas;
}

QWidget *inScrollArea(QMainWindow &window, QWidget *content)
{
    auto *area = new QScrollArea;
    content->resize(300, 150); // much less than the area
    area->setWidget(content);
    window.setCentralWidget(area);
    return content;
}

QWidget *tableOfOwn()
{
    auto *table = new ScrollingCanvas;
    new QHeaderView(Qt::Horizontal, table->viewport());
    return table;
}

// Shows a form's own widget, as a form designer does.
template <class Widget> QWidget *formIn(QMainWindow &window)
{
    auto *form =
        static_cast<QDesignerFormWindowInterface *>(mdiChild<QDesignerFormWindowInterface>(window));
    auto *container = new QWidget;
    filledBy(form, container);
    auto *widget = new Widget;
    widget->setWindowFlags(Qt::Widget);
    filledBy(container, widget);
    return widget;
}

} // namespace
Q_DECLARE_METATYPE(Build)

class ViewGuessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void guesses_data();
    void guesses();
    void theFinderFindsWhatIsShownLater();
    void theFinderReportsTheViewport();
    void theFinderWaitsUntilThingsAreInPlace();
};

void ViewGuessTest::guesses_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<bool>("isView");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const Build &build, bool isView, const char *reason) {
        QTest::newRow(name) << build << isView << QString::fromLatin1(reason);
    };

    row("graphics view", central<QGraphicsView>, true, "graphics view");
    row("graphics view in a dock", docked<QGraphicsView>, false, "not in the middle");
    row(
        "graphics view in a large dock beside a text",
        [](QMainWindow &w) { return dockedBeside<QGraphicsView>(w, new Editor, 300); }, true,
        "graphics view");
    row(
        "surface in a large dock beside a text",
        [](QMainWindow &w) { return dockedBeside<QGLWidget>(w, new Editor, 300); }, true, "surface");
    row(
        "graphics view in a dock and nothing else",
        [](QMainWindow &w) { return dockedBeside<QGraphicsView>(w, nullptr, 700); }, true,
        "graphics view");
    row(
        "graphics view in a small dock beside a text",
        [](QMainWindow &w) { return dockedBeside<QGraphicsView>(w, new Editor, 130); }, false,
        "not in the middle");
    row(
        "graphics view in a large dock beside a drawing",
        [](QMainWindow &w) {
            auto *tabs = new QTabWidget;
            tabs->addTab(new QGraphicsView, QStringLiteral("1"));
            return dockedBeside<QGraphicsView>(w, tabs, 400);
        },
        false, "not in the middle");
    row(
        "graphics view in a large dock beside a hidden drawing",
        [](QMainWindow &w) {
            auto *hidden = new QGraphicsView;
            hidden->hide();
            return dockedBeside<QGraphicsView>(w, hidden, 300);
        },
        true, "graphics view");
    row(
        "graphics view in a large dock beside a small part of another",
        [](QMainWindow &w) {
            auto *small = new QScrollArea;
            small->setMaximumWidth(99);
            auto *large = new QGraphicsView;
            large->resize(300, 300);
            small->setWidget(large);
            return dockedBeside<QGraphicsView>(w, small, 300);
        },
        true, "graphics view");
    row(
        "graphics view in a floating dock",
        [](QMainWindow &w) {
            QWidget *view = dockedBeside<QGraphicsView>(w, new Editor, 300);
            static_cast<QDockWidget *>(view->parentWidget())->setFloating(true);
            return view;
        },
        false, "not in the middle");
    row(
        "canvas in a large dock beside a text",
        [](QMainWindow &w) { return dockedBeside<Canvas>(w, new Editor, 300); }, false,
        "not in the middle");
    row("graphics view in an MDI child", mdiChild<QGraphicsView>, true, "graphics view");
    row(
        "canvas that a plain widget holds in a scroll area",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            auto *frame = new QWidget;
            canvas->setParent(frame);
            canvas->setGeometry(10, 10, 200, 120); // a small picture in a large window
            inScrollArea(w, frame);
            return static_cast<QWidget *>(canvas);
        },
        true, "content of a scroll area");
    row(
        "canvas with buttons in its corner",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            for (int i = 0; i < 6; ++i)
                addButton(canvas, {20 * i, 0, 18, 18});
            w.setCentralWidget(canvas);
            return static_cast<QWidget *>(canvas);
        },
        true, "paints itself");
    row(
        "canvas with buttons in its last corner",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            canvas->setFixedSize(400, 300);
            for (int i = 0; i < 6; ++i)
                addButton(canvas, {280 + 20 * i, 282, 18, 18});
            w.setCentralWidget(canvas);
            return static_cast<QWidget *>(canvas);
        },
        true, "paints itself");
    row(
        "buttons along an edge",
        [](QMainWindow &w) {
            auto *page = new Canvas;
            for (int i = 0; i < 6; ++i)
                addButton(page, {300 + 20 * i, 0, 18, 18});
            w.setCentralWidget(page);
            return static_cast<QWidget *>(page);
        },
        false, "page of controls");
    row(
        "canvas with hidden buttons",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            for (int i = 0; i < 6; ++i)
                addButton(canvas, {300 + 20 * i, 200, 18, 18});
            const auto buttons = canvas->findChildren<QPushButton *>();
            for (QPushButton *button : buttons)
                button->hide();
            w.setCentralWidget(canvas);
            return static_cast<QWidget *>(canvas);
        },
        true, "paints itself");
    row(
        "small buttons in the middle",
        [](QMainWindow &w) {
            auto *page = new Canvas;
            for (int i = 0; i < 6; ++i)
                addButton(page, {300 + 20 * i, 200, 18, 18});
            w.setCentralWidget(page);
            return static_cast<QWidget *>(page);
        },
        false, "page of controls");
    row(
        "canvas in a dialog inside an MDI child",
        [](QMainWindow &w) {
            auto *dialog = static_cast<QDialog *>(mdiChild<QDialog>(w));
            auto *canvas = new Canvas;
            filledBy(dialog, canvas);
            return static_cast<QWidget *>(canvas);
        },
        true, "paints itself");
    row(
        "graphics view beside others", [](QMainWindow &w) { return beside(w, 30, new QGraphicsView); },
        true, "graphics view");
    row(
        "its viewport",
        [](QMainWindow &w) {
            return static_cast<QGraphicsView *>(central<QGraphicsView>(w))->viewport();
        },
        false, "viewport of QGraphicsView");
    row(
        "small graphics view",
        [](QMainWindow &w) {
            QWidget *view = beside(w, 30, new QGraphicsView);
            view->setFixedSize(99, 200);
            return view;
        },
        false, "too small");
    row(
        "hidden graphics view",
        [](QMainWindow &w) {
            QWidget *view = central<QGraphicsView>(w);
            view->hide();
            return view;
        },
        false, "not visible");
    row(
        "graphics view without a main window",
        [](QMainWindow &w) {
            auto *window = new QWidget(&w, Qt::Window);
            filledBy(window, new QGraphicsView);
            window->show();
            return window->findChild<QGraphicsView *>();
        },
        false, "not in the middle");
    row("surface", central<QGLWidget>, true, "surface");
    row(
        "surface as viewport",
        [](QMainWindow &w) {
            auto *view = static_cast<QGraphicsView *>(central<QGraphicsView>(w));
            view->setViewport(new QGLWidget);
            return view->viewport();
        },
        false, "viewport of");
    row(
        "foreign window",
        [](QMainWindow &w) {
            QWidget *container = QWidget::createWindowContainer(new QWindow);
            w.setCentralWidget(container);
            return container;
        },
        true, "surface");
    row(
        "surface in a web page",
        [](QMainWindow &w) {
            auto *surface = new QGLWidget;
            w.setCentralWidget(filledBy(new QWebEngineView, surface));
            return surface;
        },
        false, "web pages");
    row("web page", central<QWebEngineView>, false, "web pages");

    row("canvas", central<Canvas>, true, "fills 100 %");
    row("scrolling canvas", central<ScrollingCanvas>, true, "fills 100 %");
    row("canvas in an MDI child", mdiChild<Canvas>, true, "fills 100 %");
    row("canvas in a dock", docked<Canvas>, false, "not in the middle");
    row(
        "canvas that fills 65 %", [](QMainWindow &w) { return beside(w, 65, new Canvas); }, true,
        "fills 65 %");
    row(
        "canvas that fills 55 % beside another kind",
        [](QMainWindow &w) { return beside(w, 55, new Canvas, new ScrollingCanvas); }, false,
        "fills 55 % of the area only");
    row(
        "canvas that fills 30 % beside a list",
        [](QMainWindow &w) { return beside(w, 30, new Canvas, new QListWidget); }, true,
        "fills 30 % of the area, where nothing else");
    row(
        "canvas that fills 30 % beside a table of the program's own",
        [](QMainWindow &w) { return beside(w, 30, new Canvas, tableOfOwn()); }, true,
        "where nothing else");
    row(
        "that table",
        [](QMainWindow &w) {
            QWidget *table = tableOfOwn();
            beside(w, 30, new Canvas, table);
            return table;
        },
        false, "table by its header");
    row(
        "two panes of one kind", [](QMainWindow &w) { return beside(w, 50, new Canvas, new Canvas); },
        true, "fills 50 %");
    row(
        "ornament beside a list",
        [](QMainWindow &w) { return beside(w, 15, new Canvas, new QListWidget); }, false,
        "fills 15 % of the area only");
    row(
        "canvas with rulers",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            (new Canvas(canvas))->resize(600, 20);
            (new Canvas(canvas))->resize(20, 600);
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "fills 100 %");
    row(
        "frame around a canvas",
        [](QMainWindow &w) {
            QWidget *frame = filledBy(new Canvas, new Canvas);
            w.setCentralWidget(frame);
            return frame;
        },
        false, "filled by another");
    row(
        "canvas in a frame",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            w.setCentralWidget(filledBy(new Canvas, canvas));
            return canvas;
        },
        true, "fills 100 %");
    row(
        "canvas under a hidden page",
        [](QMainWindow &w) {
            auto *page = new Canvas;
            QWidget *canvas = filledBy(new Canvas, page);
            page->hide();
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "fills 100 %");
    row(
        "canvas with a dialog",
        [](QMainWindow &w) {
            QWidget *canvas = central<Canvas>(w);
            auto *dialog = new QDialog(canvas);
            dialog->resize(800, 600);
            dialog->show();
            return canvas;
        },
        true, "fills 100 %");
    row(
        "canvas that fills 30 %, with another in it",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            (new ScrollingCanvas(canvas))->setGeometry(20, 20, 120, 120);
            return beside(w, 30, canvas, new QListWidget);
        },
        true, "where nothing else");
    row(
        "canvas that fills 30 %, in a frame of the program's own",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            auto *frame = new ScrollingCanvas;
            auto *layout = new QHBoxLayout(frame);
            layout->setContentsMargins(0, 0, 0, 0);
            layout->addWidget(new QListWidget, 35);
            layout->addWidget(canvas, 30);
            layout->addWidget(new QListWidget, 35);
            w.setCentralWidget(filledBy(new QWidget, frame));
            return static_cast<QWidget *>(canvas);
        },
        true, "where nothing else");
    row(
        "canvas under glass",
        [](QMainWindow &w) {
            auto *glass = new Canvas;
            glass->setAttribute(Qt::WA_TransparentForMouseEvents);
            QWidget *canvas = filledBy(new Canvas, glass);
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "fills 100 %");
    row(
        "small canvas that scrolls", [](QMainWindow &w) { return inScrollArea(w, new Canvas); }, true,
        "content of a scroll area");
    row(
        "small canvas in a plain widget that scrolls",
        [](QMainWindow &w) {
            auto *frame = new QWidget;
            auto *canvas = new Canvas(frame);
            inScrollArea(w, frame);
            canvas->resize(frame->size() - QSize(5, 5));
            return canvas;
        },
        true, "content of a scroll area");
    row(
        "part of a page that scrolls",
        [](QMainWindow &w) {
            auto *frame = new QWidget;
            auto *canvas = new Canvas(frame);
            for (int i = 0; i < 4; ++i)
                (new QLabel(QStringLiteral("x"), frame))->move(130, 20 * i);
            inScrollArea(w, frame);
            canvas->resize(120, 120);
            return canvas;
        },
        false, "of the area only");
    row(
        "scrolling canvas with buttons at its scroll bars",
        [](QMainWindow &w) {
            auto *canvas = static_cast<QAbstractScrollArea *>(central<ScrollingCanvas>(w));
            canvas->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
            canvas->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
            canvas->setCornerWidget(new QPushButton);
            for (int i = 0; i < 2; ++i) {
                canvas->addScrollBarWidget(new QPushButton, Qt::AlignBottom);
                canvas->addScrollBarWidget(new QPushButton, Qt::AlignRight);
            }
            return canvas;
        },
        true, "fills 100 %");
    row("dialog as a form's container", formIn<QDialog>, true, "form that is being designed");
    row(
        "button on a form",
        [](QMainWindow &w) {
            auto *button = new QPushButton(QStringLiteral("x"), formIn<QDialog>(w));
            return static_cast<QWidget *>(button);
        },
        true, "form that is being designed");
    row(
        "hidden button on a form",
        [](QMainWindow &w) {
            auto *button = new QPushButton(QStringLiteral("x"), formIn<QDialog>(w));
            button->hide();
            return static_cast<QWidget *>(button);
        },
        false, "not visible");
    row("dialog that is an MDI child", mdiChild<QDialog>, false, "plain QDialog");
    row(
        "canvas in a dialog that is an MDI child",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            filledBy(mdiChild<QDialog>(w), canvas);
            return canvas;
        },
        true, "it paints itself");
    row(
        "graphics view in a main window in a dock",
        [](QMainWindow &w) {
            auto *inner = static_cast<QMainWindow *>(docked<QMainWindow>(w));
            inner->setWindowFlags(Qt::Widget);
            auto *view = new QGraphicsView;
            inner->setCentralWidget(view);
            return view;
        },
        false, "not in the middle");
    row(
        "scroll area around a canvas",
        [](QMainWindow &w) { return inScrollArea(w, new Canvas)->parentWidget()->parentWidget(); },
        false, "plain QScrollArea");
    row(
        "canvas on a page of tabs",
        [](QMainWindow &w) {
            auto *tabs = new QTabWidget;
            w.setCentralWidget(tabs);
            auto *canvas = new Canvas;
            tabs->addTab(canvas, QStringLiteral("1"));
            return canvas;
        },
        true, "it paints itself");
    row(
        "canvas under a note",
        [](QMainWindow &w) {
            auto *canvas = new Canvas;
            filledBy(canvas, new Editor)->layout()->setContentsMargins(25, 25, 25, 25);
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "fills 100 %");
    row(
        "start page by a longer name",
        [](QMainWindow &w) {
            QWidget *page = central<Canvas>(w);
            page->setObjectName(QStringLiteral("StartMainPage"));
            return page;
        },
        false, "start page");
    row(
        "canvas with three labels",
        [](QMainWindow &w) {
            QWidget *canvas = canvasWithLabels(3);
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "fills 100 %");
    row(
        "page of controls",
        [](QMainWindow &w) {
            QWidget *canvas = canvasWithLabels(4);
            w.setCentralWidget(canvas);
            return canvas;
        },
        false, "page of controls");

    row("plain widget", central<QWidget>, false, "plain QWidget");
    row("frame", central<QFrame>, false, "plain QFrame");
    row("text editor", central<Editor>, false, "text editor");
    row(
        "text editor of another library",
        [](QMainWindow &w) {
            auto *editor = new TypedInto(QString());
            w.setCentralWidget(editor);
            return editor;
        },
        false, "text editor by the way");
    row(
        "canvas that takes text in no place",
        [](QMainWindow &w) {
            auto *canvas = new TypedInto(QVariant());
            w.setCentralWidget(canvas);
            return canvas;
        },
        true, "paints itself");
    row("list", central<QListWidget>, false, "item view");
    row("MDI area", central<QMdiArea>, false, "frame for others");
    row("tabs", central<QTabWidget>, false, "frame for others");
    row("stack", central<QStackedWidget>, false, "frame for others");
    row("splitter", central<QSplitter>, false, "frame for others");
    row("button", central<QPushButton>, false, "control");
    row("picture", central<QLabel>, false, "control");
    row("start page", central<DrafterStartPage>, false, "start page");
    row(
        "start page by its object's name",
        [](QMainWindow &w) {
            QWidget *page = central<Canvas>(w);
            page->setObjectName(QStringLiteral("WelcomeView"));
            return page;
        },
        false, "start page");
    row(
        "MDI child's frame", [](QMainWindow &w) { return mdiChild<Canvas>(w)->parentWidget(); }, false,
        "not in the middle");
    row(
        "the main window", [](QMainWindow &w) { return &w; }, false, "not in the middle");
}

void ViewGuessTest::guesses()
{
    QFETCH(Build, build);
    QFETCH(bool, isView);
    QFETCH(QString, reason);
    QMainWindow window;
    window.resize(800, 600);
    const QWidget *widget = build(window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const ViewGuess guess = ViewGuess::of(widget);
    QVERIFY2(guess.isView == isView, qPrintable(guess.reason.english()));
    QVERIFY2(guess.reason.english().contains(reason), qPrintable(guess.reason.english()));
}

void ViewGuessTest::theFinderFindsWhatIsShownLater()
{
    QMainWindow window;
    window.resize(800, 600);
    auto *area = new QMdiArea;
    window.setCentralWidget(area);
    window.show();
    gesturewidget::ViewFinder finder({}, true);
    QSet<QWidget *> found;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, this,
            [&found](QWidget *view) { found.insert(view); });
    finder.start();
    auto *first = new Canvas;
    first->setMinimumSize(200, 200);
    area->addSubWindow(first)->show();
    QTRY_COMPARE(found, QSet<QWidget *>{first});
    auto *second = new Canvas;
    area->addSubWindow(second)->showMaximized();
    QTRY_COMPARE(found, (QSet<QWidget *>{first, second}));
    finder.stop();
}

void ViewGuessTest::theFinderReportsTheViewport()
{
    QMainWindow window;
    window.resize(800, 600);
    auto *view = new QGraphicsView;
    window.setCentralWidget(view);
    window.show();
    gesturewidget::ViewFinder finder({}, true);
    QSet<QWidget *> found;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, this,
            [&found](QWidget *v) { found.insert(v); });
    finder.start();
    QTRY_COMPARE(found, QSet<QWidget *>{view->viewport()});
    finder.stop();
}

// A frame that is filled a moment later is not taken for a canvas.
void ViewGuessTest::theFinderWaitsUntilThingsAreInPlace()
{
    QMainWindow window;
    window.resize(800, 600);
    auto *frame = new Canvas;
    window.setCentralWidget(frame);
    gesturewidget::ViewFinder finder({}, true);
    QSet<QWidget *> found;
    connect(&finder, &gesturewidget::ViewFinder::viewFound, this,
            [&found](QWidget *v) { found.insert(v); });
    finder.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *canvas = new Canvas;
    filledBy(frame, canvas);
    canvas->show();
    QTRY_VERIFY(!found.isEmpty());
    QCOMPARE(found, QSet<QWidget *>{canvas});
    finder.stop();
}

QTEST_MAIN(ViewGuessTest)
#include "tst_viewguess.moc"
