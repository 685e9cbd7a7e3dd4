// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fuzz/Fuzz.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace fuzz {
namespace {

int s_errors = STDERR_FILENO; // where check() writes

} // namespace

void check(bool isTrue, const char *expectation)
{
    if (isTrue)
        return;
    dprintf(s_errors, "fuzz: not so: %s\n", expectation);
    std::abort();
}

QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}

QString folder()
{
    static const QTemporaryDir folder(QDir(QStringLiteral("/dev/shm")).exists()
                                          ? QStringLiteral("/dev/shm/gesturewidget-fuzz-XXXXXX")
                                          : QDir::tempPath()
                                                + QStringLiteral("/gesturewidget-fuzz-XXXXXX"));
    return folder.path();
}

QString file(const QString &name, const QByteArray &content)
{
    QString path = folder() + QLatin1Char('/') + name;
    QFile target(path);
    check(target.open(QIODevice::WriteOnly | QIODevice::Truncate), "the input's file can be opened");
    check(target.write(content) == content.size(), "the input's file can be written");
    return path;
}

void keepQuiet()
{
    // libFuzzer and the sanitizers keep their own way to the terminal: only stderr of the C
    // library is replaced.
    static const bool isQuiet = [] {
        s_errors = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
        std::FILE *nowhere = std::fopen("/dev/null", "w");
        check(s_errors >= 0 && nowhere, "standard error can be replaced");
        stderr = nowhere;
        return true;
    }();
    static_cast<void>(isQuiet);
}

} // namespace fuzz
