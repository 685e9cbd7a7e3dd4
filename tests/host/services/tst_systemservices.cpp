// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandStack.h"
#include "host/files/ProgramProfile.h"
#include "host/services/HelpGuide.h"
#include "host/services/HostEditor.h"
#include "host/services/SystemServices.h"
#include "sdk/chx/CHxApplication.h"
#include "sdk/chx/CHxMainFrame.h"
#include "sdk/chx/CHxProfileStore.h"
#include "sdk/chx/CHxTextOutput.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandItemCollection.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/ScriptedCommand.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QFile>
#include <QIcon>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using gesturewidget::SystemServices;
using tests::DraftWindow;

class ServicesCommandEdit : public QLineEdit
{
    Q_OBJECT
};

class SystemServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        tests::failOnWarnings();
        QCoreApplication::setApplicationName(QStringLiteral("drafter"));
    }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<DraftWindow>();
        m_window->statusBar();
        m_guide.files.clear();
        m_services = make(m_window.get());
    }
    void cleanup()
    {
        m_services.reset();
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void everythingIsThere();
    void applicationAndFrameAreGivenOutOnceSet();
    void commandsRunFromEverywhere();
    void bindingsAreKeptInTheGivenFile();
    void settingsReadAfterTheCommandsAreOfOneState();
    void largeIconsBeginAt32Pixels_data();
    void largeIconsBeginAt32Pixels();
    void namesOfTheProgram();
    void messagesAreAnswered_data();
    void messagesAreAnswered();
    void aMessageMayLoseItsWindow();
    void aMessageIsPlainText();
    void aMessageBelongsToTheDialogThatIsOpen();
    void helpOpensTheGuide_data();
    void helpOpensTheGuide();
    void missingHelpIsSaid();
    void theGuideIsLookedForAboveTheLibrary();
    void buttonImagesAreOffered_data();
    void buttonImagesAreOffered();
    void theWindowMayGoFirst();
    void withoutAWindowAllIsThere();

private:
    std::unique_ptr<SystemServices> make(QMainWindow *window)
    {
        gesturewidget::ProgramProfile profile;
        profile.wellKnownCommands.insert(QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")});
        profile.toolsMenu = QStringLiteral("drawMenu");
        profile.commandLineClass = QStringLiteral("ServicesCommandEdit");
        return std::make_unique<SystemServices>(
            window, profile, &m_documents, m_folder->filePath(QStringLiteral("drafter.ini")), m_guide);
    }
    // Calls `how` with the next message box that opens.
    static void answer(const std::function<void(QMessageBox *)> &how)
    {
        QTimer::singleShot(0, qApp, [how] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            how(box);
        });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DraftWindow> m_window;
    tests::StubDocuments m_documents;
    gesturewidget::HelpGuide m_guide; // make() passes it on
    std::unique_ptr<SystemServices> m_services;
};

void SystemServicesTest::everythingIsThere()
{
    QCOMPARE(m_services->GetDocumentManager(), &m_documents);
    QVERIFY(m_services->GetTextOutput());
    QVERIFY(m_services->GetProfileStore());
    QVERIFY(m_services->GetUIManager());
    QVERIFY(m_services->GetUICommandManager());
    QVERIFY(m_services->GetMenuItems());
    QCOMPARE(m_services->GetMenuItems()->GetCount(), 1);
    QCOMPARE(m_services->GetMenuItems()->GetItem(0)->GetSubItems()->GetCount(), 3);
    QVERIFY(!m_services->GetUICommandManager()->NewGroupIterator()->Done());
    QVERIFY(m_services->GetUIManager()->FindCommandItem("Default", "ID_LINE"));
    m_services->GetTextOutput()->SetText("Shown", false);
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Shown"));
}

void SystemServicesTest::applicationAndFrameAreGivenOutOnceSet()
{
    class Application : public CHxApplication
    {
    public:
        [[nodiscard]] qint16 GetMode() const override { return 0; }
        void SetMode(qint16) override { }
    } application;
    class Frame : public CHxMainFrame
    {
    public:
        [[nodiscard]] QWidget *GetMainWindow() const override { return nullptr; }
    } frame;
    QCOMPARE(m_services->GetApplication(), nullptr);
    QCOMPARE(m_services->GetMainFrame(), nullptr);
    m_services->setApplication(&application);
    m_services->setMainFrame(&frame);
    QCOMPARE(m_services->GetApplication(), &application);
    QCOMPARE(m_services->GetMainFrame(), &frame);
}

void SystemServicesTest::commandsRunFromEverywhere()
{
    const auto command = tests::ScriptedCommand::make("GESTURE");
    m_services->commandStack().addCommand(command.get());
    const QSignalSpy drawn(m_window->line, &QAction::triggered);
    QVERIFY(m_services->RunCommand("ID_LINE", true)->IsFound());
    QCOMPARE(drawn.count(), 1);
    QVERIFY(m_services->RunCommand("^C^C_GESTURE", false)->IsFound());
    QTRY_COMPARE(command->runs, 1);

    CHxUIManager *manager = m_services->GetUIManager();
    CHxUICommandItem *item = manager->CreateCommandItem("_CONFIG", 0);
    item->SetMacro("^C^C_GESTURE");
    CHxUIMenuItem *entry = manager->CreateMenuItem(0, {}, {}, {});
    entry->SetCommandItem(item);
    const auto workspaces = manager->NewWorkspaceIterator();
    CHxUIMenuItemCollection *menus = workspaces->Current()->GetMenuItems();
    QCOMPARE(menus->GetItem(1)->GetIdentifier(), CHxString("ID_MnTools")); // as the profile says
    menus->GetItem(1)->GetSubItems()->Append(entry);
    m_window->draw->actions().constLast()->trigger();
    QCOMPARE(command->runs, 1); // not in the middle of the menu
    QTRY_COMPARE(command->runs, 2);

    ServicesCommandEdit line;
    line.setText(QStringLiteral("gesture"));
    QTest::keyClick(&line, Qt::Key_Return);
    QTRY_COMPARE(command->runs, 3);
}

void SystemServicesTest::bindingsAreKeptInTheGivenFile()
{
    const OdResBufPtr value = OdResBuf::newString(OdString(QStringLiteral("ID_LINE")));
    QVERIFY(m_services->GetProfileStore()->Set("GestureWidget", "41", value.get()));
    m_services.reset();
    QVERIFY(QFile::exists(m_folder->filePath(QStringLiteral("drafter.ini"))));
    m_services = make(m_window.get());
    QVERIFY(m_services->GetProfileStore()->Exists("GestureWidget", "41"));
}

void SystemServicesTest::settingsReadAfterTheCommandsAreOfOneState()
{
    const QString path = m_folder->filePath(QStringLiteral("drafter.ini"));
    CHxProfileStore *store = m_services->GetProfileStore();
    const auto bound = [store] {
        const OdResBufPtr value = store->Get("GestureWidget", "41", CHxProfileStore::kProfile);
        return value ? value->getString().toQString() : QString();
    };
    tests::writeFile(path, "[GestureWidget]\n41=ID_LINE\n");
    QVERIFY(m_services->GetUICommandManager()); // a gesture begins
    tests::writeFile(path, "[GestureWidget]\n41=ID_CIRCLE\n");
    QCOMPARE(bound(), QStringLiteral("ID_LINE"));
    QVERIFY(m_services->GetUICommandManager()); // the next one
    QCOMPARE(bound(), QStringLiteral("ID_CIRCLE"));
    tests::writeFile(path, "[GestureWidget]\n41=ID_ARC_OF_CIRCLE\n");
    QCOMPARE(bound(), QStringLiteral("ID_CIRCLE"));
    QCoreApplication::processEvents();
    QCOMPARE(bound(), QStringLiteral("ID_ARC_OF_CIRCLE"));
}

void SystemServicesTest::largeIconsBeginAt32Pixels_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isLarge");
    QTest::newRow("16") << 16 << false;
    QTest::newRow("25") << 25 << false;
    QTest::newRow("31") << 31 << false;
    QTest::newRow("32") << 32 << true;
    QTest::newRow("48") << 48 << true;
}

