// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CatalogueMemory.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/RememberedIcon.h"
#include "sdk/OwnCode.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <algorithm>

namespace gesturewidget {
namespace {

// Milliseconds: a quarter of a frame, then enough time for the program itself.
constexpr int kDrawingTime = 4;
constexpr int kDrawingPause = 20;

} // namespace

CatalogueMemory::CatalogueMemory(CommandCatalogue &catalogue, const QString &file)
    : m_catalogue(catalogue)
    , m_file(file)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(kQuietTime);
    connect(&m_quiet, &QTimer::timeout, this, &CatalogueMemory::look);
    m_drawing.setInterval(kDrawingPause);
    connect(&m_drawing, &QTimer::timeout, this, &CatalogueMemory::draw);
    // Only the first of many changes starts the timer. Otherwise a program that never rests would put
    // it off forever.
    const auto lookLater = [this] {
        if (m_isStarted && !m_quiet.isActive())
            m_quiet.start();
    };
    connect(&m_catalogue, &CommandCatalogue::menusChanged, this, lookLater);
    connect(&m_catalogue, &CommandCatalogue::currentWindowChanged, this, lookLater);

    m_catalogue.remember(read());
}

CatalogueMemory::~CatalogueMemory() = default;

QVector<RememberedCommand> CatalogueMemory::read()
{
    QVector<RememberedCommand> commands = m_file.read();
    for (const RememberedCommand &command : std::as_const(commands))
        m_known.insert(command.identifier, command);
    if (!m_file.isComplete())
        m_catalogue.trustAll();
    return commands;
}

QStringList CatalogueMemory::recall(const QStringList &identifiers)
{
    QVector<RememberedCommand> commands = read();
    const auto isOther = [&identifiers](const RememberedCommand &command) {
        return !identifiers.contains(command.identifier);
    };
    commands.erase(std::remove_if(commands.begin(), commands.end(), isOther), commands.end());
    m_catalogue.remember(commands);
    QStringList recalled;
    for (const RememberedCommand &command : std::as_const(commands))
        recalled.append(command.identifier);
    return recalled;
}

void CatalogueMemory::start()
{
    if (!m_isStarted)
        m_quiet.start();
    m_isStarted = true;
}

void CatalogueMemory::stop()
{
    m_isStarted = false;
    m_quiet.stop();
    m_drawing.stop();
    if (!m_news.empty())
        write({});
}

void CatalogueMemory::look()
{
    const OwnCode ours;
    for (const auto &item : m_catalogue.items()) {
        const QString identifier = item->GetIdentifier().toQString();
        if (!item->here.isPresent || item->here.isListEntry || m_compared.contains(identifier))
            continue;
        m_compared.insert(identifier);
        RememberedCommand command = item->remembered();
        const RememberedCommand known = m_known.value(identifier);
        const QIcon icon = item->icon();
        const bool isIconNew = known.icon.isEmpty() && !icon.isNull();
        command.icon = known.icon;
        if (isIconNew || !(command == known))
            m_news.push_back({command, icon});
    }
    if (m_news.empty())
        Q_EMIT settled();
    else
        m_drawing.start();
}

void CatalogueMemory::draw()
{
    const OwnCode ours;
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    QElapsedTimer elapsed;
    elapsed.start();
    while (m_drawn < m_news.size()) {
        if (elapsed.elapsed() >= kDrawingTime)
            return;
        News &news = m_news[m_drawn++];
        news.command.icon = iconToPng(news.icon);
        news.icon = QIcon();
    }
    m_drawing.stop();
    QStringList outlived;
    for (const auto &item : m_catalogue.items()) {
        if (m_catalogue.isOutlived(*item))
            outlived.append(item->GetIdentifier().toQString());
    }
    write(outlived);
}

void CatalogueMemory::write(const QStringList &outlived)
{
    QVector<RememberedCommand> commands;
    for (const News &news : m_news)
        commands.append(news.command);
    m_quiet.setInterval(std::min(2 * m_quiet.interval(), kLongestQuietTime));
    // If writing fails, the next news tries again.
    if (m_file.merge(commands, outlived)) {
        m_news.clear();
        m_drawn = 0;
    }
    Q_EMIT settled();
}

} // namespace gesturewidget
