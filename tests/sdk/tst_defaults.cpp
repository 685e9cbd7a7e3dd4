// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The defaults of the interfaces, and the process-wide accessors.

#include "sdk/chx/CHxCommand.h"
#include "sdk/chx/CHxDialog.h"
#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManagerReactor.h"
#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/chx/CHxString.h"
#include "sdk/chx/CHxTracker.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "sdk/od/OdStaticRxObject.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

namespace {

class Command : public OdStaticRxObject<CHxCommand>
{
public:
    [[nodiscard]] OdString globalName() const override { return OdString(L"_TEST"); }
    [[nodiscard]] OdString localName() const override { return OdString(L"TEST"); }
    int Execute(CHxCommandContext *context) override
    {
        ++runs;
        given = context;
        return kNormal;
    }

    int runs = 0;
    CHxCommandContext *given = nullptr;
};

class HelpfulCommand : public Command
{
public:
    [[nodiscard]] int GetHelpId() const override { return 17; }
};

class HelpfulDialog : public CHxDialog
{
public:
    HelpfulDialog()
        : CHxDialog(nullptr, false, {})
    {
    }
    [[nodiscard]] int GetHelpId() const override { return 23; }
};

class Context : public OdStaticRxObject<CHxCommandContext>
{
};

class ForeignContext : public OdStaticRxObject<OdEdCommandContext>
{
public:
    ForeignContext() = default;
};

class Tracker : public CHxTracker
{
public:
    void Update(CHxTrackerContext *, CHxHitTestInfo *) override { }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return false; }
    bool DoAction(const CHxHitTestInfo *) override { return false; }
};

class DocumentReactor : public CHxDocumentManagerReactor
{
};

class EditorReactor : public CHxEditorReactor
{
};

} // namespace

class TestDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    // The derived classes override nothing. Each call must link and do nothing.
    void observersDoNothing()
    {
        tests::FakeHost host;
        tests::FakeDocument *document = host.documents.open();
        host.log.clear();

        DocumentReactor documents;
        documents.DocumentCreateStarted(document);
        documents.DocumentCreated(document);
        documents.DocumentToBeDestroyed(document);
        documents.DocumentDestroyed(document, CHxString("path"));
        documents.DatabaseAttached(document);
        documents.DatabaseDetached(document);
        documents.DocumentToBeActivated(document);
        documents.DocumentToBeDeactivated(document);
        documents.DocumentActivated(document);
        documents.DocumentCreateCanceled(document);
        documents.DocumentBecameCurrent(document);
        documents.DocumentActivationModified(true);
        documents.DocumentPreOpen(document, CHxString("path"), 0, 0);

        EditorReactor editor;
        editor.mainFrameCreated(nullptr);
        editor.mainFrameDestroyed(nullptr);
        editor.selectionSetCreated(nullptr);
        editor.selectionSetDestroyed(nullptr);
        editor.beginSaveEx(nullptr, CHxString("path"), CHxFileData::kDrawing, 0);
        editor.saveComplete(OdString());
        editor.openComplete(OdString());
        editor.viewChanged();
        editor.commandAdded(nullptr);
        editor.commandWillBeRemoved(nullptr);
        editor.commandWillStart(nullptr);
        editor.commandEnded(nullptr);
        editor.lispWillStart(OdString());
        editor.lispEnded();

        QCOMPARE(host.log.calls, QStringList());
        QVERIFY(document->input.trackers.empty());
    }

    void trackerDefaults()
    {
        Tracker tracker;
        QCOMPARE(tracker.CheckRegenAbort(nullptr), false);
        QVERIFY(tracker.GetName().isEmpty());
        tracker.OnMainSelectionSetChanged(nullptr);
    }

    void commandDefaults()
    {
        Command command;
        QVERIFY(!command.groupName().isEmpty());
        QCOMPARE(command.module(), nullptr);
        QCOMPARE(command.flags(), 0L);
        QCOMPARE(command.GetHelpId(), 0);
        command.undefine(true);
        QCOMPARE(CHxCommand::kNormal, 5100);
    }

    void executeHandsTheHostsContextOn()
    {
        Command command;
        Context context;
        command.execute(&context);
        QCOMPARE(command.runs, 1);
        QCOMPARE(command.given, &context);

        command.execute(nullptr);
        QCOMPARE(command.runs, 2);
        QCOMPARE(command.given, nullptr);

        ForeignContext foreign;
        command.execute(&foreign);
        QCOMPARE(command.runs, 3);
        QCOMPARE(command.given, nullptr);
    }

    void helpGoesToTheHost()
    {
        tests::FakeHost host;
        HelpfulCommand().Help();
        HelpfulDialog().Help();
        QCOMPARE(host.log.calls, (QStringList{QStringLiteral("help 17"), QStringLiteral("help 23")}));

        host.log.clear();
        host.setPresent(false);
        HelpfulCommand().Help();
        HelpfulDialog().Help();
        QCOMPARE(host.log.calls, QStringList());
    }

    void dialogFlags()
    {
        const CHxDialog plain(nullptr, false, {});
        QCOMPARE(plain.windowType(), Qt::Dialog);
        QVERIFY(plain.windowFlags() & Qt::WindowCloseButtonHint);

        const CHxDialog kept(nullptr, true, Qt::Tool | Qt::FramelessWindowHint);
        QCOMPARE(kept.windowType(), Qt::Tool);
        QVERIFY(kept.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(!(kept.windowFlags() & Qt::WindowCloseButtonHint));
    }

    void dialogResults()
    {
        CHxDialog dialog(nullptr, false, {});
        QCOMPARE(dialog.GetHelpId(), 0);
        QTimer::singleShot(0, &dialog, &CHxDialog::accept);
        QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Accepted));
        QTimer::singleShot(0, &dialog, &CHxDialog::reject);
        QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Rejected));
        QTimer::singleShot(0, &dialog, [&dialog] { dialog.done(7); });
        QCOMPARE(dialog.exec(), 7);
    }

    void servicesAreProcessWide()
    {
        QCOMPARE(GetHxSystemServices(), nullptr);
        QVERIFY(!odedRegCmds());
        QVERIFY(!odedEditor());
        {
            tests::FakeHost host;
            QCOMPARE(GetHxSystemServices(), static_cast<CHxSystemServices *>(&host));
            {
                const OdEdCommandStackPtr stack = odedRegCmds();
                const OdEditorPtr editor = odedEditor();
                QCOMPARE(stack.get(), static_cast<OdEdCommandStack *>(&host.stack));
                QCOMPARE(editor.get(), static_cast<OdEditor *>(&host.editor));
                QCOMPARE(host.stack.references, 1L);
                QCOMPARE(host.editor.references, 1L);
            }
            QCOMPARE(host.stack.references, 0L);
            QCOMPARE(host.editor.references, 0L);
        }
        QCOMPARE(GetHxSystemServices(), nullptr);
        QVERIFY(!odedRegCmds());
        QVERIFY(!odedEditor());
    }

    void activeDocument()
    {
        QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
        tests::FakeHost host;
        QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
        CHxDocument *document = host.documents.open();
        QCOMPARE(ACTIVE_DOCUMENT(), document);
        host.hasDocumentManager = false;
        QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
    }
};

QTEST_MAIN(TestDefaults)
#include "tst_defaults.moc"
