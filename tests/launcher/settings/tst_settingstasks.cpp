// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Showing and changing what is kept for a program, in the file that the host reads too.

#include "launcher/settings/SettingsTasks.h"

#include "host/files/InstallPaths.h"
#include "host/files/SettingsFile.h"
#include "host/files/TriggerText.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/BindingsJson.h"
#include "tests/launcher/settings/BindingCases.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

using gesturewidget::SettingsFile;
using launcher::Bindings;
using launcher::Outcome;
using launcher::SettingsTasks;
using tests::contentOf;
using tests::text;

namespace {

const QString kProgram = QStringLiteral("drafter");

} // namespace

class SettingsTasksTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        m_file = place(QStringLiteral("config/drafter.ini"));
        m_export = place(QStringLiteral("kept.json"));
    }

    void withoutSettingsTheFirstBindingsAreShown();
    void theSchemeInUseIsShownFirst();
    void aSchemeThatWasTouchedHasNothingWhereNothingStands();
    void bindsInTheSchemeInUse_data();
    void bindsInTheSchemeInUse();
    void aCommandByItsCaption();
    void aCommandHasOneDirection();
    void aTaskMayHaveARingOfItsOwn();
    void aTaskWithoutARingIsRefused();
    void exportsHoldAllRings();
    void aRingAloneIsExportedAndImported();
    void aRingIsReset();
    void whatWasChangedSinceIsNotTakenBack();
    void otherProgramsValuesStay();
    void resetKeepsTheTrigger();
    void theAdministratorsSettings();
    void resettingATaskBringsTheAdministratorsRing();
    void aTaskLeavesTheAdministratorsRingAndTakesItBack();
    void badInputChangesNothing_data();
    void badInputChangesNothing();
    void triggers_data();
    void triggers();
    void exportAndImportAreInverse();
    void importKeepsTheOldSettings();
    void importRefusesWithItsLine_data();
    void importRefusesWithItsLine();
    void whatIsNoFileIsRefused();
    void deepNestingIsRefusedAtOnce();
    void onlyWhatChangedIsWritten();
    void whatCannotBeWrittenIsSaid();

private:
    SettingsTasks tasks() const { return SettingsTasks(kProgram, m_file); }
    // Where an administrator has this settings file.
    SettingsTasks tasksUnder(const QByteArray &site)
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(place("own")));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(place("site")));
        m_file = gesturewidget::settingsFile(kProgram);
        write(place("site/gesturewidget/drafter.ini"), site);
        SettingsTasks tasks(kProgram, m_file);
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_CONFIG_DIRS");
        return tasks;
    }
    Bindings kept() const { return Bindings::fromSettings(SettingsFile(m_file).read()); }
    QString m_file;
    QString m_export;
};

void SettingsTasksTest::withoutSettingsTheFirstBindingsAreShown()
{
    const Outcome outcome = tasks().showBindings();
    QVERIFY(outcome.isDone());
    QCOMPARE(outcome.output, QByteArray("gestures in drafter: on\n"
                                        "started with: right (default)\n"
                                        "8 gestures (in use)\n"
                                        "  up         ID_ZOOM_BOUNDS\n"
                                        "  up-left    ID_OFFSET\n"
                                        "  left       ID_OPEN\n"
                                        "  down-left  ID_COPY\n"
                                        "  down       ID_SAVE\n"
                                        "  down-right ID_DTEXT\n"
                                        "  right      ID_LINE\n"
                                        "  up-right   ID_TRIM\n"
                                        "4 gestures\n"
                                        "  up         ID_ZOOM_BOUNDS\n"
                                        "  left       ID_OPEN\n"
                                        "  down       ID_SAVE\n"
                                        "  right      ID_LINE\n"));
    QVERIFY(!QFileInfo::exists(m_file)); // showing writes nothing
}

void SettingsTasksTest::theSchemeInUseIsShownFirst()
{
    write(m_file, "[GestureWidget]\nEnableMouseGesture=0\nActiveScheme=4\n42=DrawArc\n[Host]\n"
                  "Trigger=ctrl+right\n");
    const QByteArray output = tasks().showBindings().output;
    QVERIFY2(output.startsWith("gestures in drafter: off\nstarted with: ctrl+right\n"
                               "4 gestures (in use)\n  up         none\n  left       DrawArc\n"),
             output.constData());
    QVERIFY(output.contains("8 gestures\n  up         ID_ZOOM_BOUNDS\n"));
}

void SettingsTasksTest::aSchemeThatWasTouchedHasNothingWhereNothingStands()
{
    write(m_file, "[GestureWidget]\n87=DrawArc\n");
    const Bindings bindings = kept();
    QCOMPARE(bindings.eight, QStringList({QString(), QString(), QString(), QString(), QString(),
                                          QString(), text("DrawArc"), QString()}));
    QCOMPARE(bindings.four, Bindings::initial().four);
}

