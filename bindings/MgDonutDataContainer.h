// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/CategoryWalk.h"
#include "bindings/DonutHelperData.h"
#include "bindings/DonutScheme.h"
#include "bindings/HostCall.h"
#include "bindings/MgCommandDS.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <utility>
#include <vector>

class CHxUICommandItem;
class CHxUIMenuItemCollection;

// The process's one set of gesture bindings: every command that the host offers, which of
// them each direction runs, the scheme in use and whether gestures are on. Filled from the
// host and the settings, which it repairs while reading them.
//
//     const QString command = MgDonutDataContainer::instance()->getCommandNameFromIndex(2);
//
// A direction index counts sectors counter-clockwise from the top, from 0. For the
// user-interface thread only.
class MgDonutDataContainer
{
public:
    Q_DISABLE_COPY_MOVE(MgDonutDataContainer)

    // The one object, created on first use; never null.
    [[nodiscard]] static MgDonutDataContainer *instance();

    [[nodiscard]] bool getGestureEnabled() const { return gestureEnabled; }
    // Switches gestures on if the settings say so by now: another program may have done it there.
    // Returns whether they are on. Looks at nothing after a reading that failed.
    bool noteSwitchedOn();
    [[nodiscard]] DonutScheme getScheme() const { return scheme; }
    // A copy of all records, in the host's order.
    [[nodiscard]] std::vector<MgCommandDS> getCommandsDS() const { return commands; }

    // The command string that a direction of the scheme in use runs; empty when the
    // direction is unbound or there is no such direction. A pointer on a sector's border can
    // really yield the sector count as its index.
    [[nodiscard]] QString getCommandNameFromIndex(int direction) const;
    // The contents of the ring. Calls init() first, so the ring shows what the host and the
    // settings hold now.
    [[nodiscard]] DonutHelperData getDonutHelperData();

    // Reads the host's commands and all settings again. When the host throws in the middle, or
    // does not hand out a value that it has, the reading has failed: everything stays as it was
    // read last, and nothing is written until a reading succeeds. Does nothing inside another init().
    void init();
    // True if the last reading failed; see init().
    [[nodiscard]] bool hasReadingFailed() const { return m_readingFailed; }
    // True if a setting that is stored differs from what was read last. False if that cannot be
    // found out.
    [[nodiscard]] bool isBehindSettings() const;
    // The enable flag and the scheme from the settings; what is missing or malformed is
    // replaced and written.
    void applyCommonSettings();
    // The directions of one scheme from the settings. Afterwards all keys of the scheme
    // exist, and one whose command the host does not offer is empty.
    void applyFourSettings();
    void applyEightSettings();

    // Takes over and keeps the bindings that `records` hold in their direction bytes. When
    // two records name one direction the later one gets it, and the earlier keeps its byte
    // until the next init(). A byte above the scheme's last direction binds nothing.
    // Does nothing after a failed reading: what could not be read would be erased.
    void update(const std::vector<MgCommandDS> &records, bool enabled, DonutScheme activeScheme);
    // Writes the factory defaults and reads them back.
    void applyDefaultSettings();
    // True if the eight scheme's directions are the factory defaults. Ignores the four scheme,
    // the enable flag and the scheme in use; this is deliberate.
    [[nodiscard]] bool isDefaultSettingsEnabled() const;

    // Walks all of the host's menus, see fcParseRecursive().
    void fillCommandCategoryMap();
    // Files every command below `items` in categoryMap: under `parentCategory` or, when that
    // is empty, under the caption of the entry that leads to it. A later place replaces an
    // earlier one.
    void fcParseRecursive(const QString &parentCategory, CHxUIMenuItemCollection *items);
    // The category of a command string: the translated "Others" when no menu holds it.
    [[nodiscard]] QString getCategory(const QString &command) const;

protected:
    // Reads everything at once, by init(). Only instance() and tests make one.
    MgDonutDataContainer();
    ~MgDonutDataContainer();

    std::vector<MgCommandDS> commands;
    // By direction index: the place of the bound record in `commands`, or -1. The lengths never
    // change.
    std::vector<int> fourTable; // 4
    std::vector<int> eightTable; // 8
    bool gestureEnabled = true;
    DonutScheme scheme = DonutScheme::Eight;
    QMap<QString, QString> categoryMap; // command string to category
    bool largeIcons = false; // the host's setting as of the last init()

    // The object that instance() returns; null before its first call.
    static MgDonutDataContainer *_pinstance;

private:
    // What init() does.
    void read();
    // Makes host calls as a part of a reading; none after the first that failed.
    template <class Call> void attempt(Call &&call)
    {
        m_readingFailed = m_readingFailed || !hostCall(std::forward<Call>(call));
    }
    // Makes `commands` of what the host offers, unless that is what `last` holds already: then
    // m_isListAsBefore is set and `commands` stays empty. `bound` receives the places of the
    // records of `last` that have a direction, as far as they hold.
    void readCommands(const std::vector<MgCommandDS> &last, std::vector<std::size_t> &bound);
    [[nodiscard]] QIcon iconOf(const CHxUICommandItem &item) const;
    // The place of the first record with an identifier; -1 for none.
    [[nodiscard]] int placeOf(const QString &id);
    void readDirections(DonutScheme directionScheme);
    void fileAllCommands();
    void fileCommands(const QString &parentCategory, CHxUIMenuItemCollection *items);
    void fileCommand(const QString &command, const QString &category);
    [[nodiscard]] const std::vector<int> &activeTable() const;
    // Null for a place where no record is.
    [[nodiscard]] const MgCommandDS *recordAt(int place) const;

    bool m_readingFailed = false;
    bool m_isReading = false;
    CategoryWalk m_categoryWalk;
    bool m_isWalking = false; // through all menus, by fillCommandCategoryMap()
    // True if the records have the categories of the last walk, with this word for "Others".
    bool m_categoriesHold = false;
    QString m_others;
    bool m_isListAsBefore = false;
    // The places of identifiers that were looked for in the list as it is.
    QHash<QString, int> m_places;
    // The collections that fileCommands() is inside of, outermost first.
    std::vector<const CHxUIMenuItemCollection *> m_openMenus;
};
