// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Programs that --explain starts: what it finds in them, and that it ends them all.

#include "launcher/explain/ProgramExplainer.h"

#include "host/files/ExplanationChannel.h"
#include "host/files/ProgramProfile.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

using launcher::Environment;
using launcher::ProgramExplainer;
using launcher::ProgramExplanation;

class ProgramExplainerTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void whatAGuessFinds();
    void whatAProfileSays();
    void aViewThatOpensLater();
    void throughAScript_data();
    void throughAScript();
    void endedInTheEnd_data();
    void endedInTheEnd();
    void aProgramThatEndsAfterItsReport();
    void aProgramThatGoesOnReporting();
    void itsWindowIsClosedBefore_data();
    void itsWindowIsClosedBefore();
    void whatCannotBeExplained_data();
    void whatCannotBeExplained();
    void theVariableIsGone();
    void typed();
    void typedAndInterrupted();

private:
    // A script that writes down its process number. With "exec" at its end the program has the same.
    QByteArray script(const QByteArray &body) const
    {
        QFile file(place("script"));
        const QByteArray text =
            "#!/bin/sh\necho $$ >'" + QFile::encodeName(place("number")) + "'\n" + body;
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
            || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            return {};
        return QFile::encodeName(file.fileName());
    }
    int number() const
    {
        QFile file(place("number"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
    }
    bool isGone(int process) const { return ::kill(process, 0) != 0 && errno == ESRCH; }
    QProcessEnvironment environment() const;
    ProgramExplanation explain(const QByteArray &path, const QList<QByteArray> &arguments) const;
    ProgramExplanation explainGuest(const char *mode) const { return explain(GUEST, {GUEST, mode}); }
    gesturewidget::ProgramProfile loaded(const QByteArray &json) const;

    ProgramExplainer::Patience m_patience;
};

void ProgramExplainerTest::init()
{
    FolderTest::init();
    m_patience = ProgramExplainer::Patience();
    m_patience.more = 300;
    m_patience.firstView = 5000;
}

QProcessEnvironment ProgramExplainerTest::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), m_folder->path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.remove(QStringLiteral("GESTUREWIDGET_PROFILES"));
    return environment;
}

ProgramExplanation ProgramExplainerTest::explain(const QByteArray &path,
                                                 const QList<QByteArray> &arguments) const
{
    Environment variables;
    const QStringList entries = environment().toStringList();
    for (const QString &entry : entries)
        variables.insert(entry.section(QLatin1Char('='), 0, 0).toLocal8Bit(),
                         entry.section(QLatin1Char('='), 1).toLocal8Bit());
    variables.insert("QT_QPA_GENERIC_PLUGINS", "mousegestures");
    variables.insert("QT_PLUGIN_PATH", PLUGINS_DIR);
    if (QFile::exists(place("profiles")))
        variables.insert("GESTUREWIDGET_PROFILES", QFile::encodeName(place("profiles")));
    return ProgramExplainer(path, arguments, variables, m_patience).run();
}

// The profile that a host reads from the text; its program is empty if it cannot be used.
gesturewidget::ProgramProfile ProgramExplainerTest::loaded(const QByteArray &json) const
{
    const QString folder = place("loaded");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/guest.json"));
    QString message = QStringLiteral("not written");
    gesturewidget::ProgramProfile profile;
    if (file.open(QIODevice::WriteOnly) && file.write(json) == json.size()) {
        file.close();
        profile = gesturewidget::ProgramProfile::forProgram(QStringLiteral("guest"), {folder}, &message);
    }
    if (!message.isEmpty()) {
        qWarning("%s", qPrintable(message));
        profile.program.clear();
    }
    return profile;
}

