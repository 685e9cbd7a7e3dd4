// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Changing the bindings of a program, with undo and with others who write at the same time.

#include "settings/editing/BindingsEditor.h"

#include "tests/settings/support/HomeTest.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <unistd.h>

using settings::BindingsEditor;
using tests::text;

class BindingsEditorTest : public tests::HomeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        HomeTest::init();
        install(text("draw"), text("Draw"));
    }

    void writesOnlyWhatChanged()
    {
        write(settingsFile(text("draw")), "[GestureWidget]\n81=A\n82=B\n83=\n84=\n85=\n86=\n87=\n88=\n"
                                          "Other=kept\n");
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.bind(2, text("C")));
        QCOMPARE(editor.bindings().eight.at(2), text("C"));
        QCOMPARE(stored(text("draw"), text("83")), text("C"));
        QCOMPARE(stored(text("draw"), text("Other")), text("kept"));
        QCOMPARE(stored(text("draw"), text("41")), text("<none>"));
        QCOMPARE(stored(text("draw"), text("ActiveScheme")), text("<none>"));
    }

    void aCommandHasOneDirection()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.bind(0, text("ID_LINE")));
        QCOMPARE(editor.bindings().eight.at(0), text("ID_LINE"));
        QCOMPARE(editor.bindings().eight.at(6), QString());
        QCOMPARE(stored(text("draw"), text("87")), QString());
    }

    void anExchangeMovesBothCommands()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        const QStringList before = editor.bindings().eight;
        QVERIFY(editor.swap(0, 6));
        QStringList wanted = before;
        wanted[0] = before.at(6);
        wanted[6] = before.at(0);
        QCOMPARE(editor.bindings().eight, wanted);
        QVERIFY(editor.unbind(6));
        QVERIFY(editor.swap(0, 6)); // with an empty direction
        wanted[6] = wanted.at(0);
        wanted[0].clear();
        QCOMPARE(editor.bindings().eight, wanted);
    }

    void eachChangeIsTakenBackAndMadeAgain_data()
    {
        QTest::addColumn<int>("what");
        QTest::newRow("bind") << 0;
        QTest::newRow("unbind") << 1;
        QTest::newRow("swap") << 2;
        QTest::newRow("scheme") << 3;
        QTest::newRow("trigger") << 4;
        QTest::newRow("off") << 5;
        QTest::newRow("reset") << 6;
        QTest::newRow("import") << 7;
    }
    void eachChangeIsTakenBackAndMadeAgain()
    {
        QFETCH(int, what);
        BindingsEditor editor(subject("draw"), text("Draw"));
        const QString exported = place("kept.json");
        QVERIFY(editor.tasks().exportTo(exported).isDone());
        QVERIFY(editor.bind(4, text("FIRST")));
        const auto before = editor.bindings().toSettings();
        switch (what) {
        case 0:
            QVERIFY(editor.bind(0, text("ID_LINE")));
            break;
        case 1:
            QVERIFY(editor.unbind(0));
            break;
        case 2:
            QVERIFY(editor.swap(0, 6));
            break;
        case 3:
            QVERIFY(editor.setScheme(4));
            break;
        case 4:
            QVERIFY(editor.setTrigger(text("ctrl+right")));
            break;
        case 5:
            QVERIFY(editor.setEnabled(false));
            break;
        case 6:
            QVERIFY(editor.reset());
            break;
        default:
            QVERIFY(editor.importFrom(exported));
        }
        const auto after = editor.bindings().toSettings();
        QVERIFY(before != after);
        QCOMPARE(editor.undoStack()->count(), 2);
        editor.undoStack()->undo();
        QCOMPARE(editor.bindings().toSettings(), before);
        editor.undoStack()->redo();
        QCOMPARE(editor.bindings().toSettings(), after);
        QCOMPARE(editor.undoStack()->count(), 2);
    }

    void whatIsAlreadySoIsNoChange()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.bind(6, text("ID_LINE")));
        QCOMPARE(editor.undoStack()->count(), 0);
        QVERIFY(!QFile::exists(settingsFile(text("draw"))));
    }

    void undoLeavesWhatAnotherHasChanged()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        BindingsEditor other(subject("draw"), text("Draw"));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        QVERIFY(editor.bind(0, text("MINE")));
        QVERIFY(other.bind(0, text("THEIRS")));
        editor.undoStack()->undo();
        QCOMPARE(failed.count(), 1);
        QVERIFY(!failed.at(0).at(0).toString().isEmpty());
        QCOMPARE(stored(text("draw"), text("81")), text("THEIRS"));
        QCOMPARE(editor.undoStack()->count(), 0);
    }

    void twoEditorsKeepEachOthersChanges()
    {
        BindingsEditor one(subject("draw"), text("Draw"));
        BindingsEditor other(subject("draw"), text("Draw"));
        QVERIFY(one.bind(0, text("ONE")));
        QVERIFY(other.bind(1, text("OTHER")));
        QTRY_COMPARE(one.bindings().eight.at(1), text("OTHER"));
        QCOMPARE(one.bindings().eight.at(0), text("ONE"));
        QCOMPARE(other.bindings().eight.at(0), text("ONE"));
        one.undoStack()->undo();
        QCOMPARE(stored(text("draw"), text("82")), text("OTHER"));
        QCOMPARE(stored(text("draw"), text("81")), text("ID_ZOOM_BOUNDS"));
    }

    void aDirectionOfAnotherSchemeIsRefused()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        BindingsEditor other(subject("draw"), text("Draw"));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        QVERIFY(other.setScheme(4));
        QVERIFY(!editor.bind(6, text("X"))); // with four there is no such direction
        QCOMPARE(failed.count(), 1);
        QCOMPARE(editor.bindings().scheme, 4);
    }

    void aTaskHasARingOfItsOwn()
    {
        const QByteArray ring = "81=A\n82=\n83=\n84=\n85=\n86=\n87=\n88=\n";
        write(settingsFile(text("draw")),
              "[GestureWidget]\n" + ring + "[Ring Sketching]\nOwn=Sketching\n" + ring);
        BindingsEditor editor(subject("draw"), text("Draw"));
        QCOMPARE(editor.rings(), QStringList{text("Sketching")});
        editor.setRing(text("Sketching"));
        QVERIFY(editor.bind(6, text("B")));
        QCOMPARE(editor.bindings().eight.at(6), text("B"));
        QCOMPARE(stored(text("draw"), text("87")), QString());
        editor.setRing({});
        QCOMPARE(editor.bindings().eight.at(6), QString());
        editor.undoStack()->undo(); // still about the task's ring
        editor.setRing(text("Sketching"));
        QCOMPARE(editor.bindings().eight.at(6), QString());
        editor.undoStack()->redo();
        QCOMPARE(editor.bindings().eight.at(6), text("B"));

        // Somebody lets the task use the shared ring again.
        write(settingsFile(text("draw")), "[GestureWidget]\n" + ring + "[Ring Sketching]\nOwn=\n");
        QVERIFY(QFile::remove(settingsFile(text("draw")) + text(".bak")));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        QVERIFY(!editor.bind(6, text("C")));
        QCOMPARE(failed.count(), 1);
        QCOMPARE(editor.ring(), QString());
        QCOMPARE(stored(text("draw"), text("87")), QString());
    }

    void aTaskGetsARingOfItsOwnAndUsesTheSharedOneAgain()
    {
        writeProfile(text("draw"));
        remember(text("draw"), {text("Modelling"), text("Rendering")}, text("Task"));
        remember(text("draw"), {text("ID_LINE")}, text("Draw"));
        BindingsEditor editor(subject("draw"), text("Draw"));
        QCOMPARE(editor.tasksOfProgram(), // by caption: "Sketching", "The Modelling", ...
                 (QStringList{text("Sketching"), text("Modelling"), text("Rendering")}));
        QVERIFY(editor.setOwnRing(text("Sketching"), true));
        QCOMPARE(editor.rings(), QStringList{text("Sketching")});
        QCOMPARE(editor.ring(), text("Sketching"));
        QCOMPARE(editor.bindings().eight.at(6), text("Sketch_Line"));
        QVERIFY(editor.bind(0, text("KEPT")));
        QVERIFY(editor.setOwnRing(text("Sketching"), false));
        QCOMPARE(editor.rings(), QStringList());
        QCOMPARE(editor.ring(), QString());
        QCOMPARE(editor.undoStack()->count(), 3);

        editor.undoStack()->undo(); // its own ring, as it was
        QCOMPARE(editor.rings(), QStringList{text("Sketching")});
        editor.setRing(text("Sketching"));
        QCOMPARE(editor.bindings().eight.at(0), text("KEPT"));
        editor.undoStack()->undo();
        QCOMPARE(editor.bindings().eight.at(0), text("ID_ZOOM_BOUNDS"));
        editor.undoStack()->undo();
        QCOMPARE(editor.rings(), QStringList());
        QCOMPARE(editor.ring(), QString());
        editor.undoStack()->redo();
        QCOMPARE(editor.rings(), QStringList{text("Sketching")});
        QCOMPARE(editor.undoStack()->count(), 3);

        QVERIFY(editor.setOwnRing(text("Sketching"), true)); // it has one
        QCOMPARE(editor.undoStack()->count(), 3);
    }

    void aProgramWithoutTasksHasNone()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        QCOMPARE(editor.tasksOfProgram(), QStringList());
    }

    void aRingThatCannotBeKeptIsSaid()
    {
        writeProfile(text("draw"));
        write(place("config/gesturewidget"), "a file where the folder should be");
        BindingsEditor editor(subject("draw"), text("Draw"));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        QVERIFY(!editor.setOwnRing(text("Sketching"), true));
        QCOMPARE(failed.count(), 1);
        QCOMPARE(editor.rings(), QStringList());
        QCOMPARE(editor.ring(), QString());
        QCOMPARE(editor.undoStack()->count(), 0);
    }

    void aRunningProgramTakesItsTriggerAtItsNextStart()
    {
        installSelfRunning(text("running"), text("Running"));
        BindingsEditor editor(subject("running"), text("Running"));
        QVERIFY(!editor.isTriggerPending());
        QVERIFY(editor.setTrigger(text("middle")));
        QVERIFY(editor.isTriggerPending());
        QVERIFY(editor.setTrigger(text("right"))); // as the program has it
        QVERIFY(!editor.isTriggerPending());
        editor.undoStack()->undo();
        QVERIFY(editor.isTriggerPending());
        editor.undoStack()->undo();
        QVERIFY(!editor.isTriggerPending());
    }

    void aProgramThatDoesNotRunHasNothingPending()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.setTrigger(text("middle")));
        QVERIFY(!editor.isTriggerPending());
    }

    void newCommandsOfTheProgramAreNoticed()
    {
        remember(text("draw"), {text("A")});
        BindingsEditor editor(subject("draw"), text("Draw"));
        QSignalSpy changed(&editor, &BindingsEditor::commandsChanged);
        remember(text("draw"), {text("B")});
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(editor.captionOf(text("B")), text("The B"));
    }

    void damagedSettingsAreRestoredAndSaid()
    {
        BindingsEditor first(subject("draw"), text("Draw"));
        QVERIFY(first.bind(0, text("KEPT")));
        write(settingsFile(text("draw")), QByteArray("[GestureWid"));
        BindingsEditor editor(subject("draw"), text("Draw"));
        QCOMPARE(editor.bindings().eight.at(0), text("KEPT"));
        QVERIFY(editor.notice().contains(text("draw.ini")));
        QVERIFY(QFile::exists(settingsFile(text("draw")) + text(".damaged")));
    }

    void damagedSettingsWithoutACopyAreSaid()
    {
        write(settingsFile(text("draw")), QByteArray(100, '\0'));
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.notice().contains(text("draw.ini")));
    }

    void aHomeThatCannotBeWrittenIsSaidAndLosesNothing()
    {
        if (::geteuid() == 0)
            write(place("config/gesturewidget"), "a file where the folder should be");
        else
            QVERIFY(QFile::setPermissions(place("config"), QFile::ReadOwner | QFile::ExeOwner));
        BindingsEditor editor(subject("draw"), text("Draw"));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        const auto before = editor.bindings().toSettings();
        QVERIFY(!editor.bind(0, text("X")));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(text("draw.ini")));
        QCOMPARE(editor.bindings().toSettings(), before);
        QCOMPARE(editor.undoStack()->count(), 0);
        QFile::setPermissions(place("config"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void theLeftButtonAloneIsRefused()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QSignalSpy failed(&editor, &BindingsEditor::failed);
        QVERIFY(!editor.setTrigger(text("left")));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(text("Hold Ctrl, Shift, Alt or Meta")));
        QCOMPARE(editor.trigger(), text("right"));
    }

    void commandsThatWereNeverShownHaveWords()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QCOMPARE(editor.captionOf(text("ID_ZOOM_BOUNDS")), text("Zoom to Fit"));
        QCOMPARE(editor.captionOf(text("ID_SOMETHING_ELSE")), text("Something else"));
        QCOMPARE(editor.captionOf(text("File/Open As")), text("Open As"));
        remember(text("draw"), {text("ID_LINE")});
        editor.reload();
        QCOMPARE(editor.captionOf(text("ID_LINE")), text("The ID_LINE"));
    }
};

QTEST_MAIN(BindingsEditorTest)
#include "tst_bindingseditor.moc"
