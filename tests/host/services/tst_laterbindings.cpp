// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "host/files/CatalogueFile.h"
#include "host/files/ProgramProfile.h"
#include "host/files/SettingsFile.h"
#include "host/services/SystemServices.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using gesturewidget::CatalogueFile;
using gesturewidget::RememberedCommand;
using gesturewidget::SettingsFile;
using gesturewidget::SystemServices;
using tests::DraftWindow;

namespace {

const QString kUp = QStringLiteral("GestureWidget/81");
const QString kRight = QStringLiteral("GestureWidget/87");
const QString kImported = QStringLiteral("Host/Imported");
const QString kFar = QStringLiteral("Sketch_Far"); // in no menu

RememberedCommand farCommand()
{
    RememberedCommand command;
    command.identifier = kFar;
    command.caption = QStringLiteral("Far");
    command.group = QStringLiteral("Sketch");
    return command;
}

} // namespace

// Commands that the settings program, an import, another copy of the program or an editor binds while
// the program runs. A module empties a direction whose command is not offered.
class LaterBindingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<DraftWindow>();
        m_window->statusBar();
    }
    void cleanup()
    {
        m_services.reset();
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void anImportedCommandIsOffered();
    void aCommandThatAnotherCopyHasShownIsOffered();
    void anEarlierCommandOfAMenuIsOffered();
    void aCommandOfATasksRingIsOffered();
    void aMistypedOneIsDroppedWithALine();
    void aMistypedOneStaysUntilTheMenusAreComplete();
    void aDroppedOneComesBackWithAnImport();
    void aDroppedOneComesBackWhenAnotherCopyHasShownIt();
    void menusAreNotReadAgainForCommandsThatAreThere();

private:
    void start()
    {
        m_services = std::make_unique<SystemServices>(m_window.get(), gesturewidget::ProgramProfile{},
                                                      &m_documents, file());
    }
    void startWithCompleteMenus()
    {
        start();
        QVERIFY(!isOffered(kFar));
        m_services->catalogue().endGuessing();
    }
    [[nodiscard]] QString file() const { return m_folder->filePath(QStringLiteral("drafter.ini")); }
    void bind(const SettingsFile::Values &values) const { QVERIFY(SettingsFile(file()).write(values)); }
    void showInAnotherCopy(const RememberedCommand &command) const
    {
        QVERIFY(
            CatalogueFile(m_folder->filePath(QStringLiteral("drafter.commands.json"))).merge({command}));
    }
    // As a module does at each gesture.
    [[nodiscard]] QStringList offered() const
    {
        QCoreApplication::processEvents(); // a reading lasts until then
        QStringList identifiers;
        const auto groups = m_services->GetUICommandManager()->NewGroupIterator();
        for (; !groups->Done(); groups->Next()) {
            const auto commands = groups->Current()->NewCommandIterator();
            for (; !commands->Done(); commands->Next())
                identifiers.append(commands->Current()->GetIdentifier().toQString());
        }
        return identifiers;
    }
    [[nodiscard]] bool isOffered(const QString &identifier) const
    {
        return offered().count(identifier) == 1;
    }
    [[nodiscard]] QString captionOf(const QString &identifier) const
    {
        return m_services->catalogue().find(identifier)->GetCaption().toQString();
    }
    [[nodiscard]] QString said() const { return m_window->statusBar()->currentMessage(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DraftWindow> m_window;
    tests::StubDocuments m_documents;
    std::unique_ptr<SystemServices> m_services;
};

void LaterBindingsTest::anImportedCommandIsOffered()
{
    startWithCompleteMenus();
    bind({{kRight, kFar}, {kImported, kFar}});
    QVERIFY(isOffered(kFar));
    QCOMPARE(said(), QString());
    m_services->catalogue().endGuessing();
    QVERIFY(isOffered(kFar));
}

void LaterBindingsTest::aCommandThatAnotherCopyHasShownIsOffered()
{
    startWithCompleteMenus();
    showInAnotherCopy(farCommand());
    QVERIFY(!isOffered(kFar)); // nobody has bound it
    bind({{kRight, kFar}});
    QVERIFY(isOffered(kFar));
    QCOMPARE(captionOf(kFar), QStringLiteral("Far"));
    QCOMPARE(said(), QString());
}

// A menu that is filled when it opens, with actions without names.
void LaterBindingsTest::anEarlierCommandOfAMenuIsOffered()
{
    RememberedCommand earlier;
    earlier.identifier = QStringLiteral("Draw/Near");
    earlier.caption = QStringLiteral("Near");
    earlier.group = QStringLiteral("Draw");
    showInAnotherCopy(earlier);
    startWithCompleteMenus();
    QVERIFY(!isOffered(earlier.identifier));
    bind({{kRight, earlier.identifier}});
    QVERIFY(isOffered(earlier.identifier));
}

void LaterBindingsTest::aCommandOfATasksRingIsOffered()
{
    startWithCompleteMenus();
    showInAnotherCopy(farCommand());
    bind({{QStringLiteral("Ring Sketch/Own"), QStringLiteral("Sketch")},
          {QStringLiteral("Ring Sketch/87"), kFar}});
    QVERIFY(isOffered(kFar));
}

void LaterBindingsTest::aMistypedOneIsDroppedWithALine()
{
    startWithCompleteMenus();
    bind({{kRight, QStringLiteral("drawLien")}, {kUp, QStringLiteral("drawLine")}});
    QVERIFY(!isOffered(QStringLiteral("drawLien")));
    QVERIFY(isOffered(QStringLiteral("drawLine")));
    QCOMPARE(said(), QStringLiteral("The program has no command \"drawLien\"; its direction is empty."));
    // It is said once.
    m_window->statusBar()->clearMessage();
    bind({{kUp, QStringLiteral("drawArc")}});
    QVERIFY(!isOffered(QStringLiteral("drawLien")));
    QCOMPARE(said(), QString());
}

void LaterBindingsTest::aMistypedOneStaysUntilTheMenusAreComplete()
{
    start();
    bind({{kRight, QStringLiteral("drawLien")}});
    QVERIFY(isOffered(QStringLiteral("drawLien")));
    m_services->catalogue().endGuessing();
    QVERIFY(!isOffered(QStringLiteral("drawLien")));
}

void LaterBindingsTest::aDroppedOneComesBackWithAnImport()
{
    startWithCompleteMenus();
    bind({{kRight, kFar}});
    QVERIFY(!isOffered(kFar));
    bind({{kImported, kFar}});
    QVERIFY(isOffered(kFar));
}

void LaterBindingsTest::aDroppedOneComesBackWhenAnotherCopyHasShownIt()
{
    startWithCompleteMenus();
    bind({{kRight, kFar}});
    QVERIFY(!isOffered(kFar));
    showInAnotherCopy(farCommand());
    bind({{kUp, kFar}});
    QVERIFY(isOffered(kFar));
}

// A gesture must not wait for that.
void LaterBindingsTest::menusAreNotReadAgainForCommandsThatAreThere()
{
    startWithCompleteMenus();
    bind({{kRight, QStringLiteral("drawLine")}});
    QVERIFY(isOffered(QStringLiteral("drawLine")));
    const int assignment = m_services->catalogue().assignment();
    bind({{kRight, QStringLiteral("drawLine")},
          {QStringLiteral("GestureWidget/ActiveScheme"), QStringLiteral("4")}});
    QVERIFY(isOffered(QStringLiteral("drawLine")));
    QCOMPARE(m_services->catalogue().assignment(), assignment);
}

QTEST_MAIN(LaterBindingsTest)
#include "tst_laterbindings.moc"