void SettingsTasksTest::bindsInTheSchemeInUse_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("index");
    for (const int scheme : {4, 8}) {
        const QStringList names = Bindings::directionNames(scheme);
        QCOMPARE(int(names.size()), scheme);
        for (int i = 0; i < scheme; ++i)
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(scheme).arg(names.at(i))))
                << scheme << names.at(i) << i;
    }
    QTest::newRow("upper case") << 8 << text("Up-LEFT") << 1;
}

void SettingsTasksTest::bindsInTheSchemeInUse()
{
    QFETCH(int, scheme);
    QFETCH(QString, direction);
    QFETCH(int, index);
    write(m_file, "[GestureWidget]\nActiveScheme=" + QByteArray::number(scheme) + '\n');
    QVERIFY(tasks().bind(direction, text("DrawArc")).isDone());

    Bindings expected = Bindings::initial();
    expected.scheme = scheme;
    expected.commands()[index] = text("DrawArc");
    QCOMPARE(kept().four, expected.four);
    QCOMPARE(kept().eight, expected.eight);
    // The key that the module looks at.
    const SettingsFile::Values values = SettingsFile(m_file).read();
    const QString key = QStringLiteral("GestureWidget/%1%2").arg(scheme).arg(index + 1);
    QCOMPARE(values.value(key), text("DrawArc"));

    for (const char *nothing : {"none", ""}) {
        QVERIFY(tasks().bind(direction, text("DrawArc")).isDone());
        QVERIFY(tasks().bind(direction, text(nothing)).isDone());
        QCOMPARE(SettingsFile(m_file).read().value(key, text("<missing>")), QString());
    }
}

void SettingsTasksTest::aCommandByItsCaption()
{
    const launcher::KnownCommands known(
        {{text("drawArc"), {}, text("Arc..."), {}, text("Draw"), {}, false},
         {text("ID_LINE"), text("drawLine"), text("Straight  line"), {}, text("Draw"), {}, false}},
        {});
    SettingsTasks named(kProgram, m_file, known);
    QVERIFY(named.bind(text("up-left"), text("arc")).isDone());
    QCOMPARE(kept().eight.at(1), text("drawArc"));
    QVERIFY(named.bind(text("up"), text("drawLine")).isDone());
    QCOMPARE(kept().eight.at(0), text("ID_LINE"));
    QCOMPARE(kept().eight.at(6), QString()); // where it was before

    const QByteArray before = contentOf(m_file);
    QVERIFY(named.bind(text("down"), text("Circle")).complaint.contains(text("never shown")));
    QCOMPARE(contentOf(m_file), before);
    QVERIFY(named.bind(text("up-left"), text("none")).isDone());
    QCOMPARE(kept().eight.at(1), QString());

    QVERIFY(named.bind(text("up-left"), text("Arc...")).isDone());
    const QByteArray output = named.showBindings().output;
    QVERIFY2(output.contains("  up         ID_LINE   Straight line\n"
                             "  up-left    drawArc   Arc\n"
                             "  left       ID_OPEN\n"),
             output.constData());
}

void SettingsTasksTest::aCommandHasOneDirection()
{
    QVERIFY(tasks().bind(text("up"), text("ID_LINE")).isDone());
    QCOMPARE(kept().eight.at(0), text("ID_LINE"));
    QCOMPARE(kept().eight.at(6), QString());
    QCOMPARE(kept().four, Bindings::initial().four); // the other scheme keeps its own
    // Several directions may be empty.
    QVERIFY(tasks().bind(text("left"), text("none")).isDone());
    QCOMPARE(kept().eight.count(QString()), 2);
    QCOMPARE(kept().eight.at(1), text("ID_OFFSET"));
}

void SettingsTasksTest::aTaskMayHaveARingOfItsOwn()
{
    const QString task = text("SketchBench");
    QVERIFY(tasks().bind(text("up"), text("ID_SHARED")).isDone());
    QVERIFY(tasks().setRing(task, true, {{text("87"), text("Sketch_Line")}}).isDone());
    SettingsTasks own = tasks();
    own.setTask(task);
    QVERIFY(own.bind(text("left"), text("Sketch_Arc")).isDone());
    // The shared ring is as it was.
    QCOMPARE(kept().eight.at(0), text("ID_SHARED"));
    QCOMPARE(kept().eight.at(2), Bindings::initial().eight.at(2));
    QCOMPARE(kept().eight.at(6), Bindings::initial().eight.at(6));
    const QString shown = QString::fromLocal8Bit(tasks().showBindings().output);
    const QString ring = shown.section(text("ring of SketchBench\n"), 1);
    for (const char *line :
         {"  up         ID_SHARED", "  left       Sketch_Arc", "  right      Sketch_Line"})
        QVERIFY2(ring.contains(text(line)), qPrintable(shown));
    QVERIFY(!shown.section(text("ring of"), 0, 0).contains(text("Sketch_")));
    QVERIFY(tasks().setRing(task, false, {}).isDone());
    QVERIFY(!tasks().showBindings().output.contains("ring of"));
    // The ring that it had comes back.
    QVERIFY(tasks().setRing(task, true, {}).isDone());
    QVERIFY(tasks().showBindings().output.contains("  left       Sketch_Arc"));
}

