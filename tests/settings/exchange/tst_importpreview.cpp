// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The preview of an import, and the import itself.

#include "settings/exchange/ImportPreview.h"

#include "launcher/sheet/SheetPage.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/exchange/Exchange.h"
#include "tests/settings/support/HomeTest.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

using settings::BindingsEditor;
using settings::Exchange;
using settings::ImportPreview;
using tests::text;

class ImportPreviewTest : public tests::HomeTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        HomeTest::init();
        install(text("draw"), text("Draw"));
    }

    void showsOnlyWhatChanges()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        launcher::Bindings wanted = editor.bindings();
        wanted.enabled = false;
        wanted.scheme = 4;
        wanted.trigger = text("ctrl+right");
        wanted.eight[6] = QString();
        wanted.four[1] = text("ID_TRIM");
        ImportPreview preview(editor, wanted, {}, text("kept.json"), nullptr);
        const auto *list = preview.findChild<QTreeWidget *>(text("import_changes"));
        QStringList lines;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *line = list->topLevelItem(i);
            lines.append(line->text(0) + text(": ") + line->text(1) + text(" -> ") + line->text(2));
        }
        const QString left = editor.captionOf(editor.bindings().four.at(1));
        QCOMPARE(lines, (QStringList{text("Gestures: on -> off"), text("Directions in use: 8 -> 4"),
                                     text("A gesture starts with: Right button (usual) -> "
                                          "Ctrl + Right button"),
                                     text("Left (of 4 directions): %1 -> Trim").arg(left),
                                     text("Right (of 8 directions): Line -> nothing")}));
    }

    void showsRingsOfTasks()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        launcher::SettingsTasks tasks = editor.tasks();
        for (const char *task : {"Sketch", "Part"})
            QVERIFY(tasks.setRing(text(task), true, {}).isDone());
        launcher::Bindings other = tasks.ringOf(text("Part"));
        other.eight[0] = QString();
        const QMap<QString, launcher::Bindings> rings{
            {text("Sketch"), tasks.ringOf(text("Sketch"))}, // as it is
            {text("Part"), other},
            {text("Solid"), tasks.ringOf({})}};
        const ImportPreview preview(editor, editor.bindings(), rings, text("kept.json"), nullptr);
        const auto *list = preview.findChild<QTreeWidget *>(text("import_changes"));
        QCOMPARE(list->topLevelItemCount(), 2);
        QCOMPARE(list->topLevelItem(0)->text(0), text("Ring of Part"));
        QCOMPARE(list->topLevelItem(0)->text(1), text("its own"));
        QCOMPARE(list->topLevelItem(1)->text(0), text("Ring of Solid"));
        QCOMPARE(list->topLevelItem(1)->text(1), text("shared"));
        QCOMPARE(list->topLevelItem(1)->text(2), text("the file's"));
    }

    void nothingToImportCannotBeImported()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        const ImportPreview preview(editor, editor.bindings(), {}, text("kept.json"), nullptr);
        QCOMPARE(preview.changes(), 0);
        const auto *buttons = preview.findChild<QDialogButtonBox *>();
        const auto all = buttons->buttons();
        for (QAbstractButton *button : all)
            QCOMPARE(button->isEnabled(), buttons->buttonRole(button) != QDialogButtonBox::AcceptRole);
    }

    void importsAfterAYesOnly_data()
    {
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void importsAfterAYesOnly()
    {
        QFETCH(bool, isAccepted);
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.tasks().exportTo(place("kept.json")).isDone());
        QVERIFY(editor.unbind(6));
        QWidget window;
        Exchange exchange(&window);
        QTimer::singleShot(0, &window, [isAccepted] {
            auto *preview = qobject_cast<ImportPreview *>(QApplication::activeModalWidget());
            QVERIFY(preview);
            QCOMPARE(preview->changes(), 1);
            isAccepted ? preview->accept() : preview->reject();
        });
        exchange.importFile(editor, place("kept.json"));
        QCOMPARE(editor.bindings().eight.at(6), isAccepted ? text("ID_LINE") : QString());
    }

    void aSheetIsPrintedToAFile_data()
    {
        QTest::addColumn<QString>("ring");
        QTest::addColumn<QByteArray>("title");
        QTest::newRow("for all tasks") << QString() << QByteArray("Mouse gestures in Draw\n");
        QTest::newRow("of a task") << text("Sketching")
                                   << QByteArray("Mouse gestures in Draw, The Sketching\n");
        QTest::newRow("of a task that was never seen")
            << text("Modelling") << QByteArray("Mouse gestures in Draw, Modelling\n");
    }
    void aSheetIsPrintedToAFile()
    {
        QFETCH(QString, ring);
        QFETCH(QByteArray, title);
        writeProfile(text("draw"));
        remember(text("draw"), {text("Sketching")});
        BindingsEditor editor(subject("draw"), text("Draw"));
        for (const char *task : {"Sketching", "Modelling"})
            QVERIFY(editor.setOwnRing(text(task), true));
        editor.setRing(ring);
        QCOMPARE(editor.ring(), ring);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(place("ring.pdf"));
        const launcher::SheetContent content = Exchange::sheetOf(editor);
        QVERIFY(sheet::setUpPage(printer));
        QVERIFY(sheet::drawPage(content, printer, printer.resolution()));
        QVERIFY(tests::contentOf(place("ring.pdf")).startsWith("%PDF"));
        QProcess reader;
        reader.start(text("/usr/bin/pdftotext"), {text("-layout"), place("ring.pdf"), text("-")});
        QVERIFY(reader.waitForFinished());
        const QByteArray words = reader.readAllStandardOutput();
        QVERIFY2(words.contains(title), words.constData());
    }

    // An import is about all rings, so the export that it reads is too, whichever ring is shown.
    void anExportHoldsAllRings()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.setOwnRing(text("Sketching"), true));
        QVERIFY(editor.unbind(6));
        QCOMPARE(editor.ring(), text("Sketching"));
        QWidget window;
        Exchange exchange(&window);
        QSignalSpy done(&exchange, &Exchange::done);
        exchange.exportFile(editor, place("kept.json"));
        QCOMPARE(done.count(), 1);
        launcher::Bindings shared;
        QMap<QString, launcher::Bindings> rings;
        QVERIFY(editor.tasks().readImport(place("kept.json"), shared, rings).isDone());
        QCOMPARE(shared.eight.at(6), text("ID_LINE"));
        QCOMPARE(rings.keys(), QStringList(text("Sketching")));
        QCOMPARE(rings.value(text("Sketching")).eight.at(6), QString());
    }

    void printsAfterAYesOnly_data() { importsAfterAYesOnly_data(); }
    void printsAfterAYesOnly()
    {
        QFETCH(bool, isAccepted);
        const BindingsEditor editor(subject("draw"), text("Draw"));
        QWidget window;
        Exchange exchange(&window);
        QSignalSpy done(&exchange, &Exchange::done);
        QTimer::singleShot(0, &window, [this, isAccepted] {
            auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->printer()->docName(), text("Mouse gestures in Draw"));
            dialog->printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog->printer()->setOutputFileName(place("sheet.pdf"));
            dialog->done(isAccepted ? QDialog::Accepted : QDialog::Rejected);
        });
        exchange.print(editor);
        QCOMPARE(done.count(), isAccepted ? 1 : 0);
        QCOMPARE(tests::contentOf(place("sheet.pdf")).startsWith("%PDF"), isAccepted);
    }

    void resetsAfterAYesOnly_data() { importsAfterAYesOnly_data(); }
    void resetsAfterAYesOnly()
    {
        QFETCH(bool, isAccepted);
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.unbind(6));
        QWidget window;
        Exchange exchange(&window);
        QTimer::singleShot(0, &window, [isAccepted] {
            const auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(question);
            QVERIFY2(question->text().contains(text("Draw")), qPrintable(question->text()));
            const auto buttons = question->buttons();
            for (QAbstractButton *button : buttons) {
                if ((question->buttonRole(button) == QMessageBox::AcceptRole) == isAccepted)
                    button->click();
            }
        });
        exchange.reset(editor);
        QCOMPARE(editor.bindings().eight.at(6), isAccepted ? text("ID_LINE") : QString());
    }

    void aFileWithAFaultIsNamedAndChangesNothing()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        write("kept.json", "{\n  \"version\": 1,\n");
        QWidget window;
        Exchange exchange(&window);
        QSignalSpy failed(&exchange, &Exchange::failed);
        exchange.importFile(editor, place("kept.json"));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(text("kept.json, line")));
        QVERIFY(!QFile::exists(settingsFile(text("draw"))));
    }
};

QTEST_MAIN(ImportPreviewTest)
#include "tst_importpreview.moc"
