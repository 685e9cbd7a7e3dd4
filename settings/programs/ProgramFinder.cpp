// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/ProgramFinder.h"

#include <QMetaObject>

namespace settings {

ProgramFinder::ProgramFinder(QObject *parent)
    : QObject(parent)
{
}

ProgramFinder::~ProgramFinder()
{
    giveUp();
}

void ProgramFinder::start(const launcher::MenuPrograms &programs)
{
    giveUp();
    m_isWanted = true;
    m_isRunning = true;
    const int search = ++m_search;
    m_thread = std::thread([this, programs, search] {
        const auto send = [this, search](const std::function<void()> &what) {
            QMetaObject::invokeMethod(
                this,
                [this, search, what] {
                    if (search == m_search)
                        what();
                },
                Qt::QueuedConnection);
        };
        programs.find(
            [&](const launcher::MenuProgram &program) {
                send([this, program] { Q_EMIT found(program); });
            },
            [&](int done, int total) {
                send([this, done, total] { Q_EMIT progressed(done, total); });
                return m_isWanted.load();
            });
        send([this] {
            m_isRunning = false;
            Q_EMIT finished();
        });
    });
}

void ProgramFinder::giveUp()
{
    m_isWanted = false;
    if (m_thread.joinable())
        m_thread.join();
    m_isRunning = false;
    ++m_search;
}

} // namespace settings