void SettingsTasksTest::aTaskWithoutARingIsRefused()
{
    SettingsTasks own = tasks();
    own.setTask(text("SketchBench"));
    const Outcome none = own.bind(text("up"), text("ID_LINE"));
    QVERIFY(!none.isDone());
    QVERIFY(none.complaint.contains(text("SketchBench has no ring of its own")));
    QVERIFY(!QFileInfo::exists(m_file));
}

void SettingsTasksTest::exportsHoldAllRings()
{
    const QByteArray plain = tasks().exported().output;
    QVERIFY(!plain.contains("rings"));
    const QString task = text("SketchBench");
    const QString other = text("Part, Design");
    QVERIFY(tasks().setRing(task, true, {{text("87"), text("Sketch_Line")}}).isDone());
    const QByteArray both = tasks().exported().output;
    QVERIFY2(both.contains("\"right\": \"Sketch_Line\""), both.constData());

    // The rings come back, and those that the file does not name stay.
    QVERIFY(tasks().bind(text("up"), text("ID_SHARED")).isDone());
    QVERIFY(tasks().setRing(task, false, {}).isDone());
    QVERIFY(tasks().setRing(other, true, {{text("81"), text("Part_Pad")}}).isDone());
    SettingsTasks importing = tasks();
    launcher::SettingsChange change;
    QVERIFY(importing.importText(both, text("it"), &change).isDone());
    QCOMPARE(tasks().tasks(), (QStringList{other, task}));
    QCOMPARE(tasks().ringOf(task).eight.at(6), text("Sketch_Line"));
    QCOMPARE(tasks().ringOf(other).eight.at(0), text("Part_Pad"));
    QCOMPARE(kept().eight, Bindings::initial().eight);
    QCOMPARE(SettingsFile(m_file).read().value(text("Host/Imported")).count(text("Sketch_Line")), 1);
    // It is taken back as a whole, and made again.
    QVERIFY(importing.takeBack(change).isDone());
    QCOMPARE(tasks().tasks(), QStringList(other));
    QCOMPARE(kept().eight.at(0), text("ID_SHARED"));
    QVERIFY(importing.makeAgain(change).isDone());
    QCOMPARE(tasks().tasks(), (QStringList{other, task}));
    // Not over what somebody has done since.
    QVERIFY(tasks().setRing(task, false, {}).isDone());
    QVERIFY(!importing.takeBack(change).isDone());
    QCOMPARE(kept().eight, Bindings::initial().eight);
    QVERIFY(tasks().setRing(task, true, {}).isDone());
    SettingsTasks own = tasks();
    own.setTask(task);
    QVERIFY(own.bind(text("left"), text("Sketch_Arc")).isDone());
    // A file without rings leaves them alone.
    QVERIFY(importing.importText(plain, text("it")).isDone());
    QCOMPARE(tasks().ringOf(task).eight.at(2), text("Sketch_Arc"));
}

