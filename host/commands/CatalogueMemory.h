// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/CatalogueFile.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <vector>

namespace gesturewidget {

class CommandCatalogue;

// Keeps a program's commands from start to start: gives the catalogue the commands of the file,
// and writes the commands to the file that the program shows for the first time.
//
// The person must not notice. So this waits until the menus have been quiet for a while, draws the
// icons of new commands a few at a time while no button is pressed, and then writes everything at
// once. A start without new commands writes nothing. A command is compared with the file only when
// it is first seen, because programs change captions such as "Undo Line" all the time.
class CatalogueMemory : public QObject
{
    Q_OBJECT

public:
    // Create this before anything is read from the catalogue. The catalogue must outlive it.
    CatalogueMemory(CommandCatalogue &catalogue, const QString &file);
    ~CatalogueMemory() override;

    // Offers those of these commands that another copy of the program has shown since this one started.
    // Returns the identifiers of those that are in the file.
    QStringList recall(const QStringList &identifiers);
    // Call this when the program's menus are complete. Nothing is written before.
    void start();
    // Stops looking, and writes what was seen but not written yet, without icons that are not
    // drawn yet. The main window may be half destroyed.
    void stop();

    // Milliseconds from a change of the menus until they are read, because programs change
    // hundreds of entries in a row. The time doubles after each writing, because some menus show
    // the time of day.
    static constexpr int kQuietTime = 250;
    static constexpr int kLongestQuietTime = 10000;

Q_SIGNALS:
    // The menus have been compared with the file, and new commands are written if possible.
    void settled();

private:
    struct News
    {
        RememberedCommand command;
        QIcon icon;
    };

    [[nodiscard]] QVector<RememberedCommand> read();
    void look();
    void draw();
    void write(const QStringList &outlived);

    CommandCatalogue &m_catalogue;
    CatalogueFile m_file;
    QHash<QString, RememberedCommand> m_known; // as the file had them when it was read, by identifier
    QSet<QString> m_compared; // identifiers
    std::vector<News> m_news; // not in the file yet
    std::size_t m_drawn = 0; // of those
    QTimer m_quiet;
    QTimer m_drawing;
    bool m_isStarted = false;
};

} // namespace gesturewidget