void SystemServicesTest::largeIconsBeginAt32Pixels()
{
    QFETCH(int, size);
    QFETCH(bool, isLarge);
    m_window->setIconSize(QSize(size, size));
    QCOMPARE(m_services->UsesLargeIcons(), isLarge);
}

void SystemServicesTest::namesOfTheProgram()
{
    QCOMPARE(m_services->GetApplicationName(), CHxString("drafter"));
    QCOMPARE(m_services->GetMessageCaption(), CHxString("drafter"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Drafter 2"));
    QCOMPARE(m_services->GetApplicationName(), CHxString("drafter"));
    QCOMPARE(m_services->GetMessageCaption(), CHxString("Drafter 2"));
    QGuiApplication::setApplicationDisplayName(QString());
    QCOMPARE(m_services->GetMessageCaption(), CHxString("drafter"));
    QCoreApplication::setApplicationName(QString());
    QCOMPARE(m_services->GetApplicationName(), CHxString("tst_systemservices")); // the file's name
    QCoreApplication::setApplicationName(QStringLiteral("drafter"));
}

void SystemServicesTest::messagesAreAnswered_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("button"); // 0 closes the window
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("answered");
    const int ok = QMessageBox::Ok;
    const int cancel = QMessageBox::Cancel;
    QTest::newRow("OK") << 49 << ok << int(QMessageBox::Warning) << 1;
    QTest::newRow("Cancel") << 49 << cancel << int(QMessageBox::Warning) << 2;
    QTest::newRow("closed") << 49 << 0 << int(QMessageBox::Warning) << 2;
    QTest::newRow("OK only") << 64 << ok << int(QMessageBox::Information) << 1;
    QTest::newRow("OK only, closed") << 16 << 0 << int(QMessageBox::Critical) << 1;
    QTest::newRow("question") << 33 << cancel << int(QMessageBox::Question) << 2;
    QTest::newRow("no sign") << 1 << ok << int(QMessageBox::NoIcon) << 1;
}

void SystemServicesTest::messagesAreAnswered()
{
    QFETCH(int, style);
    QFETCH(int, button);
    QFETCH(int, icon);
    QFETCH(int, answered);
    bool wasShown = false;
    answer([&](QMessageBox *box) {
        wasShown = true;
        QCOMPARE(box->text(), QStringLiteral("Reset?"));
        QCOMPARE(box->windowTitle(), QStringLiteral("Caption"));
        QCOMPARE(int(box->icon()), icon);
        QCOMPARE(box->parentWidget(), m_window.get());
        QVERIFY(box->button(QMessageBox::Ok));
        QCOMPARE(box->button(QMessageBox::Cancel) != nullptr, (style & 15) == 1);
        if (button)
            box->button(QMessageBox::StandardButton(button))->click();
        else
            box->close();
    });
    QCOMPARE(m_services->ShowMessage("Reset?", "Caption", style), answered);
    QVERIFY(wasShown);
    QVERIFY(m_window->findChildren<QMessageBox *>().isEmpty());
}

void SystemServicesTest::aMessageMayLoseItsWindow()
{
    answer([this](QMessageBox *) { m_window.reset(); });
    QCOMPARE(m_services->ShowMessage("Reset?", "Caption", 49), 2);
    answer([](QMessageBox *box) { box->button(QMessageBox::Ok)->click(); });
    QCOMPARE(m_services->ShowMessage("Reset?", "Caption", 49), 1);
}

void SystemServicesTest::aMessageIsPlainText()
{
    answer([](QMessageBox *box) {
        QCOMPARE(box->textFormat(), Qt::PlainText);
        box->close();
    });
    QCOMPARE(m_services->ShowMessage("<b>Reset</b>?", "Caption", 49), 2);
}

void SystemServicesTest::aMessageBelongsToTheDialogThatIsOpen()
{
    QDialog dialog(m_window.get());
    dialog.setModal(true);
    dialog.show();
    const QWidget *parent = nullptr;
    answer([&parent](QMessageBox *box) {
        parent = box->parentWidget();
        box->close();
    });
    m_services->ShowMessage("Reset?", "Caption", 49);
    QCOMPARE(parent, &dialog);
}

void SystemServicesTest::helpOpensTheGuide_data()
{
    QTest::addColumn<int>("topic");
    QTest::addColumn<QString>("anchor");
    QTest::newRow("beginning") << 0 << QString();
    QTest::newRow("dialog") << 9000 << QStringLiteral("topic-9000");
}

void SystemServicesTest::helpOpensTheGuide()
{
    QFETCH(int, topic);
    QFETCH(QString, anchor);
    const QString guide = m_folder->filePath(QStringLiteral("a guide.html"));
    tests::writeFile(guide, "<html>");
    QList<QUrl> opened;
    m_guide.files =
        QStringList{m_folder->filePath(QStringLiteral("missing.html")), m_folder->path(), guide};
    m_guide.opener = [&opened](const QUrl &url) {
        opened.append(url);
        return true;
    };
    m_services = make(m_window.get());
    m_services->ShowHelp(topic);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first().toLocalFile(), QFileInfo(guide).canonicalFilePath());
    QCOMPARE(opened.first().fragment(), anchor);
    QCOMPARE(m_window->statusBar()->currentMessage(), QString());
}

