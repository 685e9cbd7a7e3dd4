// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

namespace tests {

// Collects the text that is written to standard error during its lifetime.
class StandardErrorCapture
{
public:
    StandardErrorCapture()
        : m_previous(::dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        if (m_file.open())
            ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardErrorCapture()
    {
        std::fflush(stderr);
        ::dup2(m_previous, STDERR_FILENO);
        ::close(m_previous);
    }
    Q_DISABLE_COPY_MOVE(StandardErrorCapture)

    // Returns the lines so far.
    [[nodiscard]] QStringList lines()
    {
        std::fflush(stderr);
        QFile file(m_file.fileName());
        if (!file.open(QIODevice::ReadOnly))
            return {QStringLiteral("the captured lines cannot be read")};
        QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        lines.removeAll(QString());
        return lines;
    }

private:
    QTemporaryFile m_file;
    int m_previous;
};

} // namespace tests
