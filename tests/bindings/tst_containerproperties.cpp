// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutSettings.h"
#include "bindings/SettingsKeys.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/OpenContainer.h"
#include "tests/bindings/StandardCommands.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <rapidcheck.h>

#include <memory>
#include <ostream>

namespace {

// One thing that happens to the container or around it. The kind decides what the numbers mean.
// Every number is valid.
struct Step
{
    enum Kind { Init, Update, Reset, Gesture, StoreValue, ForgetKey, OlderValue, HostChange };

    Kind kind;
    unsigned first;
    unsigned second;
    std::vector<unsigned char> bytes;
    QString value;
};

std::ostream &operator<<(std::ostream &out, const Step &step)
{
    static const char *const names[] = {"Init",       "Update",    "Reset",      "Gesture",
                                        "StoreValue", "ForgetKey", "OlderValue", "HostChange"};
    out << names[step.kind] << ' ' << step.first << ' ' << step.second << " [";
    for (const unsigned char byte : step.bytes)
        out << ' ' << static_cast<int>(byte);
    return out << " ] " << qPrintable(QLatin1Char('"') + step.value + QLatin1Char('"'));
}

// Mostly identifiers that mean something, sometimes anything at all.
rc::Gen<QString> someValue()
{
    const std::vector<std::string> known = {"ID_LINE", "ID_OPEN", "ID_TRIM", "ID_GONE", "",
                                            "0",       "1",       "4",       "8"};
    const auto units = rc::gen::container<std::vector<ushort>>(rc::gen::arbitrary<ushort>());
    return rc::gen::weightedOneOf<QString>(
        {{4, rc::gen::map(rc::gen::elementOf(known),
                          [](const std::string &text) { return QString::fromStdString(text); })},
         {1, rc::gen::map(units, [](const std::vector<ushort> &text) {
              return QString::fromUtf16(reinterpret_cast<const char16_t *>(text.data()),
                                        static_cast<int>(text.size()));
          })}});
}

// A direction byte: mostly one that exists, sometimes one that does not.
rc::Gen<unsigned char> someByte()
{
    return rc::gen::weightedOneOf<unsigned char>(
        {{6, rc::gen::inRange<unsigned char>(0, 10)}, {1, rc::gen::arbitrary<unsigned char>()}});
}

rc::Gen<Step> someStep()
{
    const std::vector<Step::Kind> kinds = {Step::Init,       Step::Update,     Step::Update,
                                           Step::Reset,      Step::Gesture,    Step::StoreValue,
                                           Step::StoreValue, Step::StoreValue, Step::ForgetKey,
                                           Step::ForgetKey,  Step::OlderValue, Step::HostChange};
    return rc::gen::build<Step>(
        rc::gen::set(&Step::kind, rc::gen::elementOf(kinds)),
        rc::gen::set(&Step::first, rc::gen::inRange(0U, 1000U)),
        rc::gen::set(&Step::second, rc::gen::inRange(0U, 1000U)),
        rc::gen::set(&Step::bytes, rc::gen::container<std::vector<unsigned char>>(someByte())),
        rc::gen::set(&Step::value, someValue()));
}

// One container in one host, and what must hold after each step.
class Walk
{
public:
    Walk()
    {
        tests::addStandardCommands(m_host);
        auto *group = static_cast<tests::FakeCommandGroup *>(m_host.commands.groups.front());
        m_offered = group->commands;
        m_container = std::make_unique<tests::OpenContainer>();
    }

