// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/dialog/DraftingCommands.h"

#include "tests/fakehost/FakeHost.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace tests {
namespace {

struct Known
{
    const char *id;
    const char *caption;
    int menu;
};

// The commands of the factory bindings.
constexpr Known kKnown[] = {
    {"ID_ZOOM_BOUNDS", "Zoom Bounds", 1},
    {"ID_OPEN", "Open...", 0},
    {"ID_SAVE", "Save", 0},
    {"ID_LINE", "Line", 2},
    {"ID_OFFSET", "Offset", 3},
    {"ID_COPY", "Copy", 3},
    {"ID_DTEXT", "Text", 2},
    {"ID_TRIM", "Trim", 3},
};

constexpr const char *kVerbs[] = {"Draw", "Move", "Rotate", "Scale", "Mirror", "Stretch", "Explode"};
constexpr const char *kThings[] = {"Polyline",  "Circle", "Arc",   "Hatch",  "Block",
                                   "Dimension", "Spline", "Layer", "Ellipse"};
constexpr const char *kMenus[] = {"&File", "&Edit", "&Draw", "&Modify", "&Tools"};

QString captionOf(int number)
{
    const QString verb = QLatin1String(kVerbs[number % std::size(kVerbs)]);
    const QString thing = QLatin1String(kThings[number / std::size(kVerbs) % std::size(kThings)]);
    const int round = number / static_cast<int>(std::size(kVerbs) * std::size(kThings));
    const QString caption = verb + QLatin1Char(' ') + thing;
    return round == 0 ? caption : caption + QLatin1Char(' ') + QString::number(round + 1);
}

QPixmap square(const QColor &color, qreal ratio)
{
    QPixmap pixmap(qRound(16 * ratio), qRound(16 * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color.darker(), 1));
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 3, 3);
    return pixmap;
}

} // namespace

QIcon squareIcon(const QColor &color)
{
    QIcon icon(square(color, 1));
    icon.addPixmap(square(color, 2));
    return icon;
}

void addDraftingCommands(FakeHost &host, int count, bool icons)
{
    std::array<FakeMenuItem *, std::size(kMenus)> menus{};
    for (std::size_t menu = 0; menu < menus.size(); ++menu)
        menus[menu] = host.addTopLevelMenu(QLatin1String(kMenus[menu]));

    std::array<QIcon, 24> pictures;
    for (std::size_t place = 0; icons && place < pictures.size(); ++place)
        pictures[place] = squareIcon(QColor::fromHsv(static_cast<int>(place) * 15, 180, 220));

    for (int number = 0; number < count; ++number) {
        const bool known = number < static_cast<int>(std::size(kKnown));
        const QString caption = known ? QLatin1String(kKnown[number].caption)
                                      : captionOf(number - static_cast<int>(std::size(kKnown)));
        const QString id =
            known ? QLatin1String(kKnown[number].id) : QStringLiteral("ID_%1").arg(number);
        FakeCommandItem *item = host.commands.addCommand(
            id, id.toLower(), caption, QStringLiteral("What \"%1\" does to a drawing.").arg(caption));
        item->smallIcon = pictures[number % pictures.size()];
        item->largeIcon = item->smallIcon;
        if (number % 10 == 9)
            continue;
        const std::size_t menu = known ? kKnown[number].menu : number % menus.size();
        host.ui.addItem(menus[menu]->subItems.get(), caption, false, id, item);
    }
}

} // namespace tests
