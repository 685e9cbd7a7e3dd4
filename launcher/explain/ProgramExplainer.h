#pragma once

#include "launcher/programs/LaunchEnvironment.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

namespace launcher {

// What came of having a program explained.
struct ProgramExplanation
{
    QJsonObject profile;
    QStringList lines; // for a person: what was taken for what, and why
    QString complaint; // one line when there is no profile
    int signal = 0; // the signal by which the launcher itself was told to end
};

// Starts a program with gestures, waits until its host has said what it takes for what, and
// ends the program again, however it behaves.
class ProgramExplainer
{
public:
    // All in milliseconds.
    struct Patience
    {
        int window = 60000; // until a main window is up and its menus are complete
        int more = 3000; // without anything new, once a view was found
        int firstView = 8000; // the same as long as there is none
        int all = 30000; // from the first report on, whatever else is found
        int end = 3000; // for the program to quit, and once more after it was told to
    };

    ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                     const Environment &environment);
    ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                     const Environment &environment, const Patience &patience);
    ~ProgramExplainer();
    ProgramExplainer(const ProgramExplainer &) = delete;
    ProgramExplainer &operator=(const ProgramExplainer &) = delete;

    // Once. The program's standard input and output are closed to it, its errors pass.
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
    int m_child = 0; // process number, also of the group of all that it starts
    int m_teller = 0; // process that the plug-in is in
    bool m_isReaped = false;
    int m_status = 0; // as waitpid() has it
    int m_views = 0;
    bool m_hasNews = false;
};

} // namespace launcher
