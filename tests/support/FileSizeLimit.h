// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <sys/resource.h>

namespace tests {

// A disk with little room left, for any user: while this object lives, this process cannot
// write any file beyond `bytes`. A write that crosses the limit is cut short there, and the
// next one fails, as on a disk that fills up.
//
//     const tests::FileSizeLimit limit(100);
//     QVERIFY(!store(path, content));
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before = {};
};

} // namespace tests