void SettingsTasksTest::aRingAloneIsExportedAndImported()
{
    const QString task = text("SketchBench");
    const QString other = text("PartBench");
    SettingsTasks own = tasks();
    own.setTask(task);
    QVERIFY(own.exported().complaint.contains(text("SketchBench has no ring of its own")));
    QVERIFY(!own.exportTo(place(text("alone.json"))).isDone());
    QVERIFY(!QFileInfo::exists(place(text("alone.json"))));
    for (const QString &name : {task, other})
        QVERIFY(tasks().setRing(name, true, {{text("87"), name + text("_Line")}}).isDone());
    const QByteArray alone = own.exported().output;
    QVERIFY2(alone.contains("SketchBench_Line") && !alone.contains("rings"), alone.constData());

    // Only that ring changes, whatever else the file says.
    SettingsTasks importing = tasks();
    importing.setTask(other);
    QByteArray switchedOff = alone;
    switchedOff.replace("\"enabled\": true", "\"enabled\": false");
    switchedOff.replace("\"trigger\": \"\"", "\"trigger\": \"middle\"");
    launcher::SettingsChange change;
    QVERIFY(importing.importText(switchedOff, text("it"), &change).isDone());
    QCOMPARE(tasks().ringOf(other).eight.at(6), text("SketchBench_Line"));
    QCOMPARE(kept().eight, Bindings::initial().eight);
    QVERIFY(kept().enabled);
    QCOMPARE(kept().trigger, QString());
    QVERIFY(importing.takeBack(change).isDone());
    QCOMPARE(tasks().ringOf(other).eight.at(6), text("PartBench_Line"));
    // Also if the file has rings of tasks.
    QVERIFY(tasks().setRing(task, true, {{text("87"), text("Newer_Line")}}).isDone());
    const QByteArray all = tasks().exported().output;
    QVERIFY(own.bind(text("up"), text("Sketch_Arc")).isDone());
    QVERIFY(importing.importText(all, text("it")).isDone());
    QCOMPARE(tasks().ringOf(other).eight, Bindings::initial().eight);
    QCOMPARE(tasks().ringOf(task).eight.at(0), text("Sketch_Arc"));
    // Nothing is imported into a ring that does not exist.
    const QByteArray before = contentOf(m_file);
    importing.setTask(text("NoBench"));
    QVERIFY(importing.importText(alone, text("it")).complaint.contains(text("NoBench has no ring")));
    QCOMPARE(contentOf(m_file), before);
}

void SettingsTasksTest::aRingIsReset()
{
    const QString task = text("SketchBench");
    const QHash<QString, QString> first{{text("87"), text("Sketch_Line")}};
    QVERIFY(tasks().bind(text("up"), text("ID_SHARED")).isDone());
    QVERIFY(tasks().setRing(task, true, first).isDone());
    SettingsTasks own = tasks();
    own.setTask(task);
    for (const char *direction : {"up", "right", "left"})
        QVERIFY(own.bind(text(direction), text("x") + text(direction)).isDone());
    launcher::SettingsChange change;
    const Outcome outcome = own.reset(&change, first);
    QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));
    QCOMPARE(outcome.output, QByteArray());
    const Bindings ring = tasks().ringOf(task);
    QCOMPARE(ring.eight.at(0), text("ID_SHARED"));
    QCOMPARE(ring.eight.at(2), Bindings::initial().eight.at(2));
    QCOMPARE(ring.eight.at(6), text("Sketch_Line"));
    QCOMPARE(kept().eight.at(0), text("ID_SHARED"));
    QCOMPARE(kept().eight.at(6), Bindings::initial().eight.at(6));
    QVERIFY(own.takeBack(change).isDone());
    QCOMPARE(tasks().ringOf(task).eight.at(0), text("xup"));
    own.setTask(text("NoBench"));
    QVERIFY(!own.reset().isDone());
}

void SettingsTasksTest::whatWasChangedSinceIsNotTakenBack()
{
    const QString elsewhere = text("this was changed elsewhere meanwhile, so it stays");
    const auto bindTwo = [](Bindings &bindings) {
        bindings.bind(0, text("Arc"));
        bindings.bind(1, text("Circle"));
        return QString();
    };
    launcher::SettingsChange change;
    QVERIFY(tasks().edit(bindTwo, &change).isDone());
    QVERIFY(tasks().bind(text("up"), text("Mine")).isDone());
    QCOMPARE(tasks().takeBack(change).complaint, elsewhere);
    QCOMPARE(kept().eight.mid(0, 2), (QStringList{text("Mine"), text("Circle")}));

    // A task's ring that is in use no more, whatever the shared one has.
    SettingsTasks own = tasks();
    own.setTask(text("SketchBench"));
    QVERIFY(tasks().setRing(own.task(), true, {}).isDone());
    QVERIFY(own.edit(bindTwo, &change).isDone());
    QVERIFY(tasks().edit(bindTwo).isDone());
    QVERIFY(tasks().setRing(own.task(), false, {}).isDone());
    QCOMPARE(own.takeBack(change).complaint, elsewhere);
    QVERIFY(tasks().setRing(own.task(), true, {}).isDone());
    QVERIFY(own.takeBack(change).isDone());
    QCOMPARE(own.bindings().eight.at(0), text("Mine"));

    // One of several imported rings.
    QVERIFY(tasks().setRing(text("PartBench"), true, {}).isDone());
    const QByteArray exported = tasks().exported().output;
    for (const char *ring : {"PartBench", "SketchBench"})
        QVERIFY(tasks().setRing(text(ring), false, {}).isDone());
    QVERIFY(tasks().importText(exported, text("it"), &change).isDone());
    QVERIFY(tasks().setRing(text("PartBench"), false, {}).isDone());
    QCOMPARE(tasks().takeBack(change).complaint, elsewhere);
    QCOMPARE(tasks().tasks(), QStringList(text("SketchBench")));
}

