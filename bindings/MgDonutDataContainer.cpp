// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"

#include "bindings/MgDonutSettings.h"
#include "bindings/SameText.h"
#include "bindings/SettingsKeys.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandManager.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace {

// The value of a key that exists. Throws if the store does not return it: it may be a binding, and a
// missing value would be replaced.
QString storedValue(const QString &key)
{
    // A read that returns nothing leaves the value unchanged. This string shows that.
    const QString nothing = QStringLiteral("nothing");
    QString value = nothing;
    if (!MgDonutSettings::instance()->read(key, value))
        return {};
    if (value.constData() == nothing.constData())
        throw std::runtime_error("the profile store keeps a value back");
    return value;
}

// A setting that is one of two strings. If it is missing or something else, it becomes `initial`.
QString readChoice(const QString &key, const QString &initial, const QString &other)
{
    MgDonutSettings *settings = MgDonutSettings::instance();
    QString value = settings->keyExists(key) ? storedValue(key) : QString();
    if (value == initial || value == other)
        return value;
    settings->write(key, initial);
    return initial;
}

} // namespace

MgDonutDataContainer *MgDonutDataContainer::_pinstance = nullptr;

MgDonutDataContainer *MgDonutDataContainer::instance()
{
    static MgDonutDataContainer container;
    _pinstance = &container;
    return _pinstance;
}

MgDonutDataContainer::MgDonutDataContainer()
    : fourTable(settingskeys::kFourCount, 0)
    , eightTable(settingskeys::kEightCount, 0)
{
    init();
}

MgDonutDataContainer::~MgDonutDataContainer()
{
    if (_pinstance == this)
        _pinstance = nullptr;
}

QString MgDonutDataContainer::getCommandNameFromIndex(int direction) const
{
    const std::vector<int> &table = activeTable();
    if (direction < 0 || direction >= static_cast<int>(table.size()))
        return {};
    const MgCommandDS *record = recordAt(table[direction]);
    return record ? record->command : QString();
}

DonutHelperData MgDonutDataContainer::getDonutHelperData()
{
    init();

    DonutHelperData data;
    data.sectorCount =
        scheme == DonutScheme::Four ? settingskeys::kFourCount : settingskeys::kEightCount;
    int direction = 0;
    for (const int place : activeTable()) {
        const MgCommandDS *record = recordAt(place);
        std::pair<int, QVariant> visual(DonutHelperData::kText, QString());
        if (record && !record->icon.isNull())
            visual = {DonutHelperData::kIcon, record->icon};
        else if (record)
            visual.second = record->displayName;
        data.sectorVisuals.insert({direction, visual});
        data.sectorTooltips.insert({direction, record ? record->tooltip : QString()});
        data.sectorNames.insert({direction, record ? record->displayName : QString()});
        ++direction;
    }
    return data;
}

void MgDonutDataContainer::init()
{
    // A host that handles events when it is asked may come here again. What is half read is not read.
    if (m_isReading)
        return;
    m_isReading = true;
    read();
    m_isReading = false;
}

void MgDonutDataContainer::read()
{
    std::vector<MgCommandDS> last = std::exchange(commands, {});
    const auto lastCategories = std::exchange(categoryMap, {});
    const auto lastState = std::make_tuple(fourTable, eightTable, gestureEnabled, scheme, largeIcons);

    m_readingFailed = false;
    const QString others = QObject::tr("Others");
    m_categoriesHold = m_categoriesHold && others == m_others;
    m_others = others;
    fillCommandCategoryMap();
    std::vector<std::size_t> bound;
    m_isListAsBefore = false;
    attempt([&] { readCommands(last, bound); });

    std::vector<MgCommandDS> boundRecords;
    if (m_isListAsBefore) {
        commands.swap(last);
        for (const std::size_t place : bound) {
            boundRecords.push_back(commands[place]);
            commands[place].fourDirection = 0;
            commands[place].eightDirection = 0;
        }
    } else {
        m_places.clear();
    }
    applyCommonSettings();
    applyFourSettings();
    applyEightSettings();
    m_categoriesHold = !m_readingFailed;
    if (!m_readingFailed)
        return;

    if (m_isListAsBefore) {
        last.swap(commands);
        for (std::size_t number = 0; number < bound.size(); ++number)
            last[bound[number]] = boundRecords[number];
    }
    // The places belong to the old list.
    m_places.clear();
    commands = std::move(last);
    categoryMap = lastCategories;
    std::tie(fourTable, eightTable, gestureEnabled, scheme, largeIcons) = lastState;
}

