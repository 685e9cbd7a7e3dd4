// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Which tasks of a program can have a ring of their own.

#include "launcher/settings/ProgramSettings.h"

#include "tests/support/FolderTest.h"

#include <QtTest>

using gesturewidget::RememberedCommand;
using launcher::KnownCommands;
using launcher::ProgramSettings;
using launcher::SettingsTasks;
using tests::text;

class ProgramSettingsTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void tasksAreTheEntriesBesideTheOneOfTheProfile();
    void aTaskOfAToolBarTellsNothing();

private:
    [[nodiscard]] QStringList tasks(const QVector<RememberedCommand> &shown) const
    {
        gesturewidget::ProgramProfile profile;
        profile.taskActions = QStringList{text("NoBench"), text("PartBench")};
        profile.taskBindings.insert(text("StartBench"), {});
        profile.taskBindings.insert(text("PartBench"), {});
        const KnownCommands commands(shown, {});
        const ProgramSettings settings{profile, text("right"), commands,
                                       SettingsTasks(text("drafter"), place("drafter.ini"), commands)};
        QStringList found = settings.tasksOfProgram();
        found.sort();
        return found;
    }
    static RememberedCommand command(const char *identifier, const char *menu, const char *submenu,
                                     bool isInToolBar = false)
    {
        RememberedCommand command;
        command.identifier = text(identifier);
        command.caption = text(identifier);
        command.group = text(menu);
        if (*submenu)
            command.way = QStringList(text(submenu));
        command.isInToolBar = isInToolBar;
        return command;
    }
};

// Those for which the profile has bindings are tasks in every case.
void ProgramSettingsTest::tasksAreTheEntriesBesideTheOneOfTheProfile()
{
    const QStringList ofProfile{text("PartBench"), text("StartBench")};
    QCOMPARE(tasks({}), ofProfile);
    QCOMPARE(tasks({command("SketchBench", "View", "Workbench"),
                    command("PartBench", "View", "Workbench"), command("Zoom", "View", ""),
                    command("Fit", "View", "Zoom"), command("Other", "Window", "Workbench"),
                    command("MeshBench", "View", "Workbench", true)}),
             (QStringList{text("PartBench"), text("SketchBench"), text("StartBench")}));
}

void ProgramSettingsTest::aTaskOfAToolBarTellsNothing()
{
    QCOMPARE(tasks({command("PartBench", "View", "", true), command("Zoom", "View", "")}),
             (QStringList{text("PartBench"), text("StartBench")}));
}

QTEST_GUILESS_MAIN(ProgramSettingsTest)
#include "tst_programsettings.moc"
