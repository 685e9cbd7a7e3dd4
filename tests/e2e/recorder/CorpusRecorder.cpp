// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/recorder/CorpusRecorder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>

#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <typeinfo>
#include <unistd.h>
#include <utility>

namespace {

constexpr int kPollTime = 250; // milliseconds
constexpr int kSteadyPolls = 6;
constexpr int kMostPolls = 400;

template <class... Classes> bool isAnyOf(const QObject *object)
{
    return ((qobject_cast<const Classes *>(object) != nullptr) || ...);
}

QString typeOf(const QObject &object)
{
    int status = 0;
    char *name = abi::__cxa_demangle(typeid(object).name(), nullptr, nullptr, &status);
    QString type = QString::fromLatin1(status == 0 ? name : typeid(object).name());
    std::free(name);
    return type;
}

QString plain(QString caption)
{
    return caption.remove(QLatin1Char('&')).section(QLatin1Char('\t'), 0, 0).simplified();
}

// The actions of a window with all places that they are in.
class Actions
{
public:
    explicit Actions(const QMainWindow &window)
    {
        const QList<QMenuBar *> bars = window.findChildren<QMenuBar *>();
        for (const QMenuBar *bar : bars) {
            if (bar->window() == &window)
                walk(*bar, {isOfAPart(*bar) ? QStringLiteral("part") : QStringLiteral("menu")});
        }
        const QList<QToolBar *> toolBars = window.findChildren<QToolBar *>();
        for (const QToolBar *bar : toolBars)
            walk(*bar, {QStringLiteral("toolbar"), bar->windowTitle()});
    }

    [[nodiscard]] QJsonArray json() const
    {
        QJsonArray list;
        for (const QAction *action : m_order)
            list.append(describe(*action));
        return list;
    }

    [[nodiscard]] int count() const { return static_cast<int>(m_order.size()); }

    [[nodiscard]] QAction *find(const QString &wanted) const
    {
        for (QAction *action : m_order) {
            if (action->objectName() == wanted || plain(action->text()) == wanted)
                return action;
        }
        return nullptr;
    }

private:
    static bool isOfAPart(const QMenuBar &bar)
    {
        const QWidget *up = bar.parentWidget();
        while (up && !isAnyOf<QMainWindow>(up))
            up = up->parentWidget();
        return up && !up->isWindow();
    }

    void walk(const QWidget &widget, const QStringList &place)
    {
        constexpr int kDeepest = 8; // menus may contain each other
        if (place.size() > kDeepest)
            return;
        const QList<QAction *> actions = widget.actions();
        for (QAction *action : actions) {
            const QMenu *menu = action->menu();
            if (menu && action->isVisible())
                walk(*menu, place + QStringList{action->text()});
            if (menu || action->isSeparator() || !action->isVisible())
                continue;
            if (!m_places.contains(action))
                m_order.append(action);
            m_places[action].append(QJsonArray::fromStringList(place));
        }
    }

    QJsonObject describe(const QAction &action) const
    {
        QJsonObject object{{QStringLiteral("in"), m_places.value(&action)}};
        const auto put = [&object](const char *key, const QString &text) {
            if (!text.isEmpty())
                object.insert(QLatin1String(key), text);
        };
        put("text", action.text());
        put("name", action.objectName());
        put("icon", action.icon().name());
        QJsonArray keys;
        const QList<QKeySequence> shortcuts = action.shortcuts();
        for (const QKeySequence &shortcut : shortcuts)
            keys.append(shortcut.toString(QKeySequence::PortableText));
        if (!keys.isEmpty())
            object.insert(QStringLiteral("keys"), keys);
        if (action.isCheckable())
            object.insert(QStringLiteral("checkable"), true);
        if (!action.isEnabled())
            object.insert(QStringLiteral("disabled"), true);
        if (isAnyOf<QToolBar, QDockWidget>(action.parent()) || action.inherits("KToggleToolBarAction"))
            object.insert(QStringLiteral("toggle"), true);
        return object;
    }

