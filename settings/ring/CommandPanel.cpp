// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/CommandPanel.h"

#include "host/files/CommandNames.h"
#include "launcher/settings/Bindings.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/ring/CommandModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

namespace settings {
namespace {

constexpr int kIconSize = 20; // pixels
constexpr int kIndentation = 16; // pixels

// The direction of eight that a key has on a number pad; -1 for other keys.
int directionOfKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return 0;
    case Qt::Key_Home:
        return 1;
    case Qt::Key_Left:
        return 2;
    case Qt::Key_End:
        return 3;
    case Qt::Key_Down:
        return 4;
    case Qt::Key_PageDown:
        return 5;
    case Qt::Key_Right:
        return 6;
    case Qt::Key_PageUp:
        return 7;
    default:
        return -1;
    }
}

// Rows with the same height, with and without an icon, and some air.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), qMax(size.height(), qMax(kIconSize, option.fontMetrics.height()) + 6)};
    }
};

// Finds commands by their names. A menu is shown for its commands, never for its own name.
class CommandFilter : public QSortFilterProxyModel
{
public:
    explicit CommandFilter(QObject *parent)
        : QSortFilterProxyModel(parent)
    {
        setRecursiveFilteringEnabled(true);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex &menu) const override
    {
        return menu.isValid() && QSortFilterProxyModel::filterAcceptsRow(row, menu);
    }
};

} // namespace

void CommandView::startDrag(Qt::DropActions /*supportedActions*/)
{
    const QModelIndex index = currentIndex();
    if (!CommandModel::commandAt(index).identifier.isEmpty())
        Q_EMIT dragBegun(index);
}

void CommandView::keyPressEvent(QKeyEvent *event)
{
    const int direction = directionOfKey(event->key());
    const Qt::KeyboardModifiers keys = event->modifiers() & ~Qt::KeypadModifier;
    if (direction >= 0 && keys == Qt::ControlModifier) {
        Q_EMIT directionTyped(direction);
        return;
    }
    QTreeView::keyPressEvent(event);
}

CommandPanel::CommandPanel(QWidget *parent)
    : QWidget(parent)
    , m_model(new CommandModel(this))
    , m_filter(new CommandFilter(this))
    , m_search(new QLineEdit(this))
    , m_view(new CommandView(this))
    , m_put(new QToolButton(this))
    , m_nothing(new QLabel(tr("No command has this in its name."), this))
{
    m_search->setObjectName(QStringLiteral("command_search"));
    m_search->setPlaceholderText(tr("Search commands"));
    m_search->setAccessibleName(tr("Search commands"));
    m_search->setClearButtonEnabled(true);

    m_filter->setSourceModel(m_model);
    m_view->setObjectName(QStringLiteral("command_view"));
    m_view->setAccessibleName(tr("Commands"));
    m_view->setAccessibleDescription(
        tr("Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, "
           "Page Up, End or Page Down into the one between."));
    m_view->setModel(m_filter);
    m_view->setItemDelegate(new RowDelegate(m_view));
    m_view->setIconSize({kIconSize, kIconSize});
    m_view->setUniformRowHeights(true);
    m_view->setIndentation(kIndentation);
    m_view->setDragEnabled(true);
    m_view->setAlternatingRowColors(false);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(CommandModel::CommandColumn, QHeaderView::Stretch);
    m_view->header()->setSectionResizeMode(CommandModel::DirectionColumn, QHeaderView::ResizeToContents);
    m_view->header()->setSectionsMovable(false);

    m_put->setObjectName(QStringLiteral("put_button"));
    m_put->setText(tr("&Put Into"));
    m_put->setPopupMode(QToolButton::InstantPopup);
    m_put->setFocusPolicy(Qt::StrongFocus);
    m_put->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto *menu = new QMenu(m_put);
    m_put->setMenu(menu);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->hide();

    auto *top = new QHBoxLayout;
    top->addWidget(m_search, 1);
    top->addWidget(m_put);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_nothing, 1);

    connect(m_search, &QLineEdit::textChanged, this, &CommandPanel::filter);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { m_view->setFocus(); });
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        fillMenu(*menu);
    });
    connect(m_view, &QWidget::customContextMenuRequested, this, &CommandPanel::showMenu);
    connect(m_view, &CommandView::dragBegun, this, [this](const QModelIndex &index) {
        Q_EMIT dragBegun(CommandModel::commandAt(index), m_view->viewport());
    });
    connect(m_view, &CommandView::directionTyped, this, [this](int direction) {
        const ShownCommand command = chosenCommand();
        const bool isFour = m_ring.size() == 4;
        if (!command.identifier.isEmpty() && !(isFour && direction % 2 != 0))
            Q_EMIT wanted(command.identifier, isFour ? direction / 2 : direction);
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CommandPanel::updateButton);
    updateButton();
}

