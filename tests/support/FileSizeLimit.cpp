// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/FileSizeLimit.h"

#include <csignal>

namespace tests {

FileSizeLimit::FileSizeLimit(qint64 bytes)
{
    ::signal(SIGXFSZ, SIG_IGN); // or the first write beyond the limit ends the process
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    rlimit limit = m_before;
    limit.rlim_cur = static_cast<rlim_t>(bytes);
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
        qFatal("the size of files cannot be limited");
}

FileSizeLimit::~FileSizeLimit()
{
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    ::signal(SIGXFSZ, SIG_DFL);
}

} // namespace tests