    QList<QAction *> m_order;
    QHash<const QAction *, QJsonArray> m_places;
};

bool isLeaf(const QWidget *widget)
{
    return isAnyOf<QAbstractButton, QAbstractSpinBox, QComboBox, QLabel, QLineEdit, QAbstractSlider>(
               widget)
        || isAnyOf<QAbstractItemView, QTextEdit, QPlainTextEdit, QMenuBar, QToolBar, QStatusBar,
                   QTabBar>(widget);
}

QString partIn(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    if (const auto *window = qobject_cast<const QMainWindow *>(parent);
        window && window->centralWidget() == &widget)
        return QStringLiteral("central");
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(parent);
        area && area->viewport() == &widget)
        return QStringLiteral("viewport");
    const auto *area = parent ? qobject_cast<const QScrollArea *>(parent->parentWidget()) : nullptr;
    const auto *dock = qobject_cast<const QDockWidget *>(parent);
    const auto *child = qobject_cast<const QMdiSubWindow *>(parent);
    const bool isContent = (area && area->widget() == &widget) || (dock && dock->widget() == &widget)
                        || (child && child->widget() == &widget);
    return isContent ? QStringLiteral("content") : QString();
}

QJsonObject describe(const QWidget &widget)
{
    QJsonObject object{{QStringLiteral("type"), typeOf(widget)}};
    QStringList classes;
    for (const QMetaObject *meta = widget.metaObject(); meta && meta != &QWidget::staticMetaObject;
         meta = meta->superClass())
        classes.append(QString::fromLatin1(meta->className()));
    const auto put = [&object](const char *key, const QString &text) {
        if (!text.isEmpty())
            object.insert(QLatin1String(key), text);
    };
    put("is", classes.join(QLatin1Char(' ')));
    put("name", widget.objectName());
    put("part", partIn(widget));
    put("layout",
        widget.layout() ? QString::fromLatin1(widget.layout()->metaObject()->className()) : QString());
    const auto flag = [&object](const char *key, bool isSet) {
        if (isSet)
            object.insert(QLatin1String(key), true);
    };
    flag("hidden", !widget.isVisible());
    flag("glass", widget.testAttribute(Qt::WA_TransparentForMouseEvents));
    flag("tracks", widget.hasMouseTracking());
    flag("takesText", widget.testAttribute(Qt::WA_InputMethodEnabled)
                          && widget.inputMethodQuery(Qt::ImSurroundingText).isValid());
    const QRect at = widget.geometry();
    object.insert(QStringLiteral("at"), QJsonArray{at.x(), at.y(), at.width(), at.height()});
    return object;
}

void describeTree(const QWidget &widget, int parent, QJsonArray &list)
{
    QJsonObject object = describe(widget);
    if (parent >= 0)
        object.insert(QStringLiteral("in"), parent);
    const int index = static_cast<int>(list.size());
    list.append(object);
    if (isLeaf(&widget) && !isAnyOf<QLabel>(&widget))
        return;
    const QObjectList &children = widget.children();
    for (const QObject *entry : children) {
        const auto *child = qobject_cast<const QWidget *>(entry);
        const bool counts = child && !child->isWindow()
                         && (child->isVisible() || partIn(*child) == QLatin1String("central"));
        if (counts)
            describeTree(*child, index, list);
    }
}

QJsonArray widgetsOf(const QMainWindow &window)
{
    QJsonArray list;
    describeTree(window, -1, list);
    return list;
}

QByteArray text(const QJsonArray &array)
{
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

} // namespace

CorpusRecorder::CorpusRecorder()
    : m_steps(qEnvironmentVariable("CORPUS_STEPS").split(QLatin1Char(';'), Qt::SkipEmptyParts))
{
    const QStringList sizes = qEnvironmentVariable("CORPUS_SIZES").split(QLatin1Char(','));
    for (const QString &size : sizes)
        m_sizes.append({size.section(QLatin1Char('x'), 0, 0).toInt(),
                        size.section(QLatin1Char('x'), 1, 1).toInt()});
    m_poll.setInterval(kPollTime);
    connect(&m_poll, &QTimer::timeout, this, &CorpusRecorder::poll);
    m_poll.start();
}