bool MgDonutDataContainer::noteSwitchedOn()
{
    if (gestureEnabled || m_readingFailed)
        return gestureEnabled;
    const QString off = QStringLiteral("0");
    const QString stored = hostValue(off, [&off] {
        QString value = off; // stays if there is no store
        MgDonutSettings::instance()->read(settingskeys::enableMouseGesture(), value);
        return value;
    });
    gestureEnabled = stored != off;
    return gestureEnabled;
}

bool MgDonutDataContainer::isBehindSettings() const
{
    const auto differs = [](const QString &key, const QString &known) {
        return MgDonutSettings::instance()->keyExists(key) && storedValue(key) != known;
    };
    const auto tableDiffers = [&](DonutScheme directionScheme, const std::vector<int> &table) {
        for (int number = 1; number <= static_cast<int>(table.size()); ++number) {
            const MgCommandDS *record = recordAt(table[number - 1]);
            if (differs(settingskeys::directionKey(directionScheme, number),
                        record ? record->id : QString()))
                return true;
        }
        return false;
    };
    bool isBehind = false;
    static_cast<void>(hostCall([&] {
        isBehind = differs(settingskeys::enableMouseGesture(),
                           gestureEnabled ? QStringLiteral("1") : QStringLiteral("0"))
                || differs(settingskeys::activeScheme(),
                           scheme == DonutScheme::Four ? QStringLiteral("4") : QStringLiteral("8"))
                || tableDiffers(DonutScheme::Four, fourTable)
                || tableDiffers(DonutScheme::Eight, eightTable);
    }));
    return isBehind;
}

void MgDonutDataContainer::readCommands(const std::vector<MgCommandDS> &last,
                                        std::vector<std::size_t> &bound)
{
    CHxSystemServices *services = GetHxSystemServices();
    if (services)
        largeIcons = services->UsesLargeIcons();
    CHxUICommandManager *manager = services ? services->GetUICommandManager() : nullptr;
    const auto group = manager ? manager->NewGroupIterator() : nullptr;

    std::vector<MgCommandDS> found;
    std::size_t holding = 0; // the number of old records that still hold; used until something is new
    bool isNew = false;
    const auto leaveTheLast = [&] {
        if (isNew)
            return;
        isNew = true;
        found.reserve(last.size() + 1);
        found.assign(last.begin(), last.begin() + static_cast<std::ptrdiff_t>(holding));
        for (MgCommandDS &record : found)
            record.fourDirection = record.eightDirection = 0;
    };
    const auto readItem = [&](const CHxUICommandItem &item) {
        const CHxString commandString = item.GetCommandString();
        const QString &command = commandString.toQString();
        if (command.isEmpty())
            return;
        if (!isNew && holding < last.size()) {
            const MgCommandDS &record = last[holding];
            if (isSameText(record.command, command)
                && isSameText(record.id, item.GetIdentifier().toQString())
                && isSameText(record.displayName, item.GetCaption().toQString())
                && isSameText(record.tooltip, item.GetTip().toQString())
                && record.icon.cacheKey() == iconOf(item).cacheKey()
                && (m_categoriesHold || isSameText(record.category, getCategory(command)))) {
                if (record.fourDirection != 0 || record.eightDirection != 0)
                    bound.push_back(holding);
                ++holding;
                return;
            }
        }
        leaveTheLast();
        // `found` is not searched: a command in two groups makes two records.
        found.emplace_back(item.GetIdentifier().toQString(), command, item.GetCaption().toQString(),
                           getCategory(command), item.GetTip().toQString(), iconOf(item), 0, 0);
    };

    for (; group && !group->Done(); group->Next()) {
        CHxUICommandGroup *current = group->Current();
        if (!current)
            continue;
        // The name is fetched for every group and not used.
        static_cast<void>(current->GetName());
        const auto command = current->NewCommandIterator();
        for (; command && !command->Done(); command->Next()) {
            if (const CHxUICommandItem *item = command->Current())
                readItem(*item);
        }
    }
    if (holding < last.size())
        leaveTheLast();
    m_isListAsBefore = !isNew;
    commands = std::move(found);
}

QIcon MgDonutDataContainer::iconOf(const CHxUICommandItem &item) const
{
    return largeIcons ? item.GetLargeIcon() : item.GetSmallIcon();
}

int MgDonutDataContainer::placeOf(const QString &id)
{
    const auto known = m_places.constFind(id);
    if (known != m_places.constEnd())
        return known.value();
    const auto record = std::find(commands.begin(), commands.end(), id);
    const int place = record == commands.end() ? -1 : static_cast<int>(record - commands.begin());
    m_places.insert(id, place);
    return place;
}

