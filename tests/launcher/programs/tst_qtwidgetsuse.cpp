// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ElfFile.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <elf.h>

#include <cstring>
#include <functional>
#include <vector>

using launcher::ElfFile;
using launcher::QtWidgetsUse;

Q_DECLARE_METATYPE(launcher::QtWidgetsUse)

namespace {

constexpr auto kLinked = QT_MAJOR == 5 ? QtWidgetsUse::Qt5 : QtWidgetsUse::Qt6;

QByteArray fixture(const char *name)
{
    return QByteArray(FIXTURES "/launcher_fixture_") + name;
}

QByteArray contents(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Bits32
{
    using Header = Elf32_Ehdr;
    using Segment = Elf32_Phdr;
    using Entry = Elf32_Dyn;
    static constexpr char kClass = ELFCLASS32;
};

struct Bits64
{
    using Header = Elf64_Ehdr;
    using Segment = Elf64_Phdr;
    using Entry = Elf64_Dyn;
    static constexpr char kClass = ELFCLASS64;
};

using Dynamic = QList<QPair<int, QByteArray>>; // tags and their strings

template <class T> QByteArray bytesOf(const T &value)
{
    return {reinterpret_cast<const char *>(&value), int(sizeof value)};
}

// The smallest file that a loader would take for a program: two segments, the dynamic entries, and
// their strings. `change` may alter the entries before they are written.
template <class Bits>
QByteArray elfOf(const Dynamic &dynamic,
                 const std::function<void(std::vector<typename Bits::Entry> &)> &change = {})
{
    using Entry = typename Bits::Entry;
    constexpr int kAddress = 0x10000; // where the whole file is loaded
    QByteArray strings(1, '\0');
    std::vector<Entry> entries;
    const auto add = [&entries](int tag, int value) {
        Entry entry = {};
        entry.d_tag = tag;
        entry.d_un.d_val = static_cast<decltype(entry.d_un.d_val)>(value);
        entries.push_back(entry);
    };
    for (const auto &one : dynamic) {
        add(one.first, int(strings.size()));
        strings += one.second + '\0';
    }
    constexpr int kDynamicAt = sizeof(typename Bits::Header) + 2 * sizeof(typename Bits::Segment);
    const int stringsAt = kDynamicAt + int((entries.size() + 3) * sizeof(Entry));
    add(DT_STRTAB, kAddress + stringsAt);
    add(DT_STRSZ, int(strings.size()));
    add(DT_NULL, 0);
    if (change)
        change(entries);

    typename Bits::Header header = {};
    std::memcpy(header.e_ident, ELFMAG, SELFMAG);
    header.e_ident[EI_CLASS] = Bits::kClass;
    header.e_ident[EI_DATA] = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB;
    header.e_type = ET_DYN;
    header.e_machine = EM_386;
    header.e_phoff = sizeof header;
    header.e_phentsize = sizeof(typename Bits::Segment);
    header.e_phnum = 2;
    typename Bits::Segment whole = {};
    whole.p_type = PT_LOAD;
    whole.p_vaddr = kAddress;
    whole.p_filesz = static_cast<decltype(whole.p_filesz)>(stringsAt)
                   + static_cast<decltype(whole.p_filesz)>(strings.size());
    typename Bits::Segment table = {};
    table.p_type = PT_DYNAMIC;
    table.p_offset = kDynamicAt;
    table.p_filesz = static_cast<decltype(table.p_filesz)>(entries.size() * sizeof(Entry));
    QByteArray bytes = bytesOf(header) + bytesOf(whole) + bytesOf(table);
    for (const Entry &entry : entries)
        bytes += bytesOf(entry);
    return bytes + strings;
}

} // namespace

class QtWidgetsUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        tests::failOnWarnings();
        QVERIFY(m_folder.isValid());
    }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void programs_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QtWidgetsUse>("use");

        QTest::newRow("linked to Qt Widgets") << fixture("direct") << kLinked;
        QTest::newRow("through its own library") << fixture("indirect") << kLinked;
        QTest::newRow("through a library beside it") << fixture("origin") << kLinked;
        QTest::newRow("Qt 5, 32 bits")
            << write("five", elfOf<Bits32>({{DT_NEEDED, "libQt5Widgets.so.5"}})) << QtWidgetsUse::Qt5;
        QTest::newRow("Qt 6, 32 bits")
            << write("six", elfOf<Bits32>({{DT_NEEDED, "libc.so.6"}, {DT_NEEDED, "libQt6Widgets.so.6"}}))
            << QtWidgetsUse::Qt6;
        QTest::newRow("Qt 6, 64 bits")
            << write("six64", elfOf<Bits64>({{DT_NEEDED, "libQt6Widgets.so.6"}})) << QtWidgetsUse::Qt6;
        QTest::newRow("no Qt at all") << fixture("plain") << QtWidgetsUse::None;
        QTest::newRow("Qt Core only") << fixture("core") << QtWidgetsUse::None;
        QTest::newRow("script") << write("script", "#!/bin/sh\nexit 0\n") << QtWidgetsUse::Unknown;
        QTest::newRow("empty file") << write("empty", "") << QtWidgetsUse::Unknown;
        QTest::newRow("missing") << QByteArray("/nowhere/at/all") << QtWidgetsUse::Unknown;
        QTest::newRow("folder") << QByteArray("/") << QtWidgetsUse::Unknown;
    }

    void programs()
    {
        QFETCH(QByteArray, path);
        QFETCH(QtWidgetsUse, use);
        QCOMPARE(launcher::qtWidgetsUse(path, {}, systemFolders()), use);
    }

    // The program's library is in another folder. It is found only where the loader is told to
    // look.
    void libraryPath()
    {
        const QByteArray moved = write("moved", contents(fixture("origin")));
        QVERIFY(moved.size() > 0);
        QCOMPARE(launcher::qtWidgetsUse(moved, {}, systemFolders()), QtWidgetsUse::None);
        QCOMPARE(launcher::qtWidgetsUse(moved, "/nowhere:" FIXTURES, systemFolders()), kLinked);
        QCOMPARE(launcher::qtWidgetsUse(moved, {}, {FIXTURES}), kLinked);
    }

    void symbolicLinksLeadToTheOrigin()
    {
        const QString link = m_folder.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(QFile::decodeName(fixture("origin")), link));
        QCOMPARE(launcher::qtWidgetsUse(QFile::encodeName(link), {}, systemFolders()), kLinked);
    }

    void libraryOfAnotherMachineIsPassedOver()
    {
        const QString folder = m_folder.filePath(QStringLiteral("foreign"));
        QVERIFY(QDir().mkpath(folder));
        QByteArray library = contents(FIXTURES "/liblauncher_fixture_library.so");
        QVERIFY(library.size() > 64);
        library[18] = static_cast<char>(library.at(18) ^ 1); // e_machine
        const QByteArray moved = write("moved2", contents(fixture("origin")));
        write("foreign/liblauncher_fixture_library.so", library);
        const QByteArray path = QFile::encodeName(folder);
        QCOMPARE(launcher::qtWidgetsUse(moved, path, systemFolders()), QtWidgetsUse::None);
        QCOMPARE(launcher::qtWidgetsUse(moved, path + ":" FIXTURES, systemFolders()), kLinked);
    }

    // DT_RPATH counts for what a library needs too, DT_RUNPATH for the file itself only.
    void libraryFoldersOfAProgram_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QByteArray>("folders");
        QTest::addColumn<QtWidgetsUse>("use");
        QTest::newRow("rpath") << DT_RPATH << QByteArray("/nowhere:$ORIGIN/lib") << QtWidgetsUse::Qt6;
        QTest::newRow("runpath") << DT_RUNPATH << QByteArray("${ORIGIN}/lib") << QtWidgetsUse::None;
        QTest::newRow("empty rpath") << DT_RPATH << QByteArray() << QtWidgetsUse::None;
        QTest::newRow("empty runpath") << DT_RUNPATH << QByteArray() << QtWidgetsUse::None;
    }
    void libraryFoldersOfAProgram()
    {
        QFETCH(int, tag);
        QFETCH(QByteArray, folders);
        QFETCH(QtWidgetsUse, use);
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("lib"))));
        write("lib/libouter.so", elfOf<Bits32>({{DT_NEEDED, "libinner.so"}}));
        write("lib/libinner.so", elfOf<Bits32>({{DT_NEEDED, "libQt6Widgets.so.6"}}));
        const QByteArray program =
            write("program", elfOf<Bits32>({{DT_NEEDED, "libouter.so"}, {tag, folders}}));
        QCOMPARE(launcher::qtWidgetsUse(program, {}, {}), use);
    }

    // The loader ignores a DT_RPATH beside a DT_RUNPATH.
    void runpathReplacesRpath()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("lib"))));
        write("lib/libqt.so", elfOf<Bits32>({{DT_NEEDED, "libQt6Widgets.so.6"}}));
        const Dynamic both = {
            {DT_NEEDED, "libqt.so"}, {DT_RPATH, "$ORIGIN/lib"}, {DT_RUNPATH, "/nowhere"}};
        QCOMPARE(launcher::qtWidgetsUse(write("both", elfOf<Bits32>(both)), {}, {}), QtWidgetsUse::None);
    }

    void aLibraryMayBeNamedByItsPath()
    {
        const QByteArray library =
            write("libbypath.so", elfOf<Bits32>({{DT_NEEDED, "libQt6Widgets.so.6"}}));
        const QByteArray program = write("bypath", elfOf<Bits32>({{DT_NEEDED, library}}));
        QCOMPARE(launcher::qtWidgetsUse(program, {}, {}), QtWidgetsUse::Qt6);
    }

    void libraryOfAnotherSizeIsPassedOver()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("wide"))));
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("narrow"))));
        write("wide/libqt.so", elfOf<Bits64>({{DT_NEEDED, "libQt6Widgets.so.6"}}));
        write("narrow/libqt.so", "no library");
        const QByteArray program = write("sized", elfOf<Bits32>({{DT_NEEDED, "libqt.so"}}));
        const QByteArray wide = QFile::encodeName(m_folder.filePath(QStringLiteral("wide")));
        const QByteArray narrow = QFile::encodeName(m_folder.filePath(QStringLiteral("narrow")));
        QCOMPARE(launcher::qtWidgetsUse(program, wide + ':' + narrow, {}), QtWidgetsUse::None);
        write("narrow/libqt.so", elfOf<Bits32>({{DT_NEEDED, "libQt6Widgets.so.6"}}));
        QCOMPARE(launcher::qtWidgetsUse(program, wide + ':' + narrow, {}), QtWidgetsUse::Qt6);
    }

    // Each of them is an ELF file, but names no library.
    void damagedEntries_data()
    {
        using Entries = std::vector<Bits32::Entry>;
        QTest::addColumn<QByteArray>("bytes");
        const Dynamic dynamic = {{DT_NEEDED, "libQt6Widgets.so.6"}};
        const auto row = [&dynamic](const char *name, const std::function<void(Entries &)> &change) {
            QTest::newRow(name) << elfOf<Bits32>(dynamic, change);
        };
        row("a name outside of the strings", [](Entries &entries) { entries[0].d_un.d_val = 9999; });
        row("strings before the segment", [](Entries &entries) { entries[1].d_un.d_ptr = 1; });
        row("strings behind the segment", [](Entries &entries) { entries[1].d_un.d_ptr = 0x7fffffff; });
        row("strings behind the file", [](Entries &entries) { entries[2].d_un.d_val = 9999; });
        row("more strings than any file has",
            [](Entries &entries) { entries[2].d_un.d_val = 0x70000000; });
        row("no strings", [](Entries &entries) { entries[2].d_un.d_val = 0; });
        row("a name without an end", [](Entries &entries) { --entries[2].d_un.d_val; });
        row("an end before the name",
            [](Entries &entries) { entries.insert(entries.begin(), Bits32::Entry{}); });
        row("of unknown entries only", [](Entries &entries) { entries[0].d_tag = DT_DEBUG; });
        const QByteArray whole = elfOf<Bits32>(dynamic);
        QTest::newRow("entries behind the file") << whole.left(sizeof(Elf32_Ehdr) + 64 + 8);
        QByteArray other = whole;
        other[EI_CLASS] = 7;
        QTest::newRow("neither 32 nor 64 bits") << other;
        other = whole;
        other[EI_DATA] = 7;
        QTest::newRow("another order of bytes") << other;
    }
    void damagedEntries()
    {
        QFETCH(QByteArray, bytes);
        const ElfFile elf = ElfFile::read(write("damaged", bytes));
        QVERIFY(elf.needed.isEmpty() || elf.needed == QList<QByteArray>{QByteArray()});
    }

    void headOfAProgram()
    {
        const ElfFile elf = ElfFile::read(fixture("direct"));
        QVERIFY(elf.isValid);
        QCOMPARE(elf.bits, sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32);
        QVERIFY(elf.machine != EM_NONE);
        QVERIFY(elf.needed.contains("libc.so.6"));
        QVERIFY(ElfFile::read(fixture("origin")).runpath.contains("$ORIGIN"));
    }

    // Every damaged file gets an answer.
    void damagedFiles()
    {
        const QByteArray whole = contents(fixture("direct"));
        QVERIFY(whole.size() > 4096);
        for (int size = 0; size < 1024; size += 7) {
            const ElfFile elf = ElfFile::read(write("cut", whole.left(size)));
            QVERIFY2(elf.needed.isEmpty(), qPrintable(QString::number(size)));
        }
        for (int at = 0; at < 1024; ++at) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(~damaged.at(at));
            const QByteArray path = write("damaged", damaged);
            const ElfFile elf = ElfFile::read(path);
            QVERIFY(elf.needed.size() < 1000);
            const QtWidgetsUse use = launcher::qtWidgetsUse(path, {}, {});
            QVERIFY(use == kLinked || use == QtWidgetsUse::None || use == QtWidgetsUse::Unknown);
        }
    }

    void loaderConfiguration()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("conf.d"))));
        write("conf.d/a.conf", "# words\n/opt/a # more\n\n");
        write("conf.d/b.conf", "/opt/b\ninclude loop.conf\nrelative\n");
        write("conf.d/loop.conf", "/opt/loop\n");
        const QByteArray main =
            write("ld.so.conf", "include conf.d/[ab].conf\ninclude\t/nowhere/*\n/opt/c\n");
        QCOMPARE(launcher::systemLibraryFolders(main),
                 (QList<QByteArray>{"/opt/a", "/opt/b", "/opt/loop", "/opt/c", "/lib64", "/usr/lib64",
                                    "/lib", "/usr/lib"}));
    }

    void loaderConfigurationThatIncludesItself()
    {
        const QByteArray path = write("self.conf", "include self.conf\n/opt/a\n");
        QVERIFY(launcher::systemLibraryFolders(path).contains("/opt/a"));
    }

    // If a file were read again for each include line, these would take minutes.
    void loaderConfigurationsThatIncludeEachOther()
    {
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("circle"))));
        for (char name = 'a'; name <= 'f'; ++name)
            write(qPrintable(QStringLiteral("circle/%1.conf").arg(QLatin1Char(name))),
                  QByteArray("include *.conf\n/opt/") + name + '\n');
        const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("circle/a.conf")));
        const QList<QByteArray> folders = launcher::systemLibraryFolders(path);
        QCOMPARE(folders.size(), 6 + 4);
        for (char name = 'a'; name <= 'f'; ++name)
            QCOMPARE(folders.count(QByteArray("/opt/") + name), 1);
    }

    void noLoaderConfiguration()
    {
        QCOMPARE(launcher::systemLibraryFolders("/nowhere"),
                 (QList<QByteArray>{"/lib64", "/usr/lib64", "/lib", "/usr/lib"}));
    }

private:
    QByteArray write(const char *name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return QFile::encodeName(file.fileName());
    }

    static QList<QByteArray> systemFolders()
    {
        return launcher::systemLibraryFolders("/etc/ld.so.conf");
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(QtWidgetsUseTest)
#include "tst_qtwidgetsuse.moc"
