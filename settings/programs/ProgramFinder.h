// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/desktop/MenuPrograms.h"

#include <QObject>

#include <atomic>
#include <thread>

namespace settings {

// Finds the programs of the desktop's menus on a thread of its own. All signals come on the thread
// of this object.
class ProgramFinder : public QObject
{
    Q_OBJECT

public:
    explicit ProgramFinder(QObject *parent = nullptr);
    ~ProgramFinder() override;

    // Starts a search. A search that is under way is given up.
    void start(const launcher::MenuPrograms &programs);
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    void found(const launcher::MenuProgram &program);
    // `done` of `total` entries have been looked at.
    void progressed(int done, int total);
    // The search came to its end. Not sent if it was given up.
    void finished();

private:
    void giveUp();

    std::thread m_thread;
    std::atomic<bool> m_isWanted{false};
    bool m_isRunning = false;
    int m_search = 0; // tells what an earlier search sent from this one's
};

} // namespace settings
