// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The trigger is chosen from the list, or recorded.

#include "settings/trigger/TriggerPanel.h"

#include "host/files/TriggerText.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/trigger/TriggerField.h"
#include "settings/trigger/TriggerWords.h"
#include "tests/settings/support/HomeTest.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QtTest>
#include <QWheelEvent>

using settings::BindingsEditor;
using settings::TriggerPanel;
using tests::text;

class TriggerPanelTest : public tests::HomeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        HomeTest::init();
        install(text("draw"), text("Draw"));
    }

    void words_data()
    {
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<QString>("words");
        QTest::newRow("a button") << text("middle") << text("Middle button");
        QTest::newRow("keys") << text("ctrl+shift+left") << text("Ctrl + Shift + Left button");
        QTest::newRow("all keys") << text("alt+meta+forward") << text("Alt + Meta + Forward button");
        QTest::newRow("something else") << text("wheel") << text("wheel");
    }
    void words()
    {
        QFETCH(QString, trigger);
        QTEST(settings::triggerInWords(trigger), "words");
    }

    void everyButtonHasWords()
    {
        const QStringList names = gesturewidget::buttonNames();
        for (const QString &name : names)
            QCOMPARE(settings::triggerInWords(name).toLower(), name + text(" button"));
    }

    void theListShowsWhatCounts()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        const auto *list = panel.findChild<QComboBox *>(text("trigger_list"));
        panel.showTrigger(editor);
        QCOMPARE(list->currentText(), text("Right button (usual)"));
        QVERIFY(editor.setTrigger(text("shift+alt+back"))); // none of the common ones
        panel.showTrigger(editor);
        QCOMPARE(list->currentText(), text("Shift + Alt + Back button"));
        QVERIFY(editor.setTrigger(text("default")));
        panel.showTrigger(editor);
        QCOMPARE(list->currentIndex(), 0);
    }

    void triggersThatTheProgramUsesAreMarked()
    {
        writeProfile(text("draw"));
        BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        panel.showTrigger(editor);
        const auto *list = panel.findChild<QComboBox *>(text("trigger_list"));
        const auto *note = panel.findChild<QLabel *>(text("trigger_note"));
        QCOMPARE(list->itemText(list->findData(text("middle"))), text("Middle button (Draw uses it)"));
        QCOMPARE(list->itemText(list->findData(text("back"))), text("Back button"));
        QCOMPARE(note->text(), QString());
        QVERIFY(editor.setTrigger(text("middle")));
        panel.showTrigger(editor);
        QVERIFY2(note->text().startsWith(text("Draw uses this drag itself.")), qPrintable(note->text()));
        QCOMPARE(QAccessible::queryAccessibleInterface(const_cast<QComboBox *>(list))
                     ->text(QAccessible::Description),
                 note->text());
    }

    void theFieldStaysUnderThePointer()
    {
        writeProfile(text("draw"));
        BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        panel.setFixedWidth(440);
        panel.showTrigger(editor);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        const int height = panel.layout()->heightForWidth(panel.width());
        QVERIFY(editor.setTrigger(text("middle")));
        panel.showTrigger(editor);
        QVERIFY(!panel.findChild<QLabel *>(text("trigger_note"))->text().isEmpty());
        QCOMPARE(panel.layout()->heightForWidth(panel.width()), height);
    }

    // The host found that the program needs the right button.
    void theRightButtonIsMarkedWhereAnotherTriggerIsUsual()
    {
        write(settingsFile(text("draw")), "[Host]\nUsualTrigger=ctrl+right\n");
        const BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        panel.showTrigger(editor);
        const auto *list = panel.findChild<QComboBox *>(text("trigger_list"));
        QCOMPARE(list->itemText(0), text("Ctrl + Right button (usual)"));
        QCOMPARE(list->itemText(list->findData(text("right"))), text("Right button (Draw uses it)"));
    }

    void aRunningProgramIsSaidToChangeLater()
    {
        installSelfRunning(text("running"), text("Running"));
        BindingsEditor editor(subject("running"), text("Running"));
        TriggerPanel panel;
        panel.showTrigger(editor);
        const auto *note = panel.findChild<QLabel *>(text("trigger_note"));
        QCOMPARE(note->text(), QString());
        QVERIFY(editor.setTrigger(text("middle")));
        panel.showTrigger(editor);
        QVERIFY2(note->text().contains(text("next start")), qPrintable(note->text()));
        QVERIFY(editor.setTrigger(text("default")));
        panel.showTrigger(editor);
        QCOMPARE(note->text(), QString());
    }

    void aChoiceIsWanted()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        panel.showTrigger(editor);
        QSignalSpy wanted(&panel, &TriggerPanel::wanted);
        auto *list = panel.findChild<QComboBox *>(text("trigger_list"));
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(wanted, (QList<QVariantList>{{text("middle")}}));
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(wanted.at(1), QVariantList{text("default")});
    }

    void theWheelChangesNothing()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        TriggerPanel panel;
        panel.showTrigger(editor);
        panel.show();
        QSignalSpy wanted(&panel, &TriggerPanel::wanted);
        auto *list = panel.findChild<QComboBox *>(text("trigger_list"));
        list->setFocus();
        QWheelEvent wheel({5, 5}, list->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(list, &wheel);
        QCOMPARE(wanted.count(), 0);
        QCOMPARE(list->currentIndex(), 0);
    }

    void theFieldRecords_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("keys");
        QTest::addColumn<QString>("trigger");
        QTest::newRow("right") << int(Qt::RightButton) << int(Qt::NoModifier) << text("right");
        QTest::newRow("ctrl+left") << int(Qt::LeftButton) << int(Qt::ControlModifier)
                                   << text("ctrl+left");
        QTest::newRow("forward") << int(Qt::ForwardButton) << int(Qt::NoModifier) << text("forward");
    }
    void theFieldRecords()
    {
        QFETCH(int, button);
        QFETCH(int, keys);
        QFETCH(QString, trigger);
        TriggerPanel panel;
        panel.show();
        QSignalSpy wanted(&panel, &TriggerPanel::wanted);
        auto *field = panel.findChild<settings::TriggerField *>();
        QTest::mousePress(field, static_cast<Qt::MouseButton>(button), Qt::KeyboardModifiers(keys));
        QTest::mouseRelease(field, static_cast<Qt::MouseButton>(button), Qt::KeyboardModifiers(keys));
        QCOMPARE(wanted, (QList<QVariantList>{{trigger}}));
    }

    void screenReadersReadIt()
    {
        TriggerPanel panel;
        for (const char *name : {"trigger_list", "trigger_field"}) {
            auto *widget = panel.findChild<QWidget *>(text(name));
            QVERIFY(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty());
        }
    }
};

QTEST_MAIN(TriggerPanelTest)
#include "tst_triggerpanel.moc"