    void run(const Step &step)
    {
        const QStringList keys = tests::allKeys();
        const QString &key = keys.at(static_cast<int>(step.first) % keys.size());
        switch (step.kind) {
        case Step::Init:
            reread([this] { m_container->init(); });
            return;
        case Step::Gesture: {
            DonutHelperData data;
            reread([&] { data = m_container->getDonutHelperData(); });
            checkHelperData(data);
            return;
        }
        case Step::Reset:
            m_container->applyDefaultSettings();
            RC_ASSERT(m_container->getGestureEnabled());
            RC_ASSERT(m_container->getScheme() == DonutScheme::Eight);
            checkAfterReading();
            return;
        case Step::Update:
            update(step);
            return;
        case Step::StoreValue:
            m_host.store.values.insert(key, step.value);
            return;
        case Step::ForgetKey:
            m_host.store.values.remove(key);
            return;
        case Step::OlderValue:
            m_older.set(QLatin1String("Settings\\") + key, step.value);
            return;
        case Step::HostChange: {
            // Takes a command away, offers all again, or offers one twice.
            auto *group = static_cast<tests::FakeCommandGroup *>(m_host.commands.groups.front());
            if (group->commands.empty() || step.second % 3 == 0)
                group->commands = m_offered;
            else if (step.second % 3 == 1)
                group->commands.erase(group->commands.begin() + step.first % group->commands.size());
            else
                group->commands.push_back(m_offered[step.first % m_offered.size()]);
            return;
        }
        }
    }

private:
    // The value of a key in the settings before they are read; a null string if it is absent.
    QString stored(const QString &key)
    {
        if (!MgDonutSettings::instance()->keyExists(key))
            return {};
        if (m_host.store.values.contains(key))
            return m_host.store.values.value(key) + QLatin1String("");
        return m_older.value(QLatin1String("Settings\\") + key).toString() + QLatin1String("");
    }

    template <class Read> void reread(Read read)
    {
        const QString flag = stored(settingskeys::enableMouseGesture());
        const QString activeScheme = stored(settingskeys::activeScheme());
        QMap<QString, QString> wanted;
        for (const DonutScheme scheme : {DonutScheme::Four, DonutScheme::Eight}) {
            bool untouched = true;
            for (int number = 1; number <= count(scheme); ++number) {
                const QString key = settingskeys::directionKey(scheme, number);
                wanted[key] = stored(key);
                untouched = untouched && wanted[key].isNull();
            }
            for (int number = 1; untouched && number <= count(scheme); ++number) {
                const QString key = settingskeys::directionKey(scheme, number);
                wanted[key] = MgDonutSettings::instance()->getInitialValue(key);
            }
        }

        read();

        RC_ASSERT(m_container->getGestureEnabled() == (flag != QLatin1String("0")));
        RC_ASSERT((m_container->getScheme() == DonutScheme::Four)
                  == (activeScheme == QLatin1String("4")));
        for (const DonutScheme scheme : {DonutScheme::Four, DonutScheme::Eight}) {
            for (int number = 1; number <= count(scheme); ++number) {
                const QString key = settingskeys::directionKey(scheme, number);
                const int place = firstPlaceOf(wanted[key]);
                RC_ASSERT(table(scheme)[static_cast<std::size_t>(number - 1)] == place);
            }
        }
        checkAfterReading();
    }

    void update(const Step &step)
    {
        std::vector<MgCommandDS> records = m_container->getCommandsDS();
        std::size_t next = 0;
        const auto byte = [&] {
            return next < step.bytes.size() ? step.bytes[next++] : static_cast<unsigned char>(0);
        };
        for (MgCommandDS &record : records) {
            record.fourDirection = byte();
            record.eightDirection = byte();
        }
        if (!records.empty() && step.first % 5 == 0)
            records.erase(records.begin() + step.second % records.size());
        const bool enabled = step.first % 2 == 0;
        const auto scheme = static_cast<DonutScheme>(step.second % 3);
        m_container->update(records, enabled, scheme);

        checkAlways();
        RC_ASSERT(m_container->getGestureEnabled() == enabled);
        RC_ASSERT(m_container->getScheme() == scheme);
        for (const DonutScheme of : {DonutScheme::Four, DonutScheme::Eight}) {
            for (int number = 1; number <= count(of); ++number) {
                int last = -1;
                for (std::size_t i = 0; i < records.size(); ++i) {
                    if (directionByte(records[i], of) == number)
                        last = static_cast<int>(i);
                }
                RC_ASSERT(table(of)[static_cast<std::size_t>(number - 1)] == last);
            }
        }
    }

    // Each record's byte is the last direction that points at it, or 0.
    void checkAfterReading()
    {
        checkAlways();
        for (const DonutScheme scheme : {DonutScheme::Four, DonutScheme::Eight}) {
            for (std::size_t i = 0; i < m_container->commands.size(); ++i) {
                int last = 0;
                for (int number = 1; number <= count(scheme); ++number) {
                    if (table(scheme)[static_cast<std::size_t>(number - 1)] == static_cast<int>(i))
                        last = number;
                }
                RC_ASSERT(directionByte(m_container->commands[i], scheme) == last);
            }
        }
    }

