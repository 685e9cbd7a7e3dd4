// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/GestureHost.h"
#include "sdk/chx/CHxProfileStore.h"
#include "sdk/chx/CHxString.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/od/OdResBuf.h"
#include "tests/support/FolderTest.h"

#include <QApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace {

// A small drafting program without a profile.
class Drafter : public QMainWindow
{
public:
    Drafter()
    {
        QMenu *file = menuBar()->addMenu(QStringLiteral("&File"));
        add(file, "&Open...", "fileOpen")->setShortcuts(QKeySequence::Open);
        add(file, "&Save", "fileSave")->setShortcuts(QKeySequence::Save);
        QMenu *edit = menuBar()->addMenu(QStringLiteral("&Edit"));
        add(edit, "&Copy", "editCopy")->setShortcuts(QKeySequence::Copy);
        add(edit, "&Trim", "editTrim");
        add(edit, "&Offset", "editOffset");
        QMenu *view = menuBar()->addMenu(QStringLiteral("&View"));
        add(view, "Zoom to &Fit", "viewZoomFit");
        QMenu *draw = menuBar()->addMenu(QStringLiteral("&Draw"));
        line = add(draw, "&Line", "drawLine");
        add(draw, "&Text", "drawText");
        tools = menuBar()->addMenu(QStringLiteral("&Tools"));
        tools->addAction(QStringLiteral("Options..."));
        resize(600, 500);
        setCentralWidget(new QWidget);
    }

    [[nodiscard]] QWidget *canvas() const { return centralWidget(); }

    QAction *line = nullptr;
    QMenu *tools = nullptr;

private:
    static QAction *add(QMenu *menu, const char *text, const char *name)
    {
        QAction *action = menu->addAction(QString::fromLatin1(text));
        action->setObjectName(QString::fromLatin1(name));
        return action;
    }
};

QString setting(const QString &key)
{
    const OdResBufPtr value =
        GetHxSystemServices()->GetProfileStore()->Get("GestureWidget", key, CHxProfileStore::kProfile);
    return value ? value->getString().toQString() : QStringLiteral("not there");
}

} // namespace

class HostingTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theShortestWayGivesAFullRing();
    void speaksTheDesktopsLanguageAndLeavesNothing();
};

void HostingTest::init()
{
    FolderTest::init();
    useAsHome();
}

// This is exactly the code that GestureHost's class comment shows, in a program like that of
// docs/hosting.md.
void HostingTest::theShortestWayGivesAFullRing()
{
    Drafter window;
    gesturewidget::GestureHost gestures(&window);
    gestures.addView(window.canvas());
    QString error;
    QVERIFY2(gestures.start(&error), qPrintable(error));
    window.show();
    QTRY_COMPARE(window.tools->actions().size(), 2); // the module has read the menus
    const QStringList identifiers{QStringLiteral("ID_ZOOM_BOUNDS"), QStringLiteral("ID_OFFSET"),
                                  QStringLiteral("ID_OPEN"),        QStringLiteral("ID_COPY"),
                                  QStringLiteral("ID_SAVE"),        QStringLiteral("ID_DTEXT"),
                                  QStringLiteral("ID_LINE"),        QStringLiteral("ID_TRIM")};
    QStringList stored;
    for (int direction = 1; direction <= 8; ++direction)
        stored.append(setting(QStringLiteral("8%1").arg(direction)));
    std::sort(stored.begin(), stored.end());
    QStringList expected = identifiers;
    expected.sort();
    QCOMPARE(stored, expected);

    int lines = 0;
    connect(window.line, &QAction::triggered, this, [&lines] { ++lines; });
    QVERIFY(GetHxSystemServices()->RunCommand("ID_LINE", true)->IsFound());
    QCOMPARE(lines, 1);
}

void HostingTest::speaksTheDesktopsLanguageAndLeavesNothing()
{
    const auto others = [] { return QObject::tr("Others"); };
    qputenv("LANGUAGE", "de");
    Drafter window;
    {
        gesturewidget::GestureHost gestures(&window);
        gestures.addView(window.canvas());
        QString error;
        QVERIFY2(gestures.start(&error), qPrintable(error));
        window.show();
        QTRY_COMPARE(window.tools->actions().size(), 2);
        QCOMPARE(window.tools->actions().constLast()->text(), QStringLiteral("Mausgesten..."));
        QCOMPARE(others(), QStringLiteral("Sonstige"));
    }
    qunsetenv("LANGUAGE");
    QCOMPARE(others(), QStringLiteral("Others"));
    QCOMPARE(window.tools->actions().size(), 1); // found again by its German text
}

QTEST_MAIN(HostingTest)
#include "tst_hosting.moc"
