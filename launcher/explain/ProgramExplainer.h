// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/LaunchEnvironment.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

namespace launcher {

// The result of explaining a program.
struct ProgramExplanation
{
    QJsonObject profile;
    QStringList lines; // for a person: what the host recognises, and why
    QString complaint; // one line when there is no profile
    int signal = 0; // the signal that told the launcher itself to end; 0 for none
};

// Starts a program with gestures, waits until its host has reported what it recognises, and ends
// the program, however that behaves.
class ProgramExplainer
{
public:
    // Waiting times, all in milliseconds.
    struct Patience
    {
        int window = 60000; // until a main window is up and its menus are complete
        int more = 3000; // without news, once a view was found
        int firstView = 8000; // without news, while no view was found
        int all = 30000; // from the first report to the end, whatever is found
        int end = 3000; // for the program to quit, and again after SIGTERM
    };

    ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                     const Environment &environment);
    ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                     const Environment &environment, const Patience &patience);
    ~ProgramExplainer();
    ProgramExplainer(const ProgramExplainer &) = delete;
    ProgramExplainer &operator=(const ProgramExplainer &) = delete;

    // Call this once. The program's standard input and output lead nowhere; its errors pass.
    [[nodiscard]] ProgramExplanation run();

private:
    [[nodiscard]] bool start(QString &complaint);
    void listen(ProgramExplanation &explanation);
    void take(const QByteArray &line, ProgramExplanation &explanation);
    [[nodiscard]] bool hasEnded();
    [[nodiscard]] bool isAlive();
    [[nodiscard]] bool waitForEnd();
    void end();
    [[nodiscard]] QString howItEnded() const;

    QByteArray m_path;
    QList<QByteArray> m_arguments; // the first is the program as typed
    Environment m_environment;
    Patience m_patience;
    int m_socket = -1;
    int m_child = 0; // process that was started; its number is also that of its process group
    int m_teller = 0; // process that has loaded the plug-in; 0 until it has told
    bool m_isReaped = false;
    int m_status = 0; // as waitpid() has it
    int m_views = 0;
    bool m_hasNews = false;
};

} // namespace launcher