void MgDonutDataContainer::applyCommonSettings()
{
    attempt([this] {
        const QString on = QStringLiteral("1");
        gestureEnabled = readChoice(settingskeys::enableMouseGesture(), on, QStringLiteral("0")) == on;
        const QString eight = QStringLiteral("8");
        scheme = readChoice(settingskeys::activeScheme(), eight, QStringLiteral("4")) == eight
                   ? DonutScheme::Eight
                   : DonutScheme::Four;
    });
}

void MgDonutDataContainer::applyFourSettings()
{
    attempt([this] { readDirections(DonutScheme::Four); });
}

void MgDonutDataContainer::applyEightSettings()
{
    attempt([this] { readDirections(DonutScheme::Eight); });
}

void MgDonutDataContainer::readDirections(DonutScheme directionScheme)
{
    const bool four = directionScheme == DonutScheme::Four;
    std::vector<int> &table = four ? fourTable : eightTable;
    const auto directionByte = four ? &MgCommandDS::fourDirection : &MgCommandDS::eightDirection;
    MgDonutSettings *settings = MgDonutSettings::instance();
    const bool untouched = four ? settings->noFourKeyExists() : settings->noEightKeyExists();

    for (int number = 1; number <= static_cast<int>(table.size()); ++number) {
        const QString key = settingskeys::directionKey(directionScheme, number);
        QString id;
        if (untouched)
            id = settingskeys::initialValue(key);
        else if (settings->keyExists(key))
            id = storedValue(key);

        // An empty value is an unbound direction, even if the host has a command without an
        // identifier.
        const int place = id.isEmpty() ? -1 : placeOf(id);
        table[number - 1] = place;
        if (place < 0) {
            settings->write(key, QLatin1String(""));
        } else {
            commands[place].*directionByte = static_cast<unsigned char>(number);
            settings->write(key, commands[place].id);
        }
    }
}

void MgDonutDataContainer::update(const std::vector<MgCommandDS> &records, bool enabled,
                                  DonutScheme activeScheme)
{
    if (m_readingFailed)
        return;
    MgDonutSettings *settings = MgDonutSettings::instance();
    std::array<bool, settingskeys::kFourCount> fourUsed{};
    std::array<bool, settingskeys::kEightCount> eightUsed{};

    // Binds direction number `number` to the record at `place`; a number above the scheme's
    // last has no place in the table and binds nothing.
    const auto bind = [&](DonutScheme directionScheme, int number, std::vector<int> &table, auto &used,
                          int place) {
        if (number < 1 || number > static_cast<int>(used.size()))
            return;
        table[number - 1] = place;
        settings->write(settingskeys::directionKey(directionScheme, number), records[place].id);
        used[number - 1] = true;
    };
    const auto unbindUnused = [&](DonutScheme directionScheme, std::vector<int> &table,
                                  const auto &used) {
        for (int number = 1; number <= static_cast<int>(used.size()); ++number) {
            if (used[number - 1])
                continue;
            table[number - 1] = -1;
            settings->write(settingskeys::directionKey(directionScheme, number), QLatin1String(""));
        }
    };

    for (int place = 0; place < static_cast<int>(records.size()); ++place) {
        bind(DonutScheme::Four, records[place].fourDirection, fourTable, fourUsed, place);
        bind(DonutScheme::Eight, records[place].eightDirection, eightTable, eightUsed, place);
    }
    unbindUnused(DonutScheme::Four, fourTable, fourUsed);
    unbindUnused(DonutScheme::Eight, eightTable, eightUsed);

    commands = records;
    // The records may be older than the last reading.
    m_categoriesHold = false;
    m_places.clear();
    gestureEnabled = enabled;
    settings->write(settingskeys::enableMouseGesture(),
                    enabled ? QStringLiteral("1") : QStringLiteral("0"));
    scheme = activeScheme;
    settings->write(settingskeys::activeScheme(),
                    activeScheme != DonutScheme::Four ? QStringLiteral("8") : QStringLiteral("4"));
}

void MgDonutDataContainer::applyDefaultSettings()
{
    MgDonutSettings::instance()->deleteAllKeys();
    init();
}

bool MgDonutDataContainer::isDefaultSettingsEnabled() const
{
    int number = 1;
    for (const int place : eightTable) {
        const MgCommandDS *record = recordAt(place);
        const QString key = settingskeys::directionKey(DonutScheme::Eight, number++);
        if (!record || record->id != settingskeys::initialValue(key))
            return false;
    }
    return true;
}

const std::vector<int> &MgDonutDataContainer::activeTable() const
{
    return scheme == DonutScheme::Four ? fourTable : eightTable;
}

const MgCommandDS *MgDonutDataContainer::recordAt(int place) const
{
    return place >= 0 && place < static_cast<int>(commands.size()) ? &commands[place] : nullptr;
}