void SettingsTasksTest::otherProgramsValuesStay()
{
    write(m_file, "[Window]\nwidth=700\n[GestureWidget]\nEnableMouseGesture=0\n");
    QVERIFY(tasks().bind(text("up"), text("Draw%,\xe4;\"")).isDone());
    const SettingsFile::Values values = SettingsFile(m_file).read();
    QCOMPARE(values.value(text("Window/width")), text("700"));
    QCOMPARE(values.value(text("GestureWidget/EnableMouseGesture")), text("0"));
    QCOMPARE(values.value(text("GestureWidget/81")), text("Draw%,\xe4;\""));
    QCOMPARE(contentOf(m_file + text(".bak")), contentOf(m_file)); // the last good copy is up to date
}

void SettingsTasksTest::resetKeepsTheTrigger()
{
    QVERIFY(tasks().setTrigger(text("middle")).isDone());
    QVERIFY(tasks().bind(text("up"), text("DrawArc")).isDone());
    const Outcome outcome = tasks().reset();
    QVERIFY(outcome.isDone());
    QCOMPARE(outcome.output, QByteArray("gestures are still started with: middle\n"));
    QCOMPARE(kept().eight, Bindings::initial().eight);
    QCOMPARE(kept().trigger, text("middle"));
    const SettingsFile::Values values = SettingsFile(m_file).read();
    QCOMPARE(values.value(text("GestureWidget/ActiveScheme")), text("8"));
    QCOMPARE(values.value(text("GestureWidget/EnableMouseGesture")), text("1"));
}

void SettingsTasksTest::theAdministratorsSettings()
{
    SettingsTasks tasks =
        tasksUnder("[GestureWidget]\nActiveScheme=4\n41=siteLine\n[Host]\nTrigger=ctrl+right\n");
    const QByteArray shown = tasks.showBindings().output;
    QVERIFY2(shown.contains("started with: ctrl+right\n4 gestures (in use)\n  up         siteLine\n"),
             shown.constData());
    // Only what differs is kept.
    QVERIFY(tasks.bind(text("left"), text("ownArc")).isDone());
    SettingsFile::Values own = SettingsFile(m_file).read();
    QVERIFY(!own.contains(text("GestureWidget/41")));
    QVERIFY(!own.contains(text("GestureWidget/ActiveScheme")));
    QCOMPARE(own.value(text("GestureWidget/42")), text("ownArc"));
    QVERIFY(tasks.bind(text("up"), text("none")).isDone());
    QCOMPARE(tasks.bindings().four,
             (QStringList{QString(), text("ownArc"), text("ID_SAVE"), text("ID_LINE")}));
    QVERIFY(tasks.setTrigger(text("middle")).isDone());
    QCOMPARE(tasks.bindings().trigger, text("middle"));

    const Outcome outcome = tasks.reset();
    QCOMPARE(outcome.output, QByteArray("gestures are still started with: middle\n"));
    QCOMPARE(tasks.bindings().four.first(), text("siteLine"));
    QCOMPARE(tasks.bindings().scheme, 4);
    QVERIFY(tasks.setTrigger(text("default")).isDone());
    QCOMPARE(tasks.bindings().trigger, text("ctrl+right"));
    own = SettingsFile(m_file).read();
    for (const char *key : {"GestureWidget/41", "GestureWidget/ActiveScheme", "Host/Trigger"})
        QVERIFY2(!own.contains(text(key)), key);
    QVERIFY(tasks.reset().isDone());
    QCOMPARE(tasks.bindings().trigger, text("ctrl+right"));
    QVERIFY(!SettingsFile(m_file).read().contains(text("Host/Trigger")));
    // A task's ring begins with the administrator's too.
    QVERIFY(tasks.setRing(text("Sketch"), true, {}).isDone());
    tasks.setTask(text("Sketch"));
    QCOMPARE(tasks.bindings().four.first(), text("siteLine"));
    QCOMPARE(tasks.bindings().scheme, 4);
}

void SettingsTasksTest::resettingATaskBringsTheAdministratorsRing()
{
    SettingsTasks tasks = tasksUnder(
        "[GestureWidget]\n81=siteShared\n[Ring%20Sketch]\nOwn=Sketch\n81=siteUp\n83=siteLeft\n");
    tasks.setTask(text("Sketch"));
    QVERIFY(tasks.bind(text("left"), text("mine")).isDone());
    QVERIFY(tasks.bind(text("down"), text("other")).isDone());
    QVERIFY(tasks.reset(nullptr, {{text("81"), text("Sketch_Line")}}).isDone());
    QCOMPARE(tasks.bindings().eight.at(0), text("siteUp"));
    QCOMPARE(tasks.bindings().eight.at(2), text("siteLeft"));

    // What the administrator changes later counts, too.
    const QStringList written = SettingsFile(m_file).read().keys();
    QVERIFY2(!written.contains(text("Ring Sketch/81")), qPrintable(written.join(text(" "))));
    QVERIFY2(!written.contains(text("Ring Sketch/83")), qPrintable(written.join(text(" "))));
}

