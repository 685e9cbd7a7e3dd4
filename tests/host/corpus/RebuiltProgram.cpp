// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/corpus/RebuiltProgram.h"

#include "host/window/Captions.h"

#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QGraphicsView>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>

#include <array>
#include <utility>

namespace tests {
namespace {

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

bool flag(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toBool();
}

// The menu of that title among the actions, made if need be.
template <class Bar> QMenu *menuIn(Bar &bar, const QString &title)
{
    const QList<QAction *> actions = bar.actions();
    for (QAction *action : actions) {
        if (action->menu() && action->text() == title)
            return action->menu();
    }
    return bar.addMenu(title);
}

// A class of the program's own.
template <class Base> class StandIn : public Base
{
public:
    explicit StandIn(const QJsonObject &record)
        : m_takesText(flag(record, "takesText"))
    {
        const QStringList classes = text(record, "is").split(QLatin1Char(' '));
        for (const QString &name : classes)
            m_classes.append(name.toLatin1());
    }

    // QObject::inherits() asks this.
    void *qt_metacast(const char *name) override
    {
        return m_classes.contains(QByteArray(name)) ? this : Base::qt_metacast(name);
    }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        if (query == Qt::ImSurroundingText)
            return m_takesText ? QVariant(QString()) : QVariant();
        return Base::inputMethodQuery(query);
    }

private:
    QList<QByteArray> m_classes;
    bool m_takesText;
};

// Each class of the program's needs a C++ type of its own.
template <class Base, std::size_t Number> class NumberedStandIn : public StandIn<Base>
{
    using StandIn<Base>::StandIn;
};

// The program's classes in one tree, each with a number.
class Types
{
public:
    static constexpr std::size_t kMost = 24;

