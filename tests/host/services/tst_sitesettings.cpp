// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Settings that an administrator provides: they are the starting point, and nobody writes them.

#include "host/files/SiteSettings.h"

#include "host/files/IniText.h"
#include "host/files/InstallPaths.h"
#include "host/services/ProfileStore.h"
#include "tests/host/support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using gesturewidget::ProfileStore;
using gesturewidget::SettingsFile;
using gesturewidget::SiteSettings;

namespace {

QString text(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class SiteSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theFirstFolderCounts();
    void directionsThatNobodyGivesKeepTheirCommands();
    void ringsOfTasksAreCompletedFromTheSharedOne();
    void elsewhereThereAreNone();
    void profilesCountBetweenOwnAndInstalled();
    void theUsersKeyWins();
    void whatEqualsTheSitesIsNotCopied();
    void aResetBringsTheSitesBack();
    void otherWritingsAreNoReset();
    void withoutASiteAResetWritesAll();

private:
    [[nodiscard]] QString place(const char *name) const { return m_folder->filePath(text(name)); }
    // Writes all keys as the module does for "Reset to Defaults".
    static void reset(ProfileStore &store)
    {
        set(store, "EnableMouseGesture", "1");
        set(store, "ActiveScheme", "8");
        for (const int scheme : {4, 8}) {
            for (int number = 1; number <= scheme; ++number)
                set(store, QByteArray::number(10 * scheme + number), "factory");
        }
    }
    static void set(ProfileStore &store, const QByteArray &key, const char *value)
    {
        const OdResBufPtr buffer = OdResBuf::newString(OdString(text(value)));
        QVERIFY(store.Set(text("GestureWidget"), text(key.constData()), buffer.get()));
    }
    static QString get(ProfileStore &store, const char *key)
    {
        const OdResBufPtr value = store.Get(text("GestureWidget"), text(key), CHxProfileStore::kProfile);
        return value ? value->getString().toQString() : text("none");
    }
    [[nodiscard]] SettingsFile::Values written() const { return SettingsFile(m_own).read(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_own;
};

void SiteSettingsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char *name :
         {"own/gesturewidget", "first/gesturewidget/profiles", "second/gesturewidget"})
        QVERIFY(QDir(m_folder->path()).mkpath(text(name)));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(place("own")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(place("first") + QLatin1Char(':') + place("second")));
    m_own = gesturewidget::settingsFile(text("drafter"));
    QCOMPARE(m_own, place("own/gesturewidget/drafter.ini"));
    tests::writeFile(place("first/gesturewidget/drafter.ini"),
                     "[GestureWidget]\n81=siteLine\nActiveScheme=4\n[Host]\nTrigger=ctrl+right\n");
}

void SiteSettingsTest::cleanup()
{
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_CONFIG_DIRS");
}

void SiteSettingsTest::theFirstFolderCounts()
{
    tests::writeFile(place("second/gesturewidget/drafter.ini"),
                     "[GestureWidget]\n81=otherLine\n82=otherArc\n");
    const SiteSettings site(m_own);
    QCOMPARE(site.values().value(text("GestureWidget/81")), text("siteLine"));
    QCOMPARE(site.fileOf(text("GestureWidget/81")), place("first/gesturewidget/drafter.ini"));
    QCOMPARE(site.values().value(text("GestureWidget/82")), text("otherArc"));
    QCOMPARE(site.fileOf(text("GestureWidget/82")), place("second/gesturewidget/drafter.ini"));
    QCOMPARE(site.fileOf(text("GestureWidget/83")), QString());
    // Nothing is left beside an administrator's file.
    QCOMPARE(QDir(place("first/gesturewidget")).entryList(QDir::Files),
             QStringList(text("drafter.ini")));
}

void SiteSettingsTest::directionsThatNobodyGivesKeepTheirCommands()
{
    tests::writeFile(place("first/gesturewidget/drafter.ini"), "[GestureWidget]\n87=ID_SAVE\n83=\n");
    const SiteSettings site(m_own);
    const QStringList expected{text("ID_ZOOM_BOUNDS"), text("ID_OFFSET"), QString(),
                               text("ID_COPY"),        QString(), // ID_SAVE has another direction
                               text("ID_DTEXT"),       text("ID_SAVE"),   text("ID_TRIM")};
    const auto commandsOf = [](const SettingsFile::Values &values) {
        QStringList commands;
        for (int number = 81; number <= 88; ++number)
            commands.append(
                values.value(SettingsFile::nameOf(text("GestureWidget"), QString::number(number))));
        return commands;
    };
    QCOMPARE(commandsOf(site.values()), expected);
    QVERIFY(!site.values().contains(text("GestureWidget/41"))); // nobody gives any of the four
    QCOMPARE(site.given().size(), 2);
    QCOMPARE(site.fileOf(text("GestureWidget/81")), QString());
    // A user's own choice counts in each of them, and is no command of the office.
    const SettingsFile::Values own{{text("GestureWidget/81"), text("ownArc")}};
    const SettingsFile::Values all = site.under(own);
    QCOMPARE(all.value(text("GestureWidget/81")), text("ownArc"));
    QCOMPARE(all.value(text("GestureWidget/82")), text("ID_OFFSET"));
    QCOMPARE(site.chosenOf(all), (SettingsFile::Values{{text("GestureWidget/81"), text("ownArc")},
                                                       {text("GestureWidget/83"), QString()},
                                                       {text("GestureWidget/87"), text("ID_SAVE")}}));
    // A module finds them all, so it does not take a missing one for empty.
    ProfileStore store(m_own);
    QCOMPARE(get(store, "82"), text("ID_OFFSET"));
    set(store, "82", "ID_OFFSET");
    QVERIFY(store.flush());
    QVERIFY(written().isEmpty());
}

void SiteSettingsTest::ringsOfTasksAreCompletedFromTheSharedOne()
{
    tests::writeFile(
        place("first/gesturewidget/drafter.ini"),
        "[GestureWidget]\n82=siteOffset\n[Ring%20Sketch]\nOwn=Sketch\n87=siteLine\n88=ID_COPY\n"
        "[Ring%20Away]\n87=siteArc\n");
    const SettingsFile::Values values = SiteSettings(m_own).values();
    QCOMPARE(values.value(SettingsFile::nameOf(text("Ring Sketch"), text("87"))), text("siteLine"));
    QCOMPARE(values.value(SettingsFile::nameOf(text("Ring Sketch"), text("82"))), text("siteOffset"));
    QCOMPARE(values.value(SettingsFile::nameOf(text("Ring Sketch"), text("81"))),
             text("ID_ZOOM_BOUNDS"));
    QCOMPARE(values.value(SettingsFile::nameOf(text("Ring Sketch"), text("84")), text("none")),
             QString());
    QVERIFY(!values.contains(SettingsFile::nameOf(text("Ring Sketch"), text("41"))));
    QVERIFY(!values.contains(
        SettingsFile::nameOf(text("Ring Away"), text("81")))); // its task uses the shared ring
}

void SiteSettingsTest::elsewhereThereAreNone()
{
    QVERIFY(SiteSettings(place("drafter.ini")).values().isEmpty());
    QVERIFY(SiteSettings(QString()).values().isEmpty());
    QVERIFY(SiteSettings(gesturewidget::settingsFile(text("painter"))).values().isEmpty());
}

void SiteSettingsTest::profilesCountBetweenOwnAndInstalled()
{
    const QStringList folders = gesturewidget::profileFolders(QDir(place("lib")));
    QCOMPARE(folders,
             (QStringList{place("own/gesturewidget/profiles"), place("first/gesturewidget/profiles")}));
}

void SiteSettingsTest::theUsersKeyWins()
{
    ProfileStore store(m_own);
    QVERIFY(store.Exists(text("GestureWidget"), text("81")));
    QVERIFY(!store.Exists(text("GestureWidget"), text("42")));
    QCOMPARE(get(store, "81"), text("siteLine"));
    set(store, "81", "");
    QCOMPARE(get(store, "81"), QString());
    QVERIFY(store.flush());
    ProfileStore next(m_own);
    QCOMPARE(get(next, "81"), QString());
    QCOMPARE(get(next, "ActiveScheme"), text("4"));
    QCOMPARE(next.values().value(text("Host/Trigger")), text("ctrl+right"));
}

// So that a change by the administrator reaches everybody who has not chosen otherwise.
void SiteSettingsTest::whatEqualsTheSitesIsNotCopied()
{
    ProfileStore store(m_own);
    set(store, "81", "siteLine");
    set(store, "82", "");
    QVERIFY(store.flush());
    QCOMPARE(written(), (SettingsFile::Values{{text("GestureWidget/82"), QString()}}));
}

void SiteSettingsTest::aResetBringsTheSitesBack()
{
    tests::writeFile(
        m_own, "; mine\n[GestureWidget]\n81=ownLine\n82=ownArc\n81=ownLine\n[Host]\nTrigger=middle\n");
    ProfileStore store(m_own);
    QCOMPARE(get(store, "81"), text("ownLine"));
    reset(store);
    QCOMPARE(get(store, "81"), text("siteLine")); // at once
    QCOMPARE(get(store, "ActiveScheme"), text("4"));
    QCOMPARE(get(store, "82"), text("ID_OFFSET"));
    QCOMPARE(get(store, "42"), text("factory"));
    QVERIFY(store.flush());
    QCOMPARE(get(store, "81"), text("siteLine"));
    const SettingsFile::Values now = written();
    QVERIFY(!now.contains(text("GestureWidget/81")));
    QVERIFY(!now.contains(text("GestureWidget/82")));
    QCOMPARE(now.value(text("GestureWidget/42")), text("factory"));
    QCOMPARE(now.value(text("Host/Trigger")), text("middle"));
    // The key can be set again.
    set(store, "81", "newLine");
    QVERIFY(store.flush());
    QCOMPARE(written().value(text("GestureWidget/81")), text("newLine"));
}

// The first start writes all keys too, but asks for each before, and the dialog has another order.
void SiteSettingsTest::otherWritingsAreNoReset()
{
    ProfileStore store(m_own);
    set(store, "EnableMouseGesture", "1");
    set(store, "ActiveScheme", "8");
    QVERIFY(!store.Exists(text("GestureWidget"), text("41")));
    for (const int scheme : {4, 8}) {
        for (int number = 1; number <= scheme; ++number)
            set(store, QByteArray::number(10 * scheme + number), "chosen");
    }
    QCOMPARE(get(store, "81"), text("chosen"));
    QCOMPARE(get(store, "ActiveScheme"), text("8"));
}

void SiteSettingsTest::withoutASiteAResetWritesAll()
{
    QVERIFY(QFile::remove(place("first/gesturewidget/drafter.ini")));
    ProfileStore store(m_own);
    reset(store);
    QVERIFY(store.flush());
    QCOMPARE(written().size(), 14);
    QCOMPARE(written().value(text("GestureWidget/81")), text("factory"));
}

QTEST_GUILESS_MAIN(SiteSettingsTest)
#include "tst_sitesettings.moc"
