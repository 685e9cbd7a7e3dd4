// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ElfFile.h"

#include <QFile>

#include <elf.h>

#include <cstring>
#include <vector>

namespace launcher {
namespace {

// More than any real file has. A larger number means damage.
constexpr quint64 kMostHeaders = 4096;
constexpr quint64 kMostDynamicBytes = 1U << 20;
constexpr quint64 kMostStringBytes = 1U << 27;

struct Bits32
{
    using Header = Elf32_Ehdr;
    using Segment = Elf32_Phdr;
    using Entry = Elf32_Dyn;
};

struct Bits64
{
    using Header = Elf64_Ehdr;
    using Segment = Elf64_Phdr;
    using Entry = Elf64_Dyn;
};

QByteArray readBytes(QFile &file, quint64 offset, quint64 size)
{
    const auto fileSize = static_cast<quint64>(file.size());
    if (offset > fileSize || size > fileSize - offset || !file.seek(static_cast<qint64>(offset)))
        return {};
    QByteArray bytes = file.read(static_cast<qint64>(size));
    return static_cast<quint64>(bytes.size()) == size ? bytes : QByteArray();
}

template <class T> std::vector<T> readTable(QFile &file, quint64 offset, quint64 count)
{
    const QByteArray bytes = readBytes(file, offset, count * sizeof(T));
    std::vector<T> table(static_cast<std::size_t>(bytes.size()) / sizeof(T));
    if (!table.empty())
        std::memcpy(table.data(), bytes.constData(), table.size() * sizeof(T));
    return table;
}

template <class Segment>
bool offsetOf(const std::vector<Segment> &segments, quint64 address, quint64 &offset)
{
    for (const Segment &segment : segments) {
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr
            && address - segment.p_vaddr < segment.p_filesz) {
            offset = address - segment.p_vaddr + segment.p_offset;
            return true;
        }
    }
    return false;
}

QByteArray stringAt(const QByteArray &strings, quint64 offset)
{
    if (offset >= static_cast<quint64>(strings.size()))
        return {};
    const auto start = static_cast<int>(offset);
    const auto end = strings.indexOf('\0', start);
    return end < 0 ? QByteArray() : strings.mid(start, end - start);
}

QList<QByteArray> folders(const QByteArray &list)
{
    return list.isEmpty() ? QList<QByteArray>() : list.split(':');
}

template <class Bits> void readDynamic(QFile &file, ElfFile &elf)
{
    const auto headers = readTable<typename Bits::Header>(file, 0, 1);
    if (headers.empty())
        return;
    const auto &header = headers.front();
    if (header.e_phentsize != sizeof(typename Bits::Segment) || header.e_phnum > kMostHeaders)
        return;
    const auto segments = readTable<typename Bits::Segment>(file, header.e_phoff, header.e_phnum);
    if (segments.empty())
        return;
    elf.machine = header.e_machine;
    elf.isValid = true;

    std::vector<typename Bits::Entry> entries;
    for (const auto &segment : segments) {
        if (segment.p_type == PT_DYNAMIC && segment.p_filesz <= kMostDynamicBytes)
            entries = readTable<typename Bits::Entry>(file, segment.p_offset,
                                                      segment.p_filesz / sizeof(typename Bits::Entry));
    }

    quint64 stringsAddress = 0;
    quint64 stringsSize = 0;
    for (const auto &entry : entries) {
        if (entry.d_tag == DT_STRTAB)
            stringsAddress = entry.d_un.d_ptr;
        else if (entry.d_tag == DT_STRSZ)
            stringsSize = entry.d_un.d_val;
    }
    quint64 stringsOffset = 0;
    if (stringsSize > kMostStringBytes || !offsetOf(segments, stringsAddress, stringsOffset))
        return;
    const QByteArray strings = readBytes(file, stringsOffset, stringsSize);

    for (const auto &entry : entries) {
        if (entry.d_tag == DT_NULL)
            break;
        if (entry.d_tag == DT_NEEDED)
            elf.needed.append(stringAt(strings, entry.d_un.d_val));
        else if (entry.d_tag == DT_RPATH)
            elf.rpath = folders(stringAt(strings, entry.d_un.d_val));
        else if (entry.d_tag == DT_RUNPATH)
            elf.runpath = folders(stringAt(strings, entry.d_un.d_val));
    }
}

} // namespace

ElfFile ElfFile::read(const QByteArray &path)
{
    ElfFile elf;
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return elf;
    const QByteArray identity = readBytes(file, 0, EI_NIDENT);
    constexpr char nativeOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB;
    if (!identity.startsWith(ELFMAG) || identity.at(EI_DATA) != nativeOrder)
        return elf;
    elf.bits = static_cast<unsigned char>(identity.at(EI_CLASS));
    if (elf.bits == ELFCLASS64)
        readDynamic<Bits64>(file, elf);
    else if (elf.bits == ELFCLASS32)
        readDynamic<Bits32>(file, elf);
    return elf;
}

} // namespace launcher