void SettingsTasksTest::aTaskLeavesTheAdministratorsRingAndTakesItBack()
{
    SettingsTasks tasks = tasksUnder(
        "[GestureWidget]\n81=siteShared\n[Ring%20Sketch]\nOwn=Sketch\n81=siteUp\n83=siteLeft\n");
    const QString task = text("Sketch");
    const QHash<QString, QString> first{{text("81"), text("Sketch_Line")}};
    const auto written = [this] {
        return SettingsFile(m_file).read().keys().filter(QRegularExpression(text("^Ring Sketch/")));
    };
    QCOMPARE(tasks.tasks(), QStringList(task));
    QVERIFY(tasks.setRing(task, false, first).isDone());
    QCOMPARE(tasks.tasks(), QStringList());
    QVERIFY(!tasks.showBindings().output.contains("ring of"));
    QCOMPARE(SettingsFile(m_file).read().value(text("Ring Sketch/Own"), text("none")), QString());
    QCOMPARE(written(), QStringList(text("Ring Sketch/Own")));

    // The administrator's ring comes back, and nothing is in the way of changes to it.
    QVERIFY(tasks.setRing(task, true, first).isDone());
    QCOMPARE(tasks.tasks(), QStringList(task));
    QCOMPARE(written(), QStringList());
    QCOMPARE(tasks.ringOf(task).eight.at(0), text("siteUp"));
    QCOMPARE(tasks.ringOf(task).eight.at(2), text("siteLeft"));

    // A choice of the person's own is kept meanwhile.
    tasks.setTask(task);
    QVERIFY(tasks.bind(text("left"), text("mine")).isDone());
    QVERIFY(tasks.setRing(task, false, first).isDone());
    QCOMPARE(tasks.tasks(), QStringList());
    QVERIFY(tasks.setRing(task, true, first).isDone());
    QCOMPARE(tasks.bindings().eight.at(0), text("siteUp"));
    QCOMPARE(tasks.bindings().eight.at(2), text("mine"));
    QCOMPARE(written(), QStringList(text("Ring Sketch/83")));

    // An import brings a ring, and taking it back brings the choice back.
    tasks.setTask({});
    QVERIFY(tasks.exportTo(place("all.json")).isDone());
    QVERIFY(tasks.setRing(task, false, first).isDone());
    launcher::SettingsChange made;
    QVERIFY(tasks.importFrom(place("all.json"), &made).isDone());
    QCOMPARE(tasks.tasks(), QStringList(task));
    QVERIFY(tasks.takeBack(made).isDone());
    QCOMPARE(tasks.tasks(), QStringList());
    QVERIFY(tasks.setRing(task, true, first).isDone());

    // Other tasks have no key of the administrator's, so none is needed to use the shared ring.
    QVERIFY(tasks.setRing(text("Part"), true, first).isDone());
    QCOMPARE(tasks.ringOf(text("Part")).eight.at(0), text("Sketch_Line"));
    QVERIFY(tasks.setRing(text("Part"), false, first).isDone());
    QVERIFY(!SettingsFile(m_file).read().contains(text("Ring Part/Own")));
    QCOMPARE(tasks.tasks(), QStringList(task));
}

void SettingsTasksTest::badInputChangesNothing_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("says");
    QTest::newRow("no direction") << 8 << text("north") << text("DrawArc") << text("\"north\"");
    QTest::newRow("empty direction") << 8 << QString() << text("DrawArc") << text("up-right");
    QTest::newRow("a direction of eight, with four")
        << 4 << text("up-left") << text("DrawArc") << text("not one of the 4 directions");
    QTest::newRow("line end") << 8 << text("up") << text("Draw\nArc") << text("control characters");
    QTest::newRow("null") << 8 << text("up") << QString(QChar::Null) << text("control characters");
}

void SettingsTasksTest::badInputChangesNothing()
{
    QFETCH(int, scheme);
    QFETCH(QString, direction);
    QFETCH(QString, command);
    QFETCH(QString, says);
    const QByteArray before = "[GestureWidget]\nActiveScheme=" + QByteArray::number(scheme) + '\n';
    write(m_file, before);
    const Outcome outcome = tasks().bind(direction, command);
    QVERIFY(!outcome.isDone());
    QVERIFY2(outcome.complaint.contains(says), qPrintable(outcome.complaint));
    QVERIFY(!outcome.complaint.contains(QLatin1Char('\n')));
    QCOMPARE(contentOf(m_file), before);
}