void SystemServicesTest::missingHelpIsSaid()
{
    m_guide.files = QStringList{m_folder->filePath(QStringLiteral("missing.html"))};
    m_guide.opener = [](const QUrl &) { return true; };
    m_services = make(m_window.get());
    m_services->ShowHelp(9000);
    QVERIFY(!m_window->statusBar()->currentMessage().isEmpty());

    m_window->statusBar()->clearMessage();
    tests::writeFile(m_folder->filePath(QStringLiteral("missing.html")), "<html>");
    m_guide.opener = [](const QUrl &) { return false; }; // no browser
    m_services = make(m_window.get());
    m_services->ShowHelp(9000);
    QVERIFY(!m_window->statusBar()->currentMessage().isEmpty());
}

// An installation has the guide in share/doc. The search goes up from the library's folder and
// takes the nearest one.
void SystemServicesTest::theGuideIsLookedForAboveTheLibrary()
{
    const QStringList files = gesturewidget::HelpGuide().files;
    QVERIFY(files.size() >= 4);
    QVERIFY(files.first().endsWith(QStringLiteral("/share/doc/gesturewidget/html/user-guide.html")));
    QVERIFY(files.at(1).endsWith(QStringLiteral("/docs/user-guide.html")));
}

void SystemServicesTest::buttonImagesAreOffered_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ok") << QStringLiteral("ok");
    QTest::newRow("cancel") << QStringLiteral("cancel");
    QTest::newRow("help") << QStringLiteral("help");
}