void CommandPanel::showCommands(const BindingsEditor &editor)
{
    const QString before = chosenCommand().identifier;
    m_model->showCommands(editor);
    m_view->expandAll();
    const QModelIndexList same = before.isEmpty()
                                   ? QModelIndexList()
                                   : m_filter->match(m_filter->index(0, 0), CommandModel::IdentifierRole,
                                                     before, 1, Qt::MatchExactly | Qt::MatchRecursive);
    if (!same.isEmpty())
        m_view->setCurrentIndex(same.first());
    showDirections(editor);
    filter(m_search->text()); // the new commands may have it, or no longer
}

void CommandPanel::showDirections(const BindingsEditor &editor)
{
    m_model->showDirections(editor);
    m_ring.clear();
    const QStringList &identifiers = editor.bindings().commands();
    for (const QString &identifier : identifiers)
        m_ring.append({identifier, identifier.isEmpty() ? QString() : editor.captionOf(identifier), {}});
}

ShownCommand CommandPanel::chosenCommand() const
{
    return CommandModel::commandAt(m_view->currentIndex());
}

void CommandPanel::clearSearch()
{
    m_search->clear();
    m_view->selectionModel()->clear();
    m_view->scrollToTop();
}

void CommandPanel::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void CommandPanel::filter(const QString &text)
{
    m_filter->setFilterFixedString(text.trimmed());
    m_view->expandAll();
    const bool isEmpty = m_filter->rowCount() == 0;
    m_nothing->setVisible(isEmpty);
    m_view->setVisible(!isEmpty);
    // A command that the person chose stays chosen while the list has it.
    const bool isChosen = !chosenCommand().identifier.isEmpty()
                       && chosenCommand().caption.contains(text.trimmed(), Qt::CaseInsensitive)
                       && text == m_lastSearch;
    m_lastSearch = text;
    if (!text.trimmed().isEmpty() && !isEmpty && !isChosen)
        m_view->setCurrentIndex(bestHit(text.trimmed()));
    updateButton();
}

QModelIndex CommandPanel::bestHit(const QString &text) const
{
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        const QModelIndex menu = m_filter->index(row, 0);
        for (int i = 0; i < m_filter->rowCount(menu); ++i) {
            const QModelIndex index = m_filter->index(i, 0, menu);
            if (index.data().toString().startsWith(text, Qt::CaseInsensitive))
                return index;
        }
    }
    return m_filter->index(0, 0, m_filter->index(0, 0));
}

void CommandPanel::fillMenu(QMenu &menu)
{
    const ShownCommand command = chosenCommand();
    const auto count = static_cast<int>(m_ring.size());
    const QStringList names = launcher::Bindings::directionNames(count == 4 ? 4 : 8);
    int present = -1;
    for (int i = 0; i < count; ++i) {
        const QString holder = m_ring.at(i).caption;
        if (m_ring.at(i).identifier == command.identifier)
            present = i;
        const QString text =
            gesturewidget::capitalized(launcher::Bindings::directionInWords(names.at(i)));
        QAction *action = menu.addAction(
            arrowIcon(names.at(i)),
            holder.isEmpty()
                ? text
                : tr("%1 (now %2)", "a direction and its command")
                      .arg(text, QString(holder).replace(QLatin1Char('&'), QLatin1String("&&"))));
        action->setEnabled(m_ring.at(i).identifier != command.identifier);
        connect(action, &QAction::triggered, this,
                [this, i, command] { Q_EMIT wanted(command.identifier, i); });
    }
    if (present >= 0) {
        menu.addSeparator();
        connect(menu.addAction(tr("Take Off the Ring")), &QAction::triggered, this,
                [this, present] { Q_EMIT unwanted(present); });
    }
}

void CommandPanel::showMenu(const QPoint &position)
{
    if (chosenCommand().identifier.isEmpty())
        return;
    QMenu menu(m_view);
    fillMenu(menu);
    menu.exec(m_view->viewport()->mapToGlobal(position));
}

void CommandPanel::updateButton()
{
    m_put->setEnabled(!chosenCommand().identifier.isEmpty());
}

} // namespace settings