void SettingsTasksTest::triggers_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("kept"); // "<refused>" when it is
    const auto row = [](const char *given, const char *kept) {
        QTest::newRow(given) << text(given) << text(kept);
    };
    row("right", "right");
    row("middle", "middle");
    row("back", "back");
    row("forward", "forward");
    row("ctrl+right", "ctrl+right");
    row("Control+Right", "ctrl+right");
    row("meta+alt+shift+ctrl+left", "ctrl+shift+alt+meta+left");
    row("default", "");
    row("left", "<refused>");
    row("", "<refused>");
    row("+", "<refused>");
    row("ctrl", "<refused>");
    row("ctrl+", "<refused>");
    row("+right", "<refused>");
    row("ctrl+ctrl+right", "<refused>");
    row("right+ctrl", "<refused>");
    row("hyper+right", "<refused>");
    row("right ", "<refused>");
}

void SettingsTasksTest::triggers()
{
    QFETCH(QString, given);
    QFETCH(QString, kept);
    write(m_file, "[Host]\nTrigger=shift+middle\n");
    const Outcome outcome = tasks().setTrigger(given);
    const QString now = SettingsFile(m_file).read().value(text("Host/Trigger"));
    if (kept == text("<refused>")) {
        QVERIFY(!outcome.isDone());
        QCOMPARE(contentOf(m_file), QByteArray("[Host]\nTrigger=shift+middle\n"));
        return;
    }
    QVERIFY(outcome.isDone());
    QCOMPARE(now, kept);
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    QCOMPARE(gesturewidget::parseTrigger(now, button, keys), !kept.isEmpty());
    QCOMPARE(gesturewidget::triggerText(button, keys), kept);
}

void SettingsTasksTest::exportAndImportAreInverse()
{
    Bindings bindings = Bindings::initial();
    bindings.enabled = false;
    bindings.scheme = 4;
    bindings.four[1] = text("with \"quotes\", \\ and \xfc");
    bindings.eight[7].clear();
    bindings.trigger = text("ctrl+right");
    SettingsFile settings(m_file);
    QVERIFY(settings.write(bindings.toSettings()));
    QVERIFY(tasks().exportTo(m_export).isDone());
    QCOMPARE(contentOf(m_export), tasks().showBindingsAsJson().output);
    const SettingsFile::Values before = SettingsFile(m_file).read();

    QVERIFY(tasks().reset().isDone());
    QVERIFY(tasks().setTrigger(text("default")).isDone());
    QVERIFY(SettingsFile(m_file).read() != before);
    const Outcome outcome = tasks().importFrom(m_export);
    QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));
    SettingsFile::Values after = SettingsFile(m_file).read();
    // Imported commands count as known, although the program has never shown them here.
    const QStringList imported = after.take(text("Host/Imported")).split(QLatin1Char('\n'));
    QStringList bound = bindings.four + bindings.eight;
    bound.removeAll(QString());
    bound.removeDuplicates();
    QCOMPARE(imported, bound);
    QCOMPARE(after, before);
}

void SettingsTasksTest::importKeepsTheOldSettings()
{
    QVERIFY(tasks().exportTo(m_export).isDone());
    const QString backup = m_file + text(".before-import");
    QVERIFY(tasks().importFrom(m_export).isDone());
    QVERIFY(!QFileInfo::exists(backup)); // there was nothing to keep

    QVERIFY(tasks().bind(text("up"), text("DrawArc")).isDone());
    const QByteArray old = contentOf(m_file);
    QVERIFY(tasks().importFrom(m_export).isDone());
    QCOMPARE(contentOf(backup), old);
    QVERIFY(contentOf(m_file) != old);

    // If the old settings cannot be kept, nothing is imported.
    QVERIFY(QFile::remove(backup));
    QVERIFY(QDir().mkpath(backup));
    QVERIFY(tasks().bind(text("up"), text("DrawArc")).isDone());
    const Outcome outcome = tasks().importFrom(m_export);
    QVERIFY2(outcome.complaint.contains(text("nothing is imported")), qPrintable(outcome.complaint));
    QCOMPARE(kept().eight.at(0), text("DrawArc"));
}

void SettingsTasksTest::importRefusesWithItsLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("says");
    const QVector<tests::BindingCase> cases = tests::bindingCases();
    for (const tests::BindingCase &row : cases) {
        if (!row.says.isEmpty())
            QTest::newRow(row.name.constData()) << row.text << row.says;
    }
}