void SystemServicesTest::buttonImagesAreOffered()
{
    QFETCH(QString, name);
    const QString path = QStringLiteral(":/images/shared/%1.png").arg(name);
    const QImage image(path);
    QCOMPARE(image.size(), QSize(32, 32));
    QVERIFY(image.pixelColor(16, 4).alpha() > 250);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    const QImage fine(QStringLiteral(":/images/shared/%1@2x.png").arg(name));
    QCOMPARE(fine.size(), QSize(64, 64));
    const QIcon icon(path);
    for (const int side : {16, 32}) {
        const QImage small = icon.pixmap(side, side).toImage();
        QCOMPARE(small.size(), QSize(side, side));
        int light = 0; // the sign on the button
        int coloured = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const QColor colour = small.pixelColor(x, y);
                light += colour.alpha() > 200 && colour.lightness() > 190;
                coloured += colour.alpha() > 200 && colour.saturation() > 90;
            }
        }
        QVERIFY2(light > side * side / 30, qPrintable(QString::number(light)));
        QVERIFY2(coloured > side * side / 3, qPrintable(QString::number(coloured)));
    }
}

void SystemServicesTest::theWindowMayGoFirst()
{
    CHxUIMenuItemCollection *items = m_services->GetMenuItems();
    m_window.reset();
    QCOMPARE(items->GetCount(), 0);
    QVERIFY(!m_services->UsesLargeIcons());
    QVERIFY(!m_services->RunCommand("ID_LINE", true)->IsFound());
    m_services->GetTextOutput()->SetText("To nobody", true);
    m_services->ShowHelp(0);
}

void SystemServicesTest::withoutAWindowAllIsThere()
{
    m_services = make(nullptr);
    QVERIFY(m_services->GetUIManager()->NewMenuIterator()->Done());
    QVERIFY(m_services->GetUICommandManager()->NewGroupIterator()->Done());
    QCOMPARE(m_services->GetMenuItems()->GetCount(), 0);
    QVERIFY(!m_services->RunCommand("ID_LINE", true)->IsFound());
}

QTEST_MAIN(SystemServicesTest)
#include "tst_systemservices.moc"
