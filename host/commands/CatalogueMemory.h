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

// Carries a program's commands from start to start: gives the catalogue those of the file,
// and writes to the file those that the program shows for the first time.
//
// The person is not to notice. So it waits until the menus have been quiet for a while,
// draws the icons of new commands a few at a time, while no button is down, and then writes
// all of them at once. A start that shows nothing new writes nothing. A command is compared
// with what the file says of it once, when it is first seen: programs change captions such
// as "Undo Line" all the time.
class CatalogueMemory : public QObject
{
    Q_OBJECT

public:
    // To be made before anything is read from the catalogue, which must outlive it.
    CatalogueMemory(CommandCatalogue &catalogue, const QString &file);
    ~CatalogueMemory() override;

    // The program's menus are complete. Before this nothing is written.
    void start();
    // Looks no more, and writes what it has seen and not written yet, without the icons that
    // are not drawn. The main window may be half destroyed.
    void stop();

    // Milliseconds from a change of the menus until they are looked at. Programs change
    // hundreds of entries in a row. Doubles with each time that something was written: there
    // are menus that show the time of day.
    static constexpr int kQuietTime = 250;
    static constexpr int kLongestQuietTime = 10000;

Q_SIGNALS:
    // What the menus show has been compared with the file, and is in it if it can be.
    void settled();

private:
    struct News
    {
        RememberedCommand command;
        QIcon icon;
    };

    void look();
    void draw();
    void write(const QStringList &outlived);

    CommandCatalogue &m_catalogue;
    CatalogueFile m_file;
    QHash<QString, RememberedCommand> m_known; // as the file has them, by identifier
    QSet<QString> m_compared; // identifiers
    std::vector<News> m_news; // what the file does not say yet
    std::size_t m_drawn = 0; // of those
    QTimer m_quiet;
    QTimer m_drawing;
    bool m_isStarted = false;
};

} // namespace gesturewidget
