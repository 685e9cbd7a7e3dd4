// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

// Which programs can be started with gestures, and with which plug-in.

#include "launcher/programs/ProgramCheck.h"

#include "tests/support/FolderTest.h"

#include <QFile>
#include <QtTest>

using launcher::PluginFolder;
using launcher::ProgramCheck;

namespace {

const QList<PluginFolder> kBoth{{"/lib/qt5", 5}, {"/lib/qt6", 6}};
constexpr int kOther = 11 - QT_MAJOR;

} // namespace

class ProgramCheckTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    // If it found the other plug-in too, Qt would complain on standard error.
    void onlyThePluginOfItsQt()
    {
        const ProgramCheck check = ProgramCheck::of(FIXTURES "/launcher_fixture_direct", {}, kBoth);
        QCOMPARE(check.status, 0);
        QCOMPARE(check.plugins, QList<PluginFolder>{kBoth.at(QT_MAJOR - 5)});
    }

    void bothForAScript()
    {
        write("script", "#!/bin/sh\n");
        QVERIFY(QFile::setPermissions(place("script"), QFile::ReadOwner | QFile::ExeOwner));
        const ProgramCheck check = ProgramCheck::of(QFile::encodeName(place("script")), {}, kBoth);
        QCOMPARE(check.status, 0);
        QCOMPARE(check.plugins, kBoth);
    }

    void withoutThatPlugin()
    {
        const ProgramCheck check =
            ProgramCheck::of(FIXTURES "/launcher_fixture_direct", {}, {{"/lib/other", kOther}});
        QCOMPARE(check.status, launcher::kLauncherFailed);
        QVERIFY2(check.complaint.contains(tests::text("libmousegestures-qt%1.so").arg(QT_MAJOR)),
                 qPrintable(check.complaint));
        QVERIFY(check.plugins.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ProgramCheckTest)
#include "tst_programcheck.moc"
