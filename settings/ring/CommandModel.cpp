// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/CommandModel.h"

#include "settings/editing/BindingsEditor.h"

#include <algorithm>

namespace settings {
namespace {

QPixmap pixmapOf(const QByteArray &png)
{
    QPixmap pixmap;
    pixmap.loadFromData(png, "PNG");
    return pixmap;
}

} // namespace

ShownCommand shownCommand(const BindingsEditor &editor, const QString &identifier)
{
    if (identifier.isEmpty())
        return {};
    ShownCommand shown{identifier, editor.captionOf(identifier), {}};
    if (const gesturewidget::RememberedCommand *command = editor.commands().find(identifier))
        shown.icon = pixmapOf(command->icon);
    return shown;
}

QIcon arrowIcon(const QString &direction)
{
    const QString file = QStringLiteral(":/gesturewidgetimages/Resources/%1.png")
                             .arg(QString(direction).replace(QLatin1Char('-'), QLatin1Char('_')));
    QIcon icon(file);
    // Without this, the icon in a selected row is mixed with the row's colour.
    icon.addFile(file, {}, QIcon::Selected);
    return icon;
}

CommandModel::CommandModel(QObject *parent)
    : QStandardItemModel(0, 2, parent)
{
    setHorizontalHeaderLabels({tr("Command"), tr("Direction")});
}

void CommandModel::showCommands(const BindingsEditor &editor)
{
    removeRows(0, rowCount());
    const QVector<launcher::KnownCommands::Menu> menus = editor.commands().menus();
    for (const launcher::KnownCommands::Menu &one : menus) {
        QStandardItem *menu = appendMenu(one.caption);
        for (const gesturewidget::RememberedCommand *command : one.commands)
            addCommand(*menu, command->identifier, editor.captionOf(command->identifier), command->tip,
                       QIcon(pixmapOf(command->icon)));
    }
    if (rowCount() == 0) {
        QStringList identifiers = editor.profile().wellKnownCommands.keys();
        identifiers += launcher::Bindings::initial().eight;
        identifiers.removeDuplicates();
        std::sort(identifiers.begin(), identifiers.end(), [&](const QString &one, const QString &other) {
            return QString::localeAwareCompare(editor.captionOf(one), editor.captionOf(other)) < 0;
        });
        QStandardItem *menu = appendMenu(tr("First commands"));
        for (const QString &identifier : std::as_const(identifiers))
            addCommand(*menu, identifier, editor.captionOf(identifier), {}, {});
    }
    showDirections(editor);
}

QStandardItem *CommandModel::appendMenu(const QString &caption)
{
    auto *menu = new QStandardItem(caption);
    menu->setFlags(Qt::ItemIsEnabled);
    QFont bold = menu->font();
    bold.setBold(true);
    menu->setFont(bold);
    auto *beside = new QStandardItem;
    beside->setFlags(Qt::ItemIsEnabled);
    appendRow({menu, beside});
    return menu;
}

void CommandModel::addCommand(QStandardItem &menu, const QString &identifier, const QString &caption,
                              const QString &tip, const QIcon &icon)
{
    auto *command = new QStandardItem(icon, caption.isEmpty() ? identifier : caption);
    command->setData(identifier, IdentifierRole);
    command->setToolTip(tip);
    command->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                      | Qt::ItemNeverHasChildren);
    auto *direction = new QStandardItem;
    direction->setFlags(command->flags());
    menu.appendRow({command, direction});
}

void CommandModel::showDirections(const BindingsEditor &editor)
{
    const QStringList &bound = editor.bindings().commands();
    const QStringList names = launcher::Bindings::directionNames(editor.bindings().scheme);
    for (int row = 0; row < rowCount(); ++row) {
        const QStandardItem *menu = item(row);
        for (int i = 0; i < menu->rowCount(); ++i) {
            QStandardItem *command = menu->child(i);
            QStandardItem *place = menu->child(i, DirectionColumn);
            const auto direction =
                static_cast<int>(bound.indexOf(command->data(IdentifierRole).toString()));
            if (place->data(DirectionRole).isValid() && place->data(DirectionRole).toInt() == direction
                && place->text() == launcher::Bindings::directionInWords(names.value(direction)))
                continue;
            place->setData(direction, DirectionRole);
            place->setText(launcher::Bindings::directionInWords(names.value(direction)));
            place->setIcon(direction < 0 ? QIcon() : arrowIcon(names.at(direction)));
            command->setData(direction < 0 ? command->text()
                                           : tr("%1, %2").arg(command->text(), place->text()),
                             Qt::AccessibleTextRole);
        }
    }
}

ShownCommand CommandModel::commandAt(const QModelIndex &index)
{
    const QModelIndex command = index.sibling(index.row(), CommandColumn);
    ShownCommand shown;
    shown.identifier = command.data(IdentifierRole).toString();
    shown.caption = command.data(Qt::DisplayRole).toString();
    const auto icon = command.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.availableSizes().isEmpty())
        shown.icon = icon.pixmap(icon.availableSizes().constLast());
    return shown;
}

} // namespace settings