    std::size_t numberOf(const QString &type)
    {
        if (!m_numbers.contains(type))
            m_numbers.insert(type, std::size_t(m_numbers.size()) % kMost);
        return m_numbers.value(type);
    }

private:
    QHash<QString, std::size_t> m_numbers;
};

template <class Base, std::size_t Number> QWidget *makeOne(const QJsonObject &record)
{
    return new NumberedStandIn<Base, Number>(record);
}

template <class Base, std::size_t... Numbers>
QWidget *makeNumbered(const QJsonObject &record, std::size_t number, std::index_sequence<Numbers...>)
{
    static constexpr std::array makers{&makeOne<Base, Numbers>...};
    return makers.at(number)(record);
}

// A widget of the library's own class, or of a class of the program's that derives from it.
template <class Base> QWidget *make(const QJsonObject &record, bool isOwnClass, std::size_t number)
{
    if (!isOwnClass)
        return new Base;
    return makeNumbered<Base>(record, number, std::make_index_sequence<Types::kMost>());
}

QWidget *makeHeader(const QJsonObject &, bool, std::size_t)
{
    return new QHeaderView(Qt::Horizontal);
}

QWidget *build(const QJsonObject &record, Types &types)
{
    using Maker = QWidget *(*)(const QJsonObject &, bool, std::size_t);
    // A class that cannot be made is replaced by its simplest descendant.
    static const QHash<QString, Maker> makers{
        {QStringLiteral("QGraphicsView"), &make<QGraphicsView>},
        {QStringLiteral("QTextEdit"), &make<QTextEdit>},
        {QStringLiteral("QPlainTextEdit"), &make<QPlainTextEdit>},
        {QStringLiteral("QHeaderView"), &makeHeader},
        {QStringLiteral("QAbstractItemView"), &make<QListView>},
        {QStringLiteral("QScrollArea"), &make<QScrollArea>},
        {QStringLiteral("QMdiArea"), &make<QMdiArea>},
        {QStringLiteral("QAbstractScrollArea"), &make<QAbstractScrollArea>},
        {QStringLiteral("QMdiSubWindow"), &make<QMdiSubWindow>},
        {QStringLiteral("QMainWindow"), &make<QMainWindow>},
        {QStringLiteral("QDockWidget"), &make<QDockWidget>},
        {QStringLiteral("QToolBar"), &make<QToolBar>},
        {QStringLiteral("QMenuBar"), &make<QMenuBar>},
        {QStringLiteral("QStatusBar"), &make<QStatusBar>},
        {QStringLiteral("QTabWidget"), &make<QTabWidget>},
        {QStringLiteral("QTabBar"), &make<QTabBar>},
        {QStringLiteral("QStackedWidget"), &make<QStackedWidget>},
        {QStringLiteral("QSplitter"), &make<QSplitter>},
        {QStringLiteral("QGroupBox"), &make<QGroupBox>},
        {QStringLiteral("QDialog"), &make<QDialog>},
        {QStringLiteral("QLabel"), &make<QLabel>},
        {QStringLiteral("QLineEdit"), &make<QLineEdit>},
        {QStringLiteral("QComboBox"), &make<QComboBox>},
        {QStringLiteral("QProgressBar"), &make<QProgressBar>},
        {QStringLiteral("QAbstractSpinBox"), &make<QSpinBox>},
        {QStringLiteral("QAbstractButton"), &make<QPushButton>},
        {QStringLiteral("QAbstractSlider"), &make<QSlider>},
        {QStringLiteral("QFrame"), &make<QFrame>},
    };
    const QString type = text(record, "type");
    const std::size_t number = types.numberOf(type);
    const QStringList classes = text(record, "is").split(QLatin1Char(' '));
    for (const QString &name : classes) {
        if (const Maker maker = makers.value(name))
            return maker(record, type != name, number);
    }
    return make<QWidget>(record, type != QLatin1String("QWidget"), number);
}

// The viewport that a scroll area has anyway, or one of a class of its own.
QWidget *viewportFor(QAbstractScrollArea &area, const QJsonObject &record, Types &types)
{
    if (text(record, "type") != QLatin1String("QWidget"))
        area.setViewport(build(record, types));
    return area.viewport();
}

void putInto(QWidget &parent, QWidget &widget, const QString &part)
{
    auto *window = qobject_cast<QMainWindow *>(&parent);
    auto *dock = qobject_cast<QDockWidget *>(&parent);
    auto *child = qobject_cast<QMdiSubWindow *>(&parent);
    auto *area = qobject_cast<QScrollArea *>(parent.parentWidget());
    const bool isContent = part == QLatin1String("content");
    const Qt::WindowFlags flags = qobject_cast<QMdiSubWindow *>(&widget) ? Qt::SubWindow : Qt::Widget;
    widget.setWindowFlags(flags);
    if (window && part == QLatin1String("central"))
        window->setCentralWidget(&widget);
    else if (dock && isContent)
        dock->setWidget(&widget);
    else if (child && isContent)
        child->setWidget(&widget);
    else if (area && isContent)
        area->setWidget(&widget);
    else
        widget.setParent(&parent, flags);
}

QStringList labelKeys(const QJsonObject &action)
{
    QStringList keys{action.value(QStringLiteral("name")).toString()};
    const QJsonArray places = action.value(QStringLiteral("in")).toArray();
    for (const auto &place : places) {
        QStringList titles;
        const QJsonArray path = place.toArray();
        if (path.at(0).toString() == QLatin1String("part"))
            titles.append(QStringLiteral("(part)"));
        for (int i = 1; i < path.size(); ++i)
            titles.append(gesturewidget::plainCaption(path.at(i).toString()));
        titles.append(gesturewidget::plainCaption(action.value(QStringLiteral("text")).toString()));
        keys.append(titles.join(QStringLiteral(" > ")));
    }
    keys.removeAll(QString());
    return keys;
}

} // namespace

