// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Part of the launcher where its lines are counted. A process writes its counts when it exits, so they
// are lost when it becomes another program or ends in another way. The linker puts the functions here
// in the place of those that do so (--wrap).

#include <unistd.h>

#include <cstdarg>
#include <vector>

// NOLINTBEGIN(bugprone-reserved-identifier): names of gcov and of the linker
extern "C" {

void __gcov_dump();
void __gcov_reset(); // without it, nothing is written a second time

int __real_execvpe(const char *path, char *const *arguments, char *const *environment);
[[noreturn]] void __real__exit(int status);
int __real_raise(int number);

int __wrap_execvpe(const char *path, char *const *arguments, char *const *environment)
{
    __gcov_dump();
    __gcov_reset();
    return __real_execvpe(path, arguments, environment);
}

int __wrap_execl(const char *path, const char *first, ...)
{
    __gcov_dump();
    __gcov_reset();
    std::vector<char *> arguments;
    va_list more;
    va_start(more, first);
    for (const char *one = first; one; one = va_arg(more, const char *))
        arguments.push_back(const_cast<char *>(one)); // exec's interface, it writes nothing
    va_end(more);
    arguments.push_back(nullptr);
    return ::execv(path, arguments.data());
}

[[noreturn]] void __wrap__exit(int status)
{
    __gcov_dump();
    __real__exit(status);
}

int __wrap_raise(int number)
{
    __gcov_dump();
    __gcov_reset();
    return __real_raise(number);
}
}
// NOLINTEND(bugprone-reserved-identifier)
