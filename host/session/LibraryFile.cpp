// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/LibraryFile.h"

#include "host/files/Text.h"

#include <QFile>

#include <cstring>
#include <elf.h>
#include <link.h>

namespace gesturewidget {
namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

template <class T> bool read(QFile &file, quint64 offset, T *value)
{
    return offset <= static_cast<quint64>(file.size()) && file.seek(static_cast<qint64>(offset))
        && file.read(reinterpret_cast<char *>(value), sizeof(T)) == static_cast<qint64>(sizeof(T));
}

} // namespace

QString problemOfLibraryFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    Header header;
    if (!read(file, 0, &header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return Text::tr("it is not a library");
    if (header.e_phentsize != sizeof(Segment))
        return {}; // for another kind of machine: the loader reports it
    const auto size = static_cast<quint64>(file.size());
    for (quint64 i = 0; i < header.e_phnum; ++i) {
        Segment segment;
        const bool isWhole =
            read(file, header.e_phoff + i * sizeof(Segment), &segment)
            && (segment.p_type != PT_LOAD
                || (segment.p_offset <= size && segment.p_filesz <= size - segment.p_offset));
        if (!isWhole)
            return Text::tr("it is cut short");
    }
    return {};
}

} // namespace gesturewidget
