// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <atomic>
#include <cstdint>

#include <limits.h>
#include <sys/types.h>

namespace gesturewidget {

// A page of memory in which a process marks when code of the gestures is running. If the process
// dies, the next one of the same program finds the mark.
//
// The page is a mapped file, so marking is a write to memory, and the kernel keeps the mark however
// the process ends. The process holds the kernel's lock of the file, which tells others that it is
// alive. The file is "gesturewidget-PROGRAM-PROCESS" in the folder of XDG_RUNTIME_DIR, or below the
// user's cache folder where there is no such folder. It goes when the process ends as it should.
//
// Nothing here fails loudly: where no such file can be made, there is no mark.
class CrashPage
{
public:
    // Makes the page for this process. `settings` is the file with the program's settings: processes
    // with different settings know nothing of each other.
    CrashPage(const QString &program, const QString &settings);
    // Removes the file, except in a process that was forked since. Calls no Qt function.
    ~CrashPage();
    CrashPage(const CrashPage &) = delete;
    CrashPage &operator=(const CrashPage &) = delete;

    // Where to keep the mark: 1 while code of the gestures is running, else 0. Null without a page.
    [[nodiscard]] std::atomic<std::uint32_t> *mark() const { return m_mark; }

    // Returns whether a process of that program has died while its mark was 1, since the computer was
    // started. Changes nothing.
    [[nodiscard]] static bool tellsOfCrash(const QString &program, const QString &settings);
    // Removes the pages of processes that are gone.
    static void removeDead(const QString &program, const QString &settings);

private:
    struct Content;

    // Calls `use` with the path and the content of each page whose process is gone.
    template <class Use>
    static void forEachDead(const QString &program, const QString &settings, Use use);
    [[nodiscard]] bool make(const QByteArray &folder, const QString &program, const Content &content);

    char m_path[PATH_MAX] = {};
    Content *m_content = nullptr; // mapped
    std::atomic<std::uint32_t> *m_mark = nullptr;
    int m_file = -1;
    pid_t m_process = -1;
};

} // namespace gesturewidget
