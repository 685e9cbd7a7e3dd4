// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The list of commands beside the ring.

#include "settings/ring/CommandPanel.h"

#include "settings/editing/BindingsEditor.h"
#include "settings/ring/CommandModel.h"
#include "tests/settings/support/HomeTest.h"
#include "tests/support/Fading.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include <algorithm>

using settings::BindingsEditor;
using settings::CommandModel;
using settings::CommandPanel;
using settings::CommandView;
using tests::text;

namespace {

// "caption: direction" of each command, with its menu before it.
QStringList lines(const QAbstractItemModel &model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex menu = model.index(row, 0);
        for (int i = 0; i < model.rowCount(menu); ++i)
            lines.append(menu.data().toString() + text("/") + model.index(i, 0, menu).data().toString()
                         + text(": ") + model.index(i, 1, menu).data().toString());
    }
    return lines;
}

} // namespace

class CommandPanelTest : public tests::HomeTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { tests::outlastFading(); }

    void init()
    {
        HomeTest::init();
        install(text("draw"), text("Draw"));
    }

    void aProgramThatNeverRanOffersItsFirstCommands()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandModel model;
        const QAbstractItemModelTester tester(&model);
        model.showCommands(editor);
        QCOMPARE(lines(model).size(), 8);
        QVERIFY(lines(model).contains(text("First commands/Line: right")));
    }

    void aProgramThatRanShowsItsOwn()
    {
        remember(text("draw"), {text("ID_LINE"), text("ARC")});
        BindingsEditor editor(subject("draw"), text("Draw"));
        CommandModel model;
        model.showCommands(editor);
        QCOMPARE(lines(model), (QStringList{text("Draw/The ID_LINE: right"), text("Draw/The ARC: ")}));
        QVERIFY(editor.bind(1, text("ARC")));
        model.showDirections(editor);
        QCOMPARE(lines(model).at(1), text("Draw/The ARC: up left"));
        QVERIFY(editor.setScheme(4));
        model.showDirections(editor);
        QCOMPARE(lines(model), (QStringList{text("Draw/The ID_LINE: right"), text("Draw/The ARC: ")}));
    }

    void aMenuWithOneCommandIsAmongTheOthers()
    {
        remember(text("draw"), {text("A")}, text("File"));
        remember(text("draw"), {text("B"), text("C")}, text("Edit"));
        remember(text("draw"), {text("D")}, text(""));
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandModel model;
        const QAbstractItemModelTester tester(&model);
        model.showCommands(editor);
        QCOMPARE(lines(model), (QStringList{text("Edit/The B: "), text("Edit/The C: "),
                                            text("Others/The A: "), text("Others/The D: ")}));
    }

    void whatIsTypedChoosesTheFirstHit()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.showCommands(editor);
        QVERIFY(panel.chosenCommand().identifier.isEmpty());
        auto *search = panel.findChild<QLineEdit *>(text("command_search"));
        QTest::keyClicks(search, text("TRI"));
        QCOMPARE(panel.chosenCommand().identifier, text("ID_TRIM"));
        search->clear();
        QTest::keyClicks(search, text("o")); // "Zoom to Fit" and "Copy" have it too
        QCOMPARE(panel.chosenCommand().identifier, text("ID_OFFSET"));
        QTest::keyClicks(search, text("xyz"));
        QVERIFY(panel.chosenCommand().identifier.isEmpty());
    }

    void aMenuWhoseNameMatchesIsNoHit()
    {
        remember(text("draw"), {text("ZOOM_IN"), text("ZOOM_OUT")}, text("View"));
        remember(text("draw"), {text("TILE"), text("NEW_VIEW")}, text("Window"));
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.showCommands(editor);
        panel.show();
        auto *view = panel.findChild<CommandView *>();
        auto *search = panel.findChild<QLineEdit *>(text("command_search"));
        QTest::keyClicks(search, text("view"));
        QCOMPARE(lines(*view->model()), QStringList(text("Window/The NEW_VIEW: ")));
        QCOMPARE(view->model()->rowCount(), 1);
        QCOMPARE(panel.chosenCommand().identifier, text("NEW_VIEW"));
        QVERIFY(panel.findChild<QToolButton *>(text("put_button"))->isEnabled());
        search->clear();
        QCOMPARE(view->model()->rowCount(), 2);
        QCOMPARE(lines(*view->model()).size(), 4);
        QVERIFY(view->isExpanded(view->model()->index(0, 0)));
    }

    void aSearchThatOnlyAMenuHasSaysThatNothingIsFound()
    {
        remember(text("draw"), {text("LINE"), text("ARC")}, text("Geometry"));
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.showCommands(editor);
        panel.show();
        QTest::keyClicks(panel.findChild<QLineEdit *>(text("command_search")), text("geom"));
        QVERIFY(!panel.findChild<CommandView *>()->isVisible());
        const QList<QLabel *> labels = panel.findChildren<QLabel *>();
        const auto saysIt = [](const QLabel *label) {
            return label->text() == text("No command has this in its name.") && label->isVisible();
        };
        QVERIFY(std::any_of(labels.begin(), labels.end(), saysIt));
        QVERIFY(!panel.findChild<QToolButton *>(text("put_button"))->isEnabled());
    }

    void commandsThatComeLaterAreSearchedToo()
    {
        BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.showCommands(editor);
        panel.show();
        auto *view = panel.findChild<CommandView *>();
        QTest::keyClicks(panel.findChild<QLineEdit *>(text("command_search")), text("the arc"));
        QVERIFY(!view->isVisible());
        remember(text("draw"), {text("ARC"), text("ARC2")});
        editor.reload();
        panel.showCommands(editor);
        QVERIFY(view->isVisible());
        QCOMPARE(panel.chosenCommand().identifier, text("ARC"));
        // A command that the person chooses then stays chosen.
        const QModelIndex menu = view->model()->index(0, 0);
        view->setCurrentIndex(view->model()->index(1, 0, menu));
        panel.showCommands(editor);
        QCOMPARE(panel.chosenCommand().identifier, text("ARC2"));
    }

    void keysPutTheChosenCommandIntoADirection_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("direction"); // -1 for none
        QTest::newRow("up") << 8 << int(Qt::Key_Up) << 0;
        QTest::newRow("down-left") << 8 << int(Qt::Key_End) << 3;
        QTest::newRow("right") << 8 << int(Qt::Key_Right) << 6;
        QTest::newRow("up-right") << 8 << int(Qt::Key_PageUp) << 7;
        QTest::newRow("right of four") << 4 << int(Qt::Key_Right) << 3;
        QTest::newRow("none of four") << 4 << int(Qt::Key_End) << -1;
    }
    void keysPutTheChosenCommandIntoADirection()
    {
        QFETCH(int, scheme);
        QFETCH(int, key);
        QFETCH(int, direction);
        BindingsEditor editor(subject("draw"), text("Draw"));
        QVERIFY(editor.setScheme(scheme));
        CommandPanel panel;
        panel.showCommands(editor);
        QTest::keyClicks(panel.findChild<QLineEdit *>(text("command_search")), text("trim"));
        QSignalSpy wanted(&panel, &CommandPanel::wanted);
        QTest::keyClick(panel.findChild<CommandView *>(), static_cast<Qt::Key>(key),
                        Qt::ControlModifier);
        const QList<QVariantList> expected{{text("ID_TRIM"), direction}};
        QCOMPARE(wanted, direction < 0 ? QList<QVariantList>() : expected);
    }

    void theMenuSaysWhoHoldsADirection()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.showCommands(editor);
        auto *button = panel.findChild<QToolButton *>(text("put_button"));
        QVERIFY(!button->isEnabled());
        QTest::keyClicks(panel.findChild<QLineEdit *>(text("command_search")), text("trim"));
        QVERIFY(button->isEnabled());
        Q_EMIT button->menu()->aboutToShow();
        const QList<QAction *> actions = button->menu()->actions();
        QCOMPARE(actions.size(), 10); // eight directions, a line, and off the ring
        QCOMPARE(actions.at(6)->text(), text("Right (now Line)"));
        QVERIFY(!actions.at(7)->isEnabled()); // it is there already
        QSignalSpy wanted(&panel, &CommandPanel::wanted);
        QSignalSpy unwanted(&panel, &CommandPanel::unwanted);
        actions.at(6)->trigger();
        QCOMPARE(wanted, (QList<QVariantList>{{text("ID_TRIM"), 6}}));
        actions.at(9)->trigger();
        QCOMPARE(unwanted, (QList<QVariantList>{{7}}));
    }

    void arrowsKeepTheirColourInASelectedRow()
    {
        const QIcon arrow = settings::arrowIcon(text("up-left"));
        const QImage image = arrow.pixmap(16).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(arrow.pixmap(16, QIcon::Selected).toImage(), image);
    }

    void aCommandIsDraggedAndAMenuIsNot()
    {
        const BindingsEditor editor(subject("draw"), text("Draw"));
        CommandPanel panel;
        panel.resize(300, 400);
        panel.showCommands(editor);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QSignalSpy begun(&panel, &CommandPanel::dragBegun);
        auto *view = panel.findChild<CommandView *>();
        const auto drag = [&](const QModelIndex &index) {
            const QPoint from = view->viewport()->mapTo(&panel, view->visualRect(index).center());
            QTest::mousePress(panel.windowHandle(), Qt::LeftButton, Qt::NoModifier, from);
            QTest::mouseMove(panel.windowHandle(), from - QPoint(15, 0));
            QTest::mouseMove(panel.windowHandle(), from - QPoint(40, 0));
            QTest::mouseRelease(panel.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                from - QPoint(40, 0));
        };
        const QModelIndex menu = view->model()->index(0, 0);
        drag(menu);
        QCOMPARE(begun.count(), 0);
        drag(view->model()->index(2, 0, menu));
        QCOMPARE(begun.count(), 1);
        QCOMPARE(begun.at(0).at(0).value<settings::ShownCommand>().caption, text("Offset"));
    }
};

QTEST_MAIN(CommandPanelTest)
#include "tst_commandpanel.moc"
