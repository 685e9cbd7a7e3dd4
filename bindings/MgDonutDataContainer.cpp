#include "bindings/MgDonutDataContainer.h"

#include "bindings/MgDonutSettings.h"
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

// The value of a key that exists. Throws when the store does not hand it out: it may be a
// binding, and what is missing would be replaced.
QString storedValue(const QString &key)
{
    // Reading leaves the value as it is when nothing is handed out: this very string.
    const QString nothing = QStringLiteral("nothing");
    QString value = nothing;
    if (!MgDonutSettings::instance()->read(key, value))
        return {};
    if (value.constData() == nothing.constData())
        throw std::runtime_error("the profile store keeps a value back");
    return value;
}

// One setting that is one of two strings; what is missing or neither becomes `initial`.
QString readChoice(const QString &key, const QString &initial, const QString &other)
{
    MgDonutSettings *settings = MgDonutSettings::instance();
    const QString value = settings->keyExists(key) ? storedValue(key) : QString();
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
    auto lastCommands = std::exchange(commands, {});
    auto lastCategories = std::exchange(categoryMap, {});
    const auto lastState = std::make_tuple(fourTable, eightTable, gestureEnabled, scheme, largeIcons);

    m_readingFailed = false;
    fillCommandCategoryMap();
    attempt([this] { readCommands(); });
    applyCommonSettings();
    applyFourSettings();
    applyEightSettings();
    if (!m_readingFailed)
        return;
    commands = std::move(lastCommands);
    categoryMap = std::move(lastCategories);
    std::tie(fourTable, eightTable, gestureEnabled, scheme, largeIcons) = lastState;
}

void MgDonutDataContainer::readCommands()
{
    CHxSystemServices *services = GetHxSystemServices();
    if (!services)
        return;
    largeIcons = services->UsesLargeIcons();

    CHxUICommandManager *manager = services->GetUICommandManager();
    const auto group = manager ? manager->NewGroupIterator() : nullptr;
    if (!group)
        return;

    std::vector<MgCommandDS> found;
    for (; !group->Done(); group->Next()) {
        CHxUICommandGroup *current = group->Current();
        if (!current)
            continue;
        // Part of every walk over the groups, though a group's name decides nothing here.
        static_cast<void>(current->GetName());
        const auto command = current->NewCommandIterator();
        if (!command)
            continue;
        for (; !command->Done(); command->Next()) {
            const CHxUICommandItem *item = command->Current();
            if (!item)
                continue;
            const QString commandString = item->GetCommandString().toQString();
            if (commandString.isEmpty())
                continue;
            // Not looked for in `found`: a command of two groups makes two records.
            found.emplace_back(item->GetIdentifier().toQString(), commandString,
                               item->GetCaption().toQString(), getCategory(commandString),
                               item->GetTip().toQString(),
                               largeIcons ? item->GetLargeIcon() : item->GetSmallIcon(), 0, 0);
        }
    }
    commands = std::move(found);
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
        const auto record =
            id.isEmpty() ? commands.end() : std::find(commands.begin(), commands.end(), id);
        if (record == commands.end()) {
            table[number - 1] = -1;
            settings->write(key, QLatin1String(""));
        } else {
            (*record).*directionByte = static_cast<unsigned char>(number);
            table[number - 1] = static_cast<int>(record - commands.begin());
            settings->write(key, record->id);
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