void ProgramExplainerTest::whatAGuessFinds()
{
    const ProgramExplanation found = explainGuest("stay");
    QCOMPARE(found.complaint, QString());
    const gesturewidget::ProgramProfile profile = loaded(QJsonDocument(found.profile).toJson());
    QCOMPARE(profile.program, QStringLiteral("guest"));
    QCOMPARE(profile.viewClasses, QStringList(QStringLiteral("GuestView")));
    QCOMPARE(profile.toolsMenu, QStringLiteral("toolsMenu"));
    QCOMPARE(profile.triggerButton, Qt::RightButton);
    const QHash<QString, QStringList> commands{
        {QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")}},
        {QStringLiteral("ID_OPEN"), {QStringLiteral("fileOpen")}}};
    QCOMPARE(profile.wellKnownCommands, commands);

    const QString lines = found.lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    for (const char *line :
         {"window: GuestWindow\n",
          "view: GuestView, since it paints itself and fills 100 % of the area\n",
          "Tools menu: toolsMenu, since its object name says so\n",
          "ID_LINE: drawLine, since object name \"drawLine\", caption \"Line\"\n",
          "ID_TRIM: none, since no action has a matching shortcut, icon, object name or caption\n"})
        QVERIFY2(lines.contains(QLatin1String(line)), qPrintable(lines));
    // The second start has the commands of the first one.
    const ProgramExplanation again = explainGuest("stay");
    QCOMPARE(again.lines, found.lines);
    QCOMPARE(again.profile, found.profile);

    const QJsonObject why = found.profile.value(QStringLiteral("why")).toObject();
    QVERIFY(why.value(QStringLiteral("views")).toObject().contains(QStringLiteral("GuestView")));
    QVERIFY(
        why.value(QStringLiteral("wellKnownCommands")).toObject().contains(QStringLiteral("ID_TRIM")));
}

void ProgramExplainerTest::whatAProfileSays()
{
    QVERIFY(QDir().mkpath(place("profiles")));
    QVERIFY(QFile::copy(QStringLiteral(TESTS_SOURCE_DIR "/host/inject/guest/profiles/guest.json"),
                        place("profiles/guest.json")));
    const ProgramExplanation found = explainGuest("stay");
    QCOMPARE(found.complaint, QString());
    QFile file(place("profiles/guest.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const gesturewidget::ProgramProfile before = loaded(file.readAll());
    const gesturewidget::ProgramProfile after = loaded(QJsonDocument(found.profile).toJson());
    QCOMPARE(after.viewClasses, before.viewClasses);
    QCOMPARE(after.wellKnownCommands, before.wellKnownCommands);
    QCOMPARE(after.toolsMenu, before.toolsMenu);
    QVERIFY(found.lines.contains(QStringLiteral("ID_LINE: drawLine, since the profile names it")));
    QVERIFY(found.lines.contains(
        QStringLiteral("view: GuestView, since the profile names its class GuestView")));
}

void ProgramExplainerTest::aViewThatOpensLater()
{
    const ProgramExplanation found = explainGuest("late-view");
    QCOMPARE(found.complaint, QString());
    QCOMPARE(found.profile.value(QStringLiteral("viewClasses")).toArray(),
             QJsonArray{QStringLiteral("GuestView")});

    m_patience.firstView = 200; // too short for the view
    const ProgramExplanation early = explainGuest("late-view");
    QCOMPARE(early.complaint, QString());
    QCOMPARE(early.profile.value(QStringLiteral("viewClasses")).toArray(), QJsonArray());
    QVERIFY(early.lines.contains(QStringLiteral("view: none, perhaps before a drawing is open")));
}

void ProgramExplainerTest::throughAScript_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::newRow("in its place") << QByteArray("exec '" GUEST "' stay\n");
    QTest::newRow("waiting for it") << QByteArray("'" GUEST "' stay\nexit 3\n");
    QTest::newRow("going ahead") << QByteArray("'" GUEST "' stay &\nexit 0\n");
    // The script starts the program later than m_patience.end after its own end.
    QTest::newRow("going ahead, long before")
        << QByteArray("(sleep 1; exec '" GUEST "' stay) &\nexit 0\n");
}

void ProgramExplainerTest::throughAScript()
{
    QFETCH(QByteArray, how);
    const QByteArray path = script(how);
    m_patience.end = 300;
    const ProgramExplanation found = explain(path, {path});
    QCOMPARE(found.complaint, QString());
    QCOMPARE(found.profile.value(QStringLiteral("program")).toString(), QStringLiteral("guest"));
    QTRY_VERIFY(isGone(-number())); // whatever it had started
}

void ProgramExplainerTest::endedInTheEnd_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::newRow("it quits") << QByteArray("exec '" GUEST "' stay\n");
    QTest::newRow("it is deaf") << QByteArray("exec '" GUEST "' deaf\n");
    QTest::newRow("it shows no window") << QByteArray("exec '" GUEST "' without-window\n");
    QTest::newRow("not a program of Qt") << QByteArray("while :; do read x || exec sleep 1000; done\n");
    QTest::newRow("it is a deaf script") << QByteArray("trap '' TERM\nexec sleep 1000\n");
}

void ProgramExplainerTest::endedInTheEnd()
{
    QFETCH(QByteArray, how);
    m_patience.window = 2000;
    m_patience.end = 500;
    const QByteArray path = script(how);
    explain(path, {path});
    QVERIFY(number() > 0);
    QVERIFY(isGone(number()));
    QTRY_VERIFY(isGone(-number())); // at its end, a sanitizer may start a program to read symbols
}

void ProgramExplainerTest::aProgramThatEndsAfterItsReport()
{
    const QByteArray path = script(R"(s=${GESTUREWIDGET_EXPLAIN%:*}
        echo '{"process":'$$',"profile":{"program":"odd"},"views":1,"lines":["a","b"]}' >&$s
        echo '{"problem":"this comes too late"}' >&$s
        exit 0
)");
    m_patience.more = 60000;
    const ProgramExplanation found = explain(path, {path});
    QCOMPARE(found.complaint, QString());
    QCOMPARE(found.profile.value(QStringLiteral("program")).toString(), QStringLiteral("odd"));
    QCOMPARE(found.lines, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

void ProgramExplainerTest::aProgramThatGoesOnReporting()
{
    const QByteArray path = script(R"(s=${GESTUREWIDGET_EXPLAIN%:*}
        while echo '{"process":'$$',"profile":{"program":"odd"},"views":1}' >&$s; do sleep 0.1; done
)");
    m_patience.more = 60000;
    m_patience.all = 500;
    m_patience.end = 500;
    const ProgramExplanation found = explain(path, {path});
    QCOMPARE(found.complaint, QString());
    QCOMPARE(found.profile.value(QStringLiteral("program")).toString(), QStringLiteral("odd"));
    QVERIFY(isGone(number()));
}

// Programs that keep a session take any other end for a crash.
void ProgramExplainerTest::itsWindowIsClosedBefore_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::newRow("it closes") << QByteArray("say-closed");
    QTest::newRow("it asks, and nobody answers") << QByteArray("ask-when-closed");
}

void ProgramExplainerTest::itsWindowIsClosedBefore()
{
    QFETCH(QByteArray, mode);
    m_patience.end = 20000; // no signal may be needed
    const ProgramExplanation found = explain(GUEST, {GUEST, mode, QFile::encodeName(place("closed"))});
    QCOMPARE(found.complaint, QString());
    QFile file(place("closed"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("closed\n"));
}

void ProgramExplainerTest::whatCannotBeExplained_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *name, const char *how, const char *says) {
        QTest::newRow(name) << QByteArray(how) << QString::fromLatin1(says);
    };
    row("it ends at once", "exit 3\n", "it ended with status 3 before it had shown a main window");
    row("it is killed", "kill -9 $$\n", "it was ended by signal 9 before it had shown a main window");
    row("no window", "exec '" GUEST "' without-window\n",
        "it has shown no main window with menus in 2 seconds; a dialog may be waiting");
    row("no plug-in", "exec sleep 1000\n", "it has not loaded the plug-in in 2 seconds");
    row("gestures of its own", "exec '" SKETCHPAD "'\n", "it brings gestures of its own");
    row("no widgets", "exec '" GUEST "' without-widgets\n", "it has no widgets");
    row("a message without an end",
        "s=${GESTUREWIDGET_EXPLAIN%:*}; head -c 9000000 /dev/zero >&$s\nexit 4\n",
        "it has not loaded the plug-in in 2 seconds");
    row("nonsense on the socket",
        "s=${GESTUREWIDGET_EXPLAIN%:*}; echo '[7]' >&$s; echo '{\"profile\":7}' >&$s\nexit 4\n",
        "it ended with status 4");
}

void ProgramExplainerTest::whatCannotBeExplained()
{
    QFETCH(QByteArray, how);
    QFETCH(QString, says);
    m_patience.window = 2000;
    m_patience.end = 500;
    const QByteArray path = script(how);
    const ProgramExplanation found = explain(path, {path});
    QVERIFY2(found.complaint.startsWith(says), qPrintable(found.complaint));
    QVERIFY(!found.complaint.contains(QLatin1Char('\n')));
    QVERIFY(found.profile.isEmpty());

    const ProgramExplanation missing = explain("/nowhere/draw", {"/nowhere/draw"});
    QCOMPARE(missing.complaint, QString::fromLocal8Bit(std::strerror(ENOENT)));
}

// Programs that the program starts do not get the variable.
void ProgramExplainerTest::theVariableIsGone()
{
    QByteArray path =
        script("exec '" GUEST "' environment-file '" + QFile::encodeName(place("seen")) + "'\n");
    const ProgramExplanation found = explain(path, {path});
    Q_UNUSED(found)
    QFile seen(place("seen"));
    QVERIFY(seen.open(QIODevice::ReadOnly));
    const QByteArray text = seen.readAll();
    QVERIFY2(text.contains("HOME=") && !text.contains(gesturewidget::kExplanationVariable),
             text.constData());
}

void ProgramExplainerTest::typed()
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(MOUSE_GESTURES),
                  {QStringLiteral("--explain"), QStringLiteral(GUEST), QStringLiteral("stay")});
    QVERIFY(process.waitForFinished(60000));
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             errors.constData());
    const gesturewidget::ProgramProfile profile = loaded(process.readAllStandardOutput());
    QCOMPARE(profile.viewClasses, QStringList(QStringLiteral("GuestView")));
    QVERIFY2(errors.contains("\nview: GuestView, since it paints itself"), errors.constData());
    QVERIFY2(
        errors.endsWith("as " + QFile::encodeName(place("gesturewidget/profiles/guest.json")) + '\n'),
        errors.constData());

    process.start(QStringLiteral(MOUSE_GESTURES), {QStringLiteral("--explain"), QStringLiteral(GUEST),
                                                   QStringLiteral("without-widgets")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    QVERIFY(process.readAllStandardError().endsWith("mouse-gestures: " GUEST ": it has no widgets\n"));
}

void ProgramExplainerTest::typedAndInterrupted()
{
    const QString path = QFile::decodeName(script("exec '" GUEST "' stay\n"));
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(MOUSE_GESTURES), {QStringLiteral("--explain"), path});
    QTRY_VERIFY_WITH_TIMEOUT(number() > 0, 20000);
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGINT);
    QVERIFY(isGone(number()));
}

QTEST_GUILESS_MAIN(ProgramExplainerTest)
#include "tst_programexplainer.moc"
