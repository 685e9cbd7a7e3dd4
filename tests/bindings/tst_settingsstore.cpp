// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutSettings.h"
#include "bindings/SettingsKeys.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/StandardCommands.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/Text.h"

#include <QSettings>
#include <QtTest>

#include <memory>

using tests::text;

namespace {

// Keeps the buffer that it was given last, and gives out one that holds no string.
class BufferStore : public CHxProfileStore
{
public:
    [[nodiscard]] bool Exists(const CHxString &, const CHxString &) override { return true; }
    [[nodiscard]] OdResBufPtr Get(const CHxString &, const CHxString &, int) override
    {
        return OdResBufPtr(new OdRxObjectImpl<OdResBuf>, kOdRxAttach);
    }
    bool Set(const CHxString &section, const CHxString &, const OdResBuf *value) override
    {
        lastSection = section.toQString();
        last = OdResBufPtr(const_cast<OdResBuf *>(value));
        return true;
    }

    QString lastSection;
    OdResBufPtr last;
};

class BufferHost : public tests::FakeHost
{
public:
    [[nodiscard]] CHxProfileStore *GetProfileStore() override { return &buffers; }
    BufferStore buffers;
};

QString entry(const char *key)
{
    return QLatin1String("Settings\\") + QLatin1String(key);
}

} // namespace

class SettingsStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void init()
    {
        tests::resetWarnings();
        older = std::make_unique<tests::OlderSettings>();
        host = std::make_unique<tests::FakeHost>();
    }

    void cleanup()
    {
        host.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void thereIsOne()
    {
        QVERIFY(MgDonutSettings::instance());
        QCOMPARE(MgDonutSettings::instance(), settings);
    }

    void initialValues()
    {
        QStringList values;
        const QStringList keys = tests::allKeys();
        for (const QString &key : keys)
            values.append(settings->getInitialValue(key));
        QCOMPARE(values.join(QLatin1Char(' ')),
                 text("1 8 ID_ZOOM_BOUNDS ID_OPEN ID_SAVE ID_LINE ID_ZOOM_BOUNDS ID_OFFSET ID_OPEN "
                      "ID_COPY ID_SAVE ID_DTEXT ID_LINE ID_TRIM"));
        QCOMPARE(settings->getInitialValue(text("99")), QString());
        QCOMPARE(settings->getInitialValue(QString()), QString());
    }

    void writePutsAStringIntoTheModulesSection()
    {
        QVERIFY(settings->write(text("41"), text("ID_LINE")));
        QCOMPARE(host->log.calls, QStringList(text("store.set 41=ID_LINE")));
        QCOMPARE(host->store.lastType, 5005);

        BufferHost buffers;
        QVERIFY(settings->write(text("41"), text("ID_LINE")));
        QCOMPARE(buffers.buffers.lastSection, text("GestureWidget"));
        QCOMPARE(buffers.buffers.last->getString().toQString(), text("ID_LINE"));
        // The module has released it.
        QCOMPARE(buffers.buffers.last->numRefs(), 1L);
    }

    void writeLooksAtNoResult()
    {
        host->store.setFails = true;
        QVERIFY(settings->write(text("41"), text("ID_LINE")));
        QVERIFY(host->store.values.isEmpty());
    }

    void readTakesTheProfileStoreFirst()
    {
        host->store.values = {{text("41"), text("ID_LINE")}};
        older->set(entry("41"), text("ID_OLD"));
        QString value;
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("ID_LINE"));
        QCOMPARE(host->log.calls, QStringList({text("store.exists 41"), text("store.get 41 4")}));
    }

    void readTakesAnEmptyStoredValue()
    {
        host->store.values = {{text("41"), QString()}};
        QString value = text("before");
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, QString());
        QVERIFY(tests::writes(*host).isEmpty());
    }

    void firstReadFillsTheProfileStore()
    {
        QString value;
        QVERIFY(settings->read(text("43"), value));
        QCOMPARE(value, text("ID_SAVE"));
        QCOMPARE(host->store.values, (QMap<QString, QString>{{text("43"), text("ID_SAVE")}}));
        QCOMPARE(host->log.calls, QStringList({text("store.exists 43"), text("store.set 43=ID_SAVE")}));
        QVERIFY(older->entries().isEmpty());
    }

    void firstReadOfTheSchemeIsEight()
    {
        QString value;
        QVERIFY(settings->read(settingskeys::activeScheme(), value));
        QCOMPARE(value, text("8"));
        QCOMPARE(tests::writes(*host), QStringList(text("ActiveScheme=8")));
    }

    void firstReadOfAnUnknownKeyIsEmpty()
    {
        QString value = text("before");
        QVERIFY(settings->read(text("99"), value));
        QCOMPARE(value, QString());
        QCOMPARE(tests::writes(*host), QStringList(text("99=")));
    }

    void readCopiesFromTheOlderSettingsOnce()
    {
        older->set(entry("41"), text("ID_OLD"));
        QString value;
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("ID_OLD"));
        QCOMPARE(host->log.calls, QStringList({text("store.exists 41"), text("store.set 41=ID_OLD")}));

        older->set(entry("41"), text("ID_OLDER"));
        host->log.clear();
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("ID_OLD"));
        QVERIFY(tests::writes(*host).isEmpty());
    }

    // Files of older programs, byte for byte.
    void olderFiles_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("exists");
        QTest::addColumn<QString>("value");
        QTest::newRow("as written") << QByteArray("[Gesture]\nSettings%5C41=ID_OLD\n") << true
                                    << "ID_OLD";
        QTest::newRow("among others") << QByteArray(
            "[Other]\nSettings%5C41=ID_X\n\n[Gesture]\nSettings%5C4=a\nSettings%5C41=ID_OLD\n"
            "Settings%5C411=b\n") << true
                                      << "ID_OLD";
        QTest::newRow("empty") << QByteArray("[Gesture]\nSettings%5C41=\n") << true << "";
        QTest::newRow("quoted") << QByteArray("[Gesture]\nSettings%5C41=\" a;b=c \"\n") << true
                                << " a;b=c ";
        QTest::newRow("bytes") << QByteArray("[Gesture]\nSettings%5C41=@ByteArray(ID_OLD)\n") << true
                               << "ID_OLD";
        QTest::newRow("number") << QByteArray("[Gesture]\nSettings%5C41=17\n") << true << "17";
        // A list has no text.
        QTest::newRow("list") << QByteArray("[Gesture]\nSettings%5C41=a, b\n") << true << "";
        // With a slash in place of the backslash it is a different entry, in a subgroup.
        QTest::newRow("slash") << QByteArray("[Gesture]\nSettings\\41=ID_X\n") << false
                               << "ID_ZOOM_BOUNDS";
        QTest::newRow("other group")
            << QByteArray("[Gestures]\nSettings%5C41=ID_X\n") << false << "ID_ZOOM_BOUNDS";
        QTest::newRow("no prefix") << QByteArray("[Gesture]\n41=ID_X\n") << false << "ID_ZOOM_BOUNDS";
        QTest::newRow("not settings")
            << QByteArray("\0\xff\xfe[[[\n=\n", 10) << false << "ID_ZOOM_BOUNDS";
        QTest::newRow("empty file") << QByteArray() << false << "ID_ZOOM_BOUNDS";
    }

    void olderFiles()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, exists);
        QFETCH(QString, value);
        older->writeFile(file);
        QCOMPARE(settings->keyExists(text("41")), exists);
        QString found = text("before");
        QVERIFY(settings->read(text("41"), found));
        QCOMPARE(found, value);
        QCOMPARE(tests::writes(*host), QStringList(text("41=") + value));
        QCOMPARE(older->readFile(), file);
    }

    void olderEntryIsStoredWithABackslash()
    {
        older->set(entry("41"), text("ID_OLD"));
        QCOMPARE(older->readFile(), QByteArray("[Gesture]\nSettings%5C41=ID_OLD\n"));
    }

    void olderNullValueFails_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("invalid") << QByteArray("[Gesture]\nSettings%5C41=@Invalid()\n");
    }

    void olderNullValueFails()
    {
        QFETCH(QByteArray, file);
        older->writeFile(file);
        QVERIFY(settings->keyExists(text("41")));
        QString value = text("before");
        QVERIFY(!settings->read(text("41"), value));
        QCOMPARE(value, text("before"));
        QVERIFY(tests::writes(*host).isEmpty());
        QVERIFY(host->store.values.isEmpty());
        QCOMPARE(older->readFile(), file);
    }

    void olderSettingsBelongToOneProgram()
    {
        older->set(entry("41"), text("ID_OLD"), text("another"));
        QVERIFY(!settings->keyExists(text("41")));
        host->applicationName = text("another");
        QVERIFY(settings->keyExists(text("41")));
        QString value;
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("ID_OLD"));
    }

    void keyExistsAsksBothPlaces()
    {
        QVERIFY(!settings->keyExists(text("41")));
        older->set(entry("41"), text("ID_OLD"));
        QVERIFY(settings->keyExists(text("41")));
        QVERIFY(!settings->keyExists(text("42")));
        host->store.values = {{text("42"), QString()}};
        QVERIFY(settings->keyExists(text("42")));
        // A query writes nothing.
        QVERIFY(tests::writes(*host).isEmpty());
    }

    void noKeyExists_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("inOlder");
        const QStringList keys = tests::allKeys();
        for (const QString &key : keys) {
            QTest::addRow("%s", qPrintable(key)) << key << false;
            QTest::addRow("older %s", qPrintable(key)) << key << true;
        }
    }

    void noKeyExists()
    {
        QFETCH(QString, key);
        QFETCH(bool, inOlder);
        QVERIFY(settings->noFourKeyExists());
        QVERIFY(settings->noEightKeyExists());
        if (inOlder)
            older->set(QLatin1String("Settings\\") + key, QString());
        else
            host->store.values.insert(key, QString());
        QCOMPARE(settings->noFourKeyExists(), !(key.size() == 2 && key.startsWith(QLatin1Char('4'))));
        QCOMPARE(settings->noEightKeyExists(), !(key.size() == 2 && key.startsWith(QLatin1Char('8'))));
    }

    void noKeyExistsAsksInOrder()
    {
        QVERIFY(settings->noFourKeyExists());
        QCOMPARE(host->log.calls.join(QLatin1Char(',')),
                 text("store.exists 41,store.exists 42,store.exists 43,store.exists 44"));
        host->log.clear();
        host->store.values = {{text("42"), QString()}, {text("83"), QString()}};
        QVERIFY(!settings->noFourKeyExists());
        QVERIFY(!settings->noEightKeyExists());
        QCOMPARE(
            host->log.calls.join(QLatin1Char(',')),
            text("store.exists 41,store.exists 42,store.exists 81,store.exists 82,store.exists 83"));
    }

    void deleteAllKeysLeavesTheDefaults()
    {
        host->store.values = {{text("41"), text("ID_X")}, {settingskeys::activeScheme(), text("4")}};
        settings->deleteAllKeys();
        QCOMPARE(host->log.calls.join(QLatin1Char(',')),
                 text("store.set EnableMouseGesture=1,store.set ActiveScheme=8,"
                      "store.set 41=ID_ZOOM_BOUNDS,store.set 42=ID_OPEN,store.set 43=ID_SAVE,"
                      "store.set 44=ID_LINE,store.set 81=ID_ZOOM_BOUNDS,store.set 82=ID_OFFSET,"
                      "store.set 83=ID_OPEN,store.set 84=ID_COPY,store.set 85=ID_SAVE,"
                      "store.set 86=ID_DTEXT,store.set 87=ID_LINE,store.set 88=ID_TRIM"));
        QString value;
        QVERIFY(settings->read(settingskeys::activeScheme(), value));
        QCOMPARE(value, text("8"));
        QVERIFY(settings->read(settingskeys::enableMouseGesture(), value));
        QCOMPARE(value, text("1"));
    }

    void deleteAllKeysEmptiesTheOlderGroup()
    {
        older->writeFile("[Gesture]\nSettings%5C41=ID_OLD\nSettings\\42=b\nUnrelated=c\n\n"
                         "[Other]\nkept=1\n");
        settings->deleteAllKeys();
        QVERIFY(older->entries().isEmpty());
        QCOMPARE(older->readFile(), QByteArray("[Other]\nkept=1\n"));
    }

    // The older settings are emptied first. Otherwise a key that cannot be written would get its old
    // value back from there.
    void deleteAllKeysEmptiesTheOlderGroupFirst()
    {
        class WatchingHost : public tests::FakeHost
        {
        public:
            [[nodiscard]] CHxProfileStore *GetProfileStore() override
            {
                wasEmpty = wasEmpty && watched->entries().isEmpty();
                ++asked;
                return FakeHost::GetProfileStore();
            }
            const tests::OlderSettings *watched = nullptr;
            bool wasEmpty = true;
            int asked = 0;
        } watching;
        watching.watched = older.get();
        older->set(entry("41"), text("ID_OLD"));
        settings->deleteAllKeys();
        QCOMPARE(watching.asked, 14);
        QVERIFY(watching.wasEmpty);
    }

    void withoutAProfileStoreNothingHappens_data()
    {
        QTest::addColumn<bool>("hasServices");
        QTest::newRow("no profile store") << true;
        QTest::newRow("no services") << false;
    }

    void withoutAProfileStoreNothingHappens()
    {
        QFETCH(bool, hasServices);
        older->set(entry("41"), text("ID_OLD"));
        host->hasProfileStore = false;
        host->setPresent(hasServices);

        QVERIFY(settings->write(text("41"), text("ID_LINE")));
        QString value = text("before");
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("before"));
        QVERIFY(!settings->keyExists(text("41")));
        QVERIFY(settings->noFourKeyExists());
        QVERIFY(settings->noEightKeyExists());
        settings->deleteAllKeys();
        QVERIFY(host->log.calls.isEmpty());
        QVERIFY(host->store.values.isEmpty());
        // Only the services know the application's name, which the older settings are kept under.
        QCOMPARE(older->entries().isEmpty(), hasServices);
    }

    void aValueThatTheStoreDoesNotHandOutIsSkipped()
    {
        host->store.values = {{text("41"), text("ID_LINE")}};
        host->store.getFails = true;
        QString value = text("before");
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, text("before"));
        QVERIFY(tests::writes(*host).isEmpty());
    }

    void aBufferWithoutAStringIsEmpty()
    {
        BufferHost buffers;
        QString value = text("before");
        QVERIFY(settings->read(text("41"), value));
        QCOMPARE(value, QString());
    }

    void valuesPassUnchanged_data()
    {
        someValues();
        // No encoding can express this, so QSettings does not keep it.
        QTest::newRow("lone surrogate") << QString(QChar(0xd800));
    }

    void valuesPassUnchanged()
    {
        QFETCH(QString, value);
        QVERIFY(settings->write(text("41"), value));
        QString found = text("before");
        QVERIFY(settings->read(text("41"), found));
        QCOMPARE(found, value);
    }

    void olderValuesPassUnchanged_data() { someValues(); }

    void olderValuesPassUnchanged()
    {
        QFETCH(QString, value);
        older->set(entry("41"), value);
        QString found = text("before");
        QVERIFY(settings->read(text("41"), found));
        QCOMPARE(found, value);
        QCOMPARE(host->store.values.value(text("41")), value);
    }

private:
    static void someValues()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("empty") << "";
        QTest::newRow("blank") << " \t\n";
        QTest::newRow("huge") << QString(4 * 1024 * 1024, QLatin1Char('x'));
        QTest::newRow("null characters") << QString(3, QChar(QChar::Null));
        QTest::newRow("beyond Latin") << QString::fromUtf8("Линия 線 \xf0\x9f\x96\x8a");
        QTest::newRow("settings syntax") << "@Invalid()";
        QTest::newRow("percent") << "%1%5C%%";
    }

    MgDonutSettings *settings = MgDonutSettings::instance();
    std::unique_ptr<tests::OlderSettings> older;
    std::unique_ptr<tests::FakeHost> host;
};

QTEST_MAIN(SettingsStoreTest)
#include "tst_settingsstore.moc"