RebuiltActions::RebuiltActions(const QJsonObject &record, bool hasDocument)
{
    const QJsonArray menus = record.value(QStringLiteral("menus")).toArray();
    for (const auto &title : menus)
        m_window.menuBar()->addMenu(title.toString());
    const QString other = hasDocument ? QStringLiteral("without") : QStringLiteral("with");
    const QJsonArray recorded = record.value(QStringLiteral("actions")).toArray();
    for (const auto &entry : recorded) {
        const QJsonObject object = entry.toObject();
        if (text(object, "only") == other)
            continue;
        m_actions.push_back(std::make_unique<QAction>(text(object, "text")));
        QAction &action = *m_actions.back();
        m_keys.insert(&action, labelKeys(object));
        action.setObjectName(text(object, "name"));
        action.setCheckable(flag(object, "checkable"));
        action.setEnabled(!flag(object, "disabled"));
        if (!text(object, "icon").isEmpty())
            action.setIcon(QIcon::fromTheme(text(object, "icon")));
        QList<QKeySequence> keys;
        const QJsonArray shortcuts = object.value(QStringLiteral("keys")).toArray();
        for (const auto &shortcut : shortcuts)
            keys.append(QKeySequence(shortcut.toString(), QKeySequence::PortableText));
        action.setShortcuts(keys);
        if (flag(object, "toggle"))
            action.setParent(new QToolBar(&m_window));
        const QJsonArray places = object.value(QStringLiteral("in")).toArray();
        for (const auto &path : places)
            place(action, path.toArray());
    }
}

void RebuiltActions::place(QAction &action, const QJsonArray &path)
{
    const QString kind = path.at(0).toString();
    QWidget *in = nullptr;
    if (kind == QLatin1String("menu")) {
        in = m_window.menuBar();
    } else if (kind == QLatin1String("part")) {
        if (!m_part) {
            m_part = new QMainWindow;
            m_part->setWindowFlags(Qt::Widget);
            m_window.setCentralWidget(m_part);
        }
        in = m_part->menuBar();
    } else {
        in = new QToolBar(path.at(1).toString(), &m_window);
    }
    const int first = kind == QLatin1String("toolbar") ? 2 : 1;
    for (int i = first; i < path.size(); ++i) {
        const QString title = path.at(i).toString();
        if (auto *menu = qobject_cast<QMenu *>(in)) {
            in = menuIn(*menu, title);
        } else if (auto *bar = qobject_cast<QMenuBar *>(in)) {
            in = menuIn(*bar, title);
        } else {
            auto *opened = new QMenu(title, in);
            in->addAction(opened->menuAction());
            in = opened;
        }
    }
    in->addAction(&action);
}

QVector<QAction *> RebuiltActions::actions() const
{
    QVector<QAction *> list;
    for (const auto &action : m_actions)
        list.append(action.get());
    return list;
}

RebuiltWidgets::RebuiltWidgets(const QJsonArray &widgets)
{
    Types types;
    for (const auto &entry : widgets) {
        const QJsonObject record = entry.toObject();
        QWidget *parent = m_widgets.empty()
                            ? nullptr
                            : m_widgets.at(std::size_t(record.value(QStringLiteral("in")).toInt()));
        auto *area = qobject_cast<QAbstractScrollArea *>(parent);
        QWidget *widget = nullptr;
        if (area && text(record, "part") == QLatin1String("viewport")) {
            widget = viewportFor(*area, record, types);
        } else {
            widget = build(record, types);
            if (parent)
                putInto(*parent, *widget, text(record, "part"));
        }
        if (!m_window)
            m_window.reset(widget);
        // A stand-in has no class name of its own, and a guess reads either.
        widget->setObjectName(text(record, "name") + QLatin1Char(' ') + text(record, "type"));
        widget->setAttribute(Qt::WA_TransparentForMouseEvents, flag(record, "glass"));
        widget->setAttribute(Qt::WA_InputMethodEnabled, flag(record, "takesText"));
        m_widgets.push_back(widget);
    }
    for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget)
        (*widget)->show(); // the window last
    // Showing has laid things out; now they go where they were.
    for (std::size_t i = 0; i < m_widgets.size(); ++i) {
        const QJsonObject record = widgets.at(static_cast<int>(i)).toObject();
        const QJsonArray at = record.value(QStringLiteral("at")).toArray();
        const QRect rect(at.at(0).toInt(), at.at(1).toInt(), at.at(2).toInt(), at.at(3).toInt());
        m_widgets.at(i)->setGeometry(rect);
        if (flag(record, "hidden"))
            m_widgets.at(i)->hide();
    }
}

RebuiltWidgets::~RebuiltWidgets() = default;

} // namespace tests