QMainWindow *CorpusRecorder::mainWindow() const
{
    QMainWindow *largest = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        auto *window = qobject_cast<QMainWindow *>(widget);
        const auto area = [](const QWidget *w) { return qint64(w->width()) * w->height(); };
        const bool counts = window && window->isVisible() && window->findChild<QMenuBar *>();
        if (counts && (!largest || area(window) > area(largest)))
            largest = window;
    }
    return largest;
}

void CorpusRecorder::poll()
{
    if (++m_polls > kMostPolls) {
        std::fprintf(stderr, "recorder: nothing to record came up\n");
        _exit(3);
    }
    const QMainWindow *window = mainWindow();
    const QWidget *modal = QApplication::activeModalWidget();
    const QByteArray state =
        (window ? text(widgetsOf(*window)) + QByteArray::number(Actions(*window).count()) : QByteArray())
        + (modal ? QByteArray::number(quintptr(modal)) : QByteArray());
    if (std::exchange(m_state, state) != state) {
        m_steady = 0;
        return;
    }
    if (++m_steady < kSteadyPolls)
        return;
    m_steady = 0;
    if (QWidget *dialog = QApplication::activeModalWidget())
        closeDialog(*dialog);
    else if (window)
        proceed();
}

void CorpusRecorder::closeDialog(QWidget &dialog)
{
    std::fprintf(stderr, "recorder: closes %s \"%s\"\n", dialog.metaObject()->className(),
                 qPrintable(dialog.windowTitle()));
    auto *box = qobject_cast<QDialog *>(&dialog);
    if (qEnvironmentVariable("CORPUS_DIALOGS") == QLatin1String("accept")) {
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isDefault() && button->isVisible() && button->isEnabled()) {
                QMetaObject::invokeMethod(button, &QPushButton::click, Qt::QueuedConnection);
                return;
            }
        }
        if (box)
            QMetaObject::invokeMethod(box, &QDialog::accept, Qt::QueuedConnection);
    } else if (box) {
        QMetaObject::invokeMethod(box, &QDialog::reject, Qt::QueuedConnection);
    } else {
        QMetaObject::invokeMethod(&dialog, &QWidget::close, Qt::QueuedConnection);
    }
}

void CorpusRecorder::proceed()
{
    QMainWindow *window = mainWindow();
    if (!m_steps.isEmpty()) {
        const QString step = m_steps.takeFirst();
        if (QAction *action = Actions(*window).find(step)) {
            // The action may open a dialog and return later. A timer does not fire inside its own slot,
            // so use a new one.
            QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
        } else {
            std::fprintf(stderr, "recorder: no action \"%s\"\n", qPrintable(step));
            _exit(4);
        }
        return;
    }
    if (m_next >= 0) {
        m_recorded.append(QJsonObject{
            {QStringLiteral("window"), QJsonArray{window->width(), window->height()}},
            {QStringLiteral("widgets"), widgetsOf(*window)},
        });
    }
    if (++m_next == m_sizes.size()) {
        write();
        _exit(0);
    }
    window->showNormal();
    window->resize(m_sizes.at(m_next));
}

void CorpusRecorder::write() const
{
    const QMainWindow *window = mainWindow();
    QJsonArray menus;
    const auto *bar = window->findChild<QMenuBar *>();
    const QList<QAction *> entries = bar->actions();
    for (const QAction *action : entries) {
        if (action->isVisible())
            menus.append(action->text());
    }
    const QJsonObject all{
        {QStringLiteral("qt"), QT_VERSION_MAJOR},
        {QStringLiteral("menus"), menus},
        {QStringLiteral("actions"), Actions(*window).json()},
        {QStringLiteral("sizes"), m_recorded},
    };
    QFile file(qEnvironmentVariable("CORPUS_OUT"));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(all).toJson()) < 0)
        std::fprintf(stderr, "recorder: cannot write \"%s\"\n", qPrintable(file.fileName()));
}