void SettingsTasksTest::importRefusesWithItsLine()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, says);
    QVERIFY(tasks().bind(text("up"), text("DrawArc")).isDone());
    write(m_export, json);

    const QByteArray before = contentOf(m_file);
    const Outcome outcome = tasks().importFrom(m_export);
    QVERIFY(!outcome.isDone());
    QVERIFY2(outcome.complaint.contains(says), qPrintable(outcome.complaint));
    QVERIFY(outcome.complaint.startsWith(m_export));
    QVERIFY(!outcome.complaint.contains(QLatin1Char('\n')));
    QCOMPARE(contentOf(m_file), before);
    QVERIFY(!QFileInfo::exists(m_file + text(".before-import")));
}

void SettingsTasksTest::whatIsNoFileIsRefused()
{
    QVERIFY(tasks().importFrom(m_export).complaint.contains(text("there is no such file")));
    QVERIFY(tasks().importFrom(m_folder->path()).complaint.contains(text("this is not a file")));
    write(m_export, QByteArray(SettingsTasks::kMaximalImport + 1, ' '));
    QVERIFY(tasks().importFrom(m_export).complaint.contains(text("too long")));
    for (const char *nothing : {"", "[]", "7", "\"text\"", "{}"}) {
        write(m_export, nothing);
        QVERIFY2(tasks().importFrom(m_export).complaint.contains(text("line 1: ")), nothing);
    }
    QVERIFY(!QFileInfo::exists(m_file));
}

// Qt parses up to 1024 levels. With many keys in them, reading all that would take gigabytes.
void SettingsTasksTest::deepNestingIsRefusedAtOnce()
{
    QByteArray keys;
    for (int i = 0; keys.size() < 100000; ++i)
        keys += "\"" + QByteArray::number(i) + "\":0,";
    QByteArray nested;
    for (int i = 0; i < 1000; ++i)
        nested += "{\n\"key\":";
    write(m_export, nested + '{' + keys + "\"x\":0}" + QByteArray(1000, '}'));
    const Outcome outcome = tasks().importFrom(m_export);
    QCOMPARE(outcome.complaint, m_export + text(", line 9: this is nested too deeply for bindings"));
    write(m_export, QByteArray(60000, '['));
    QVERIFY(tasks().importFrom(m_export).complaint.contains(text("line 1: this is nested too deeply")));
    // Brackets inside a text do not count.
    write(m_export, "{\"a\": \"" + QByteArray(100, '{') + "\\\"" + QByteArray(100, '[') + "\"}");
    QVERIFY(tasks().importFrom(m_export).complaint.contains(text("line 1: \"a\" is not a key")));
}

// Keys that a task does not change may be changed by another program meanwhile.
void SettingsTasksTest::onlyWhatChangedIsWritten()
{
    const auto keys = [this] { return SettingsFile(m_file).read().keys(); };
    QVERIFY(tasks().setTrigger(text("middle")).isDone());
    QCOMPARE(keys(), QStringList(text("Host/Trigger")));
    QVERIFY(tasks().bind(text("up"), text("DrawArc")).isDone());
    QStringList expected; // all directions of the scheme, since a missing one would count as empty
    for (int i = 1; i <= 8; ++i)
        expected.append(text("GestureWidget/8%1").arg(i));
    QCOMPARE(keys(), expected + QStringList(text("Host/Trigger")));
    QVERIFY(tasks().bind(text("down"), text("DrawArc")).isDone());
    QCOMPARE(kept().eight.at(0), QString());
    QCOMPARE(kept().eight.at(4), text("DrawArc"));
    QCOMPARE(kept().four, Bindings::initial().four);
}

void SettingsTasksTest::whatCannotBeWrittenIsSaid()
{
    QVERIFY(QDir().mkpath(place(QStringLiteral("config/drafter.json"))));
    const QString folder = place(QStringLiteral("config/drafter.json"));
    QCOMPARE(tasks().exportTo(folder).complaint, folder + text(" cannot be written"));
    // There is a file in place of the folder of the settings.
    write(place(QStringLiteral("file")), "x");
    const QString impossible = place(QStringLiteral("file/drafter.ini"));
    SettingsTasks tasks(kProgram, impossible);
    QCOMPARE(tasks.bind(text("up"), text("DrawArc")).complaint, impossible + text(" cannot be written"));
    QCOMPARE(tasks.reset().complaint, impossible + text(" cannot be written"));
    QCOMPARE(tasks.setTrigger(text("middle")).complaint, impossible + text(" cannot be written"));
}

QTEST_GUILESS_MAIN(SettingsTasksTest)
#include "tst_settingstasks.moc"
