// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

#include <limits>

namespace tests {

enum class SystemCall {
    Access,
    Fchmod,
    Flock,
    Fstat,
    Fsync,
    Getrandom,
    Link,
    Linkat,
    Lstat,
    Mmap,
    Open,
    Pread,
    Pwrite,
    Read,
    Rename,
    Write
};

// A system call that fails: a disk that breaks, a file system that lacks something, a signal that
// interrupts. Only the test program's own objects and static libraries see it, not Qt.
//
//     const tests::SystemFault fault(tests::SystemCall::Fsync, EIO);
//     QVERIFY(!store(path, content));
//
// A test program that uses it links tests_systemfault.
class SystemFault
{
public:
    static constexpr int kAlways = std::numeric_limits<int>::max();
    // In place of an error: the call does nothing, and says that it has done all of it. For calls
    // that return a number of bytes.
    static constexpr int kPretends = 0;

    // The call fails with `error`, a number of <cerrno>, the next `times` times while this lives.
    explicit SystemFault(SystemCall call, int error, int times = kAlways);
    ~SystemFault();
    SystemFault(const SystemFault &) = delete;
    SystemFault &operator=(const SystemFault &) = delete;

    // True once the call has failed at least once, so that a test can tell that it meant something.
    [[nodiscard]] bool hasFailed() const;

private:
    SystemCall m_call;
};

} // namespace tests

Q_DECLARE_METATYPE(tests::SystemCall)
