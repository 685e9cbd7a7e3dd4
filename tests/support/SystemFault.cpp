// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/SystemFault.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstddef>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace tests {
namespace {

struct Plan
{
    int error = 0;
    int left = 0; // times
    bool hasFailed = false;
};

std::array<Plan, std::size_t(SystemCall::Write) + 1> plans;

Plan &planOf(SystemCall call)
{
    return plans.at(std::size_t(call));
}

// Sets errno if the call is to fail now.
bool fails(SystemCall call)
{
    Plan &plan = planOf(call);
    if (plan.left == 0)
        return false;
    --plan.left;
    plan.hasFailed = true;
    errno = plan.error;
    return true;
}

// Returns the result of a failed call for `size` bytes: all of them if it pretends, else -1.
ssize_t answer(std::size_t size)
{
    return errno == SystemFault::kPretends ? ssize_t(size) : -1;
}

} // namespace

SystemFault::SystemFault(SystemCall call, int error, int times)
    : m_call(call)
{
    planOf(call) = {error, times, false};
}

SystemFault::~SystemFault()
{
    planOf(m_call) = {};
}

bool SystemFault::hasFailed() const
{
    return planOf(m_call).hasFailed;
}

} // namespace tests

using tests::answer;
using tests::fails;
using tests::SystemCall;

// The linker puts these in the place of the C library's (--wrap).
// NOLINTBEGIN(bugprone-reserved-identifier): names of the linker
extern "C" {

int __real_access(const char *path, int mode);
int __real_fchmod(int file, mode_t mode);
int __real_flock(int file, int operation);
int __real_fstat(int file, struct stat *status);
int __real_fsync(int file);
ssize_t __real_getrandom(void *buffer, std::size_t size, unsigned int flags);
int __real_link(const char *path, const char *name);
int __real_linkat(int from, const char *path, int to, const char *name, int flags);
int __real_lstat(const char *path, struct stat *status);
void *__real_mmap(void *address, std::size_t size, int protection, int flags, int file, off_t offset);
int __real_open(const char *path, int flags, ...);
ssize_t __real_pread(int file, void *buffer, std::size_t size, off_t offset);
ssize_t __real_pwrite(int file, const void *buffer, std::size_t size, off_t offset);
ssize_t __real_read(int file, void *buffer, std::size_t size);
int __real_rename(const char *path, const char *name);
ssize_t __real_write(int file, const void *buffer, std::size_t size);

int __wrap_access(const char *path, int mode)
{
    return fails(SystemCall::Access) ? -1 : __real_access(path, mode);
}

int __wrap_fchmod(int file, mode_t mode)
{
    return fails(SystemCall::Fchmod) ? -1 : __real_fchmod(file, mode);
}

int __wrap_flock(int file, int operation)
{
    return fails(SystemCall::Flock) ? -1 : __real_flock(file, operation);
}

int __wrap_fstat(int file, struct stat *status)
{
    return fails(SystemCall::Fstat) ? -1 : __real_fstat(file, status);
}

int __wrap_fsync(int file)
{
    return fails(SystemCall::Fsync) ? -1 : __real_fsync(file);
}

ssize_t __wrap_getrandom(void *buffer, std::size_t size, unsigned int flags)
{
    return fails(SystemCall::Getrandom) ? answer(size) : __real_getrandom(buffer, size, flags);
}

int __wrap_link(const char *path, const char *name)
{
    return fails(SystemCall::Link) ? -1 : __real_link(path, name);
}

int __wrap_linkat(int from, const char *path, int to, const char *name, int flags)
{
    return fails(SystemCall::Linkat) ? -1 : __real_linkat(from, path, to, name, flags);
}

int __wrap_lstat(const char *path, struct stat *status)
{
    return fails(SystemCall::Lstat) ? -1 : __real_lstat(path, status);
}

void *__wrap_mmap(void *address, std::size_t size, int protection, int flags, int file, off_t offset)
{
    return fails(SystemCall::Mmap) ? MAP_FAILED
                                   : __real_mmap(address, size, protection, flags, file, offset);
}

int __wrap_open(const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    // The mode, which is there only if a file is made.
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return fails(SystemCall::Open) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_pread(int file, void *buffer, std::size_t size, off_t offset)
{
    return fails(SystemCall::Pread) ? answer(size) : __real_pread(file, buffer, size, offset);
}

ssize_t __wrap_pwrite(int file, const void *buffer, std::size_t size, off_t offset)
{
    return fails(SystemCall::Pwrite) ? answer(size) : __real_pwrite(file, buffer, size, offset);
}

ssize_t __wrap_read(int file, void *buffer, std::size_t size)
{
    return fails(SystemCall::Read) ? answer(size) : __real_read(file, buffer, size);
}

int __wrap_rename(const char *path, const char *name)
{
    return fails(SystemCall::Rename) ? -1 : __real_rename(path, name);
}

ssize_t __wrap_write(int file, const void *buffer, std::size_t size)
{
    return fails(SystemCall::Write) ? answer(size) : __real_write(file, buffer, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)