    // Table lengths, the fourteen keys and what they hold.
    void checkAlways()
    {
        RC_ASSERT(m_container->fourTable.size() == 4U);
        RC_ASSERT(m_container->eightTable.size() == 8U);
        const QMap<QString, QString> &values = m_host.store.values;
        QStringList keys = tests::allKeys();
        keys.sort();
        RC_ASSERT(values.keys() == keys);
        RC_ASSERT(values.value(settingskeys::enableMouseGesture())
                  == (m_container->getGestureEnabled() ? QLatin1String("1") : QLatin1String("0")));
        const bool four = m_container->getScheme() == DonutScheme::Four;
        RC_ASSERT(values.value(settingskeys::activeScheme())
                  == (four ? QLatin1String("4") : QLatin1String("8")));
        for (const DonutScheme scheme : {DonutScheme::Four, DonutScheme::Eight}) {
            for (int number = 1; number <= count(scheme); ++number) {
                const int place = table(scheme)[static_cast<std::size_t>(number - 1)];
                RC_ASSERT(place >= -1);
                RC_ASSERT(place < static_cast<int>(m_container->commands.size()));
                RC_ASSERT(values.value(settingskeys::directionKey(scheme, number))
                          == (place < 0 ? QString() : record(place).id));
            }
        }
        const std::vector<int> &active = table(four ? DonutScheme::Four : DonutScheme::Eight);
        for (int direction = -2; direction < 12; ++direction) {
            const bool bound = direction >= 0 && direction < static_cast<int>(active.size())
                            && active[static_cast<std::size_t>(direction)] >= 0;
            RC_ASSERT(
                m_container->getCommandNameFromIndex(direction)
                == (bound ? record(active[static_cast<std::size_t>(direction)]).command : QString()));
        }
    }

    void checkHelperData(const DonutHelperData &data)
    {
        const std::vector<int> &active = table(m_container->getScheme());
        RC_ASSERT(data.sectorCount == static_cast<int>(active.size()));
        RC_ASSERT(data.sectorVisuals.size() == active.size());
        RC_ASSERT(data.sectorTooltips.size() == active.size());
        for (int direction = 0; direction < data.sectorCount; ++direction) {
            const int place = active[static_cast<std::size_t>(direction)];
            RC_ASSERT(data.sectorVisuals.at(direction).first == 1);
            RC_ASSERT(data.sectorVisuals.at(direction).second.toString()
                      == (place < 0 ? QString() : record(place).displayName));
            RC_ASSERT(data.sectorTooltips.at(direction)
                      == (place < 0 ? QString() : record(place).tooltip));
        }
    }

    static int count(DonutScheme scheme) { return scheme == DonutScheme::Four ? 4 : 8; }
    static int directionByte(const MgCommandDS &record, DonutScheme scheme)
    {
        return scheme == DonutScheme::Four ? record.fourDirection : record.eightDirection;
    }
    const std::vector<int> &table(DonutScheme scheme) const
    {
        return scheme == DonutScheme::Four ? m_container->fourTable : m_container->eightTable;
    }
    const MgCommandDS &record(int place) const
    {
        return m_container->commands[static_cast<std::size_t>(place)];
    }
    // The place among the commands that the host offers now; -1 if it is not one of them.
    int firstPlaceOf(const QString &identifier) const
    {
        const auto *group = static_cast<const tests::FakeCommandGroup *>(m_host.commands.groups.front());
        for (std::size_t i = 0; i < group->commands.size(); ++i) {
            if (group->commands[i]->GetIdentifier().toQString() == identifier)
                return static_cast<int>(i);
        }
        return -1;
    }

    tests::OlderSettings m_older;
    tests::FakeHost m_host;
    std::vector<CHxUICommandItem *> m_offered;
    std::unique_ptr<tests::OpenContainer> m_container;
};

} // namespace

class ContainerPropertiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    // The container always agrees with the settings and with itself.
    void holdsInAnyOrderOfEvents()
    {
        QVERIFY(rc::check([] {
            const auto steps = *rc::gen::container<std::vector<Step>>(someStep());
            Walk walk;
            for (const Step &step : steps)
                walk.run(step);
            walk.run({Step::Init, 0, 0, {}, {}});
            walk.run({Step::Gesture, 0, 0, {}, {}});
        }));
    }
};

QTEST_MAIN(ContainerPropertiesTest)
#include "tst_containerproperties.moc"
